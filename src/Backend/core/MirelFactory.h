#pragma once

#include <string>

namespace Backend {

class MirelIF;

namespace MidiEngine {
class MidiPlayer;
}

class MirelFactory {
public:
    // [host] Creates a desk, which does nothing until it is started. name is the product's, for the settings key. The
    // player must outlive the desk; the caller deletes the desk. The last argument has no effect.
    static MirelIF* createMirel(const std::string& name, MidiEngine::MidiPlayer& player, bool);
};

}
