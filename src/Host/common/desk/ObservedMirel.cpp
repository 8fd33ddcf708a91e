#include "Host/common/desk/ObservedMirel.h"

namespace Host {

ObservedMirel::ObservedMirel(const std::string& name, Backend::MidiEngine::MidiPlayer& player, Observer observer)
    : Mirel(name, player), m_observer(std::move(observer)) {
    getMidiEngine().setPassingEvents(*this);
}

bool ObservedMirel::postUpdateControl(const Backend::MidiEngine::MirelMidiMessage& message) {
    return !m_observer(message) || getControlMessageManager().postUpdateControl(message);
}

}
