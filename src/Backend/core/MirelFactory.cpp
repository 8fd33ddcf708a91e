#include "Backend/core/MirelFactory.h"

#include "Backend/core/Mirel.h"

namespace Backend {

MirelIF* MirelFactory::createMirel(const std::string& name, MidiEngine::MidiPlayer& player, bool) {
    return new Mirel(name, player);
}

}
