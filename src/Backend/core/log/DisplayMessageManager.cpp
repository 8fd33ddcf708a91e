#include "Backend/core/log/DisplayMessageManager.h"

#include "Backend/core/log/DisplayListener.h"
#include "Backend/core/log/DisplayMessages.h"
#include "Backend/core/log/EventLine.h"
#include "Backend/core/messages/MessageTable.h"
#include "Backend/midi/MirelMidiMessage.h"
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
constexpr Platform::AutoResetEvent* NOBODY = nullptr;

template <class Port>
std::string getPortName(const std::vector<Port>& ports, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= ports.size())
        return UNKNOWN_PORT;
    return ports[static_cast<std::size_t>(index)].name;
}

template <class Value>
constexpr auto assignTo(Value DisplayMessageManager::*field) {
    return [field](DisplayMessageManager& display, Value value) { display.*field = std::move(value); };
}

}

void DisplayMessageManager::start(bool displayNumbers, bool displayInputs, bool displayOutputs) {
    m_displayNumbers = displayNumbers;
    m_displayInputs = displayInputs;
    m_displayOutputs = displayOutputs;
    m_thread.start("mirel display", [this] { run(); });
}

void DisplayMessageManager::stop() {
    m_thread.stop(QUIT_MESSAGE_THREAD);
    for (MSG leftOver; m_thread.tryGet(leftOver);)
        FAMILY.dispose(leftOver);
}

void DisplayMessageManager::run() {
    m_log.add(BANNER);
    MSG message;
    while (m_thread.get(message) && message.message != QUIT_MESSAGE_THREAD)
        handleMessage(message);
}

template <class Row, class... Values>
void DisplayMessageManager::post(Row row, const Values&... values) {
    row.post([this](UINT number, WPARAM w, LPARAM l) { m_thread.postUntilAccepted(number, w, l); }, values...);
}

void DisplayMessageManager::postAddText(const std::string& text) {
    post(ADD_TEXT, text);
}

void DisplayMessageManager::postSendAll() {
    post(SEND_ALL);
}

void DisplayMessageManager::postFlush() {
    post(FLUSH);
}

void DisplayMessageManager::postAddInputEvent(const MirelMidiMessage& message) {
    post(ADD_INPUT_EVENT, message);
}

void DisplayMessageManager::postAddOutputEvent(const MirelMidiMessage& message) {
    post(ADD_OUTPUT_EVENT, message);
}

void DisplayMessageManager::postSetListener(DisplayListener* listener) {
    post(SET_LISTENER, NOBODY, listener);
}

void DisplayMessageManager::sendSetListener(DisplayListener* listener) {
    Platform::AutoResetEvent done;
    post(SET_LISTENER, &done, listener);
    // The log may be in a call to a listener whose window belongs to this thread.
    done.waitAnsweringWindows();
}

void DisplayMessageManager::postSetDisplayNumbers(bool display) {
    post(SET_DISPLAY_NUMBERS, display);
}

void DisplayMessageManager::postSetDisplayInputs(bool display) {
    post(SET_DISPLAY_INPUTS, display);
}

void DisplayMessageManager::postSetDisplayOutputs(bool display) {
    post(SET_DISPLAY_OUTPUTS, display);
}

void DisplayMessageManager::postSetInputPorts(const std::vector<MidiInputPort>& ports) {
    post(SET_INPUT_PORTS, ports);
}

void DisplayMessageManager::postSetOutputPorts(const std::vector<MidiOutputPort>& ports) {
    post(SET_OUTPUT_PORTS, ports);
}

void DisplayMessageManager::handleMessage(const MSG& message) {
    using Self = DisplayMessageManager;
    // clang-format off
    static constexpr MessageTable ROWS(
        FAMILY,
        on(ADD_TEXT, &Self::addText),
        on(SEND_ALL, &Self::sendAll),
        on(FLUSH, &Self::flush),
        on(ADD_INPUT_EVENT, &Self::addInputEvent),
        on(ADD_OUTPUT_EVENT, &Self::addOutputEvent),
        on(SET_LISTENER, &Self::setListener),
        on(SET_DISPLAY_NUMBERS, assignTo(&Self::m_displayNumbers)),
        on(SET_DISPLAY_INPUTS, assignTo(&Self::m_displayInputs)),
        on(SET_DISPLAY_OUTPUTS, assignTo(&Self::m_displayOutputs)),
        on(SET_INPUT_PORTS, assignTo(&Self::m_inputPorts)),
        on(SET_OUTPUT_PORTS, assignTo(&Self::m_outputPorts)));
    // clang-format on
    ROWS.handle(*this, message);
}

void DisplayMessageManager::addText(const std::string& text) {
    m_log.add(text);
}

void DisplayMessageManager::sendAll() {
    if (m_listener)
        m_log.sendAll(*m_listener);
}

void DisplayMessageManager::flush() {
    if (m_listener)
        m_log.flush(*m_listener);
}

void DisplayMessageManager::addInputEvent(const MirelMidiMessage& message) {
    if (m_displayInputs)
        addEvent(INPUT_MARK + getPortName(m_inputPorts, message.getInput()), message);
}

void DisplayMessageManager::addOutputEvent(const MirelMidiMessage& message) {
    if (m_displayOutputs)
        addEvent(getPortName(m_outputPorts, message.getOutput()), message);
}

void DisplayMessageManager::addEvent(const std::string& port, const MirelMidiMessage& message) {
    const std::string number = m_displayNumbers ? std::to_string(m_eventNumber++) + NUMBER_END : std::string();
    m_log.add(number + port + describeEvent(message));
}

// The message itself wakes its waiting sender.
void DisplayMessageManager::setListener(Platform::AutoResetEvent*, DisplayListener* listener) {
    m_listener = listener;
}

}
