#include "Backend/core/log/DisplayMessageManager.h"

#include "Backend/core/log/DisplayListener.h"
#include "Backend/core/log/DisplayMessages.h"
#include "Backend/core/log/EventLine.h"
#include "Backend/core/messages/MessagePayload.h"
#include "Platform/AutoResetEvent.h"

namespace Backend::Display {

using namespace Messages;
using MidiEngine::MidiInputPort;
using MidiEngine::MidiOutputPort;
using MidiEngine::MirelMidiMessage;

namespace {

constexpr const char* BANNER = "Mirel Console 3.2\r\n";
constexpr const char* UNKNOWN_PORT = "???";
constexpr const char* INPUT_MARK = "> ";
constexpr const char* NUMBER_END = "  ";

template <class Port>
std::string getPortName(const std::vector<Port>& ports, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= ports.size())
        return UNKNOWN_PORT;
    return ports[static_cast<std::size_t>(index)].name;
}

}

void DisplayMessageManager::start(bool displayNumbers, bool displayInputs, bool displayOutputs) {
    m_displayNumbers = displayNumbers;
    m_displayInputs = displayInputs;
    m_displayOutputs = displayOutputs;
    m_thread.start("mirel display", [this] { run(); });
}

void DisplayMessageManager::stop() {
    m_thread.stop(STOP);
    for (MSG leftOver; m_thread.tryGet(leftOver);)
        discard(leftOver);
}

void DisplayMessageManager::run() {
    m_log.add(BANNER);
    MSG message;
    while (m_thread.get(message) && message.message != STOP)
        handleMessage(message);
}

void DisplayMessageManager::post(UINT number, WPARAM wParam, LPARAM lParam) {
    m_thread.postUntilAccepted(number, wParam, lParam);
}

void DisplayMessageManager::postAddText(const std::string& text) {
    post(ADD_TEXT, 0, releaseCopy<LPARAM>(text));
}

void DisplayMessageManager::postSendAll() {
    post(SEND_ALL, 0, 0);
}

void DisplayMessageManager::postFlush() {
    post(FLUSH, 0, 0);
}

void DisplayMessageManager::postAddInputEvent(const MirelMidiMessage& message) {
    post(ADD_INPUT_EVENT, 0, releaseCopy<LPARAM>(message));
}

void DisplayMessageManager::postAddOutputEvent(const MirelMidiMessage& message) {
    post(ADD_OUTPUT_EVENT, 0, releaseCopy<LPARAM>(message));
}

void DisplayMessageManager::postSetListener(DisplayListener* listener) {
    post(SET_LISTENER, 0, reinterpret_cast<LPARAM>(listener));
}

void DisplayMessageManager::sendSetListener(DisplayListener* listener) {
    Platform::AutoResetEvent done;
    post(SET_LISTENER, reinterpret_cast<WPARAM>(&done), reinterpret_cast<LPARAM>(listener));
    // The log may be in the middle of telling a listener whose window is this thread's.
    done.waitAnsweringWindows();
}

void DisplayMessageManager::postSetDisplayNumbers(bool display) {
    post(SET_DISPLAY_NUMBERS, display, 0);
}

void DisplayMessageManager::postSetDisplayInputs(bool display) {
    post(SET_DISPLAY_INPUTS, display, 0);
}

void DisplayMessageManager::postSetDisplayOutputs(bool display) {
    post(SET_DISPLAY_OUTPUTS, display, 0);
}

void DisplayMessageManager::postSetInputPorts(const std::vector<MidiInputPort>& ports) {
    post(SET_INPUT_PORTS, releaseCopy<WPARAM>(ports), 0);
}

void DisplayMessageManager::postSetOutputPorts(const std::vector<MidiOutputPort>& ports) {
    post(SET_OUTPUT_PORTS, releaseCopy<WPARAM>(ports), 0);
}

void DisplayMessageManager::handleMessage(const MSG& message) {
    switch (message.message) {
        case ADD_TEXT: m_log.add(*takePayload<std::string>(message.lParam)); break;
        case SEND_ALL:
            if (m_listener)
                m_log.sendAll(*m_listener);
            break;
        case FLUSH:
            if (m_listener)
                m_log.flush(*m_listener);
            break;
        case ADD_INPUT_EVENT: {
            const auto event = takePayload<MirelMidiMessage>(message.lParam);
            if (m_displayInputs)
                addEvent(INPUT_MARK + getPortName(m_inputPorts, event->getInput()), *event);
            break;
        }
        case ADD_OUTPUT_EVENT: {
            const auto event = takePayload<MirelMidiMessage>(message.lParam);
            if (m_displayOutputs)
                addEvent(getPortName(m_outputPorts, event->getOutput()), *event);
            break;
        }
        case SET_LISTENER:
            m_listener = reinterpret_cast<DisplayListener*>(message.lParam);
            tellDone(message);
            break;
        case SET_DISPLAY_NUMBERS: m_displayNumbers = message.wParam != 0; break;
        case SET_DISPLAY_INPUTS: m_displayInputs = message.wParam != 0; break;
        case SET_DISPLAY_OUTPUTS: m_displayOutputs = message.wParam != 0; break;
        case SET_INPUT_PORTS: m_inputPorts = std::move(*takePayload<std::vector<MidiInputPort>>(message.wParam)); break;
        case SET_OUTPUT_PORTS:
            m_outputPorts = std::move(*takePayload<std::vector<MidiOutputPort>>(message.wParam));
            break;
        default: break;
    }
}

void DisplayMessageManager::addEvent(const std::string& port, const MirelMidiMessage& message) {
    const std::string number = m_displayNumbers ? std::to_string(m_eventNumber++) + NUMBER_END : std::string();
    m_log.add(number + port + describeEvent(message));
}

// The sender of a listener may wait for it.
void DisplayMessageManager::tellDone(const MSG& message) {
    if (auto* const done = reinterpret_cast<Platform::AutoResetEvent*>(message.wParam))
        done->set();
}

void DisplayMessageManager::discard(const MSG& message) {
    switch (message.message) {
        case ADD_TEXT: takePayload<std::string>(message.lParam); break;
        case ADD_INPUT_EVENT:
        case ADD_OUTPUT_EVENT: takePayload<MirelMidiMessage>(message.lParam); break;
        case SET_LISTENER: tellDone(message); break;
        case SET_INPUT_PORTS: takePayload<std::vector<MidiInputPort>>(message.wParam); break;
        case SET_OUTPUT_PORTS: takePayload<std::vector<MidiOutputPort>>(message.wParam); break;
        default: break;
    }
}

}
