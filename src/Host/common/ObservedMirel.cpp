#include "Host/common/ObservedMirel.h"

namespace Host {

using Backend::MidiEngine::MirelMidiMessage;

ObservedMirel::ObservedMirel(const std::string& name, Backend::MidiEngine::MidiPlayer& player, Observer observer)
    : Mirel(name, player), m_controlMessageManager(*this, std::move(observer)) {}

ObservedMirel::ObservedControls::ObservedControls(Backend::Mirel& mirel, Observer observer)
    : ControlMessageManager(mirel.getMessageManagerMaster(), mirel.getControls()), m_observer(std::move(observer)) {}

bool ObservedMirel::ObservedControls::postUpdateControl(const MirelMidiMessage& message) {
    return !m_observer(message) || ControlMessageManager::postUpdateControl(message);
}

}
