#pragma once

#include "Backend/core/log/DisplayLog.h"
#include "Backend/midi/MidiPort.h"
#include "Platform/MessageThread.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Platform {
class AutoResetEvent;
}

namespace Backend::MidiEngine {
class MirelMidiMessage;
}

namespace Backend::Display {

// The log of events and of the desk's messages. Its text is built on a thread of its own, so that a flood of events
// delays nobody else.
class DisplayMessageManager {
public:
    DisplayMessageManager() = default;

    // The thread must have been stopped.
    ~DisplayMessageManager() = default;

    DisplayMessageManager(const DisplayMessageManager&) = delete;
    DisplayMessageManager& operator=(const DisplayMessageManager&) = delete;

    // [backend] The log begins with the product's name. The flags are those of the setters below.
    void start(bool displayNumbers, bool displayInputs, bool displayOutputs);

    // [backend] Returns when the thread has ended. The listener is not called again.
    void stop();

    // [any] Text of 15,000 bytes or more is dropped.
    void postAddText(const std::string& text);

    // [any] Sends the listener everything, or what is new.
    void postSendAll();
    void postFlush();

    // [any] Events that came in and went out. The settings say whether they are logged.
    void postAddInputEvent(const MidiEngine::MirelMidiMessage& message);
    void postAddOutputEvent(const MidiEngine::MirelMidiMessage& message);

    // [any] Sets who shows the log, or null. The listener must outlive the thread, or stay until sendSetListener has
    // replaced it.
    void postSetListener(DisplayListener* listener);

    // [any other thread] Like postSetListener, but returns once the previous listener is no longer called, however much
    // there is to log. It may have to wait for the call in progress. The thread must be running.
    void sendSetListener(DisplayListener* listener);

    // [any] Whether event lines begin with a number, and which events are logged.
    void postSetDisplayNumbers(bool display);
    void postSetDisplayInputs(bool display);
    void postSetDisplayOutputs(bool display);

    // [any] The ports, for their names.
    void postSetInputPorts(const std::vector<MidiEngine::MidiInputPort>& ports);
    void postSetOutputPorts(const std::vector<MidiEngine::MidiOutputPort>& ports);

    // [any other thread] Returns when everything posted so far is done.
    void waitUntilIdle() { m_thread.waitUntilIdle(); }

    // [any] Whether there is nothing to do at the moment.
    bool isIdle() const { return m_thread.isIdle(); }

    // [display] Carries out one request. Unknown numbers are ignored.
    void handleMessage(const MSG& message);

private:
    void run();
    template <class Row, class... Values>
    void post(Row row, const Values&... values);

    void addText(const std::string& text);
    void sendAll();
    void flush();
    void addInputEvent(const MidiEngine::MirelMidiMessage& message);
    void addOutputEvent(const MidiEngine::MirelMidiMessage& message);
    void addEvent(const std::string& port, const MidiEngine::MirelMidiMessage& message);
    void setListener(Platform::AutoResetEvent* waiter, DisplayListener* listener);

    DisplayListener* m_listener = nullptr;
    DisplayLog m_log;
    std::uint32_t m_eventNumber = 0;
    bool m_displayNumbers = false;
    bool m_displayInputs = false;
    bool m_displayOutputs = false;
    std::vector<MidiEngine::MidiInputPort> m_inputPorts;
    std::vector<MidiEngine::MidiOutputPort> m_outputPorts;
    Platform::MessageThread m_thread;
};

}
