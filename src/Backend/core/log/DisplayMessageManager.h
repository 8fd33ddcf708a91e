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

// The log of events and of the desk's messages. Its text is made on a thread of its own, so that a flood of events
// costs nobody else anything.
class DisplayMessageManager {
public:
    DisplayMessageManager() = default;

    // The thread must have been stopped.
    ~DisplayMessageManager() = default;

    DisplayMessageManager(const DisplayMessageManager&) = delete;
    DisplayMessageManager& operator=(const DisplayMessageManager&) = delete;

    // [backend] The log begins with the name of the product. The flags are those of the setters below.
    void start(bool displayNumbers, bool displayInputs, bool displayOutputs);

    // [backend] Returns when the thread has ended. The listener hears nothing more.
    void stop();

    // [any] Text of 15,000 bytes or more is dropped.
    void postAddText(const std::string& text);

    // [any] Shows the listener everything, or what is new.
    void postSendAll();
    void postFlush();

    // [any] Events that came in and went out. Whether they are logged is a setting.
    void postAddInputEvent(const MidiEngine::MirelMidiMessage& message);
    void postAddOutputEvent(const MidiEngine::MirelMidiMessage& message);

    // [any] Who shows the log, or null. It must outlive the thread, or a call of sendSetListener.
    void postSetListener(DisplayListener* listener);

    // [any other thread] The same, and returns when the listener before hears nothing more, however much there is to
    // log. It may have to wait for what that one does at this moment. The thread must be running.
    void sendSetListener(DisplayListener* listener);

    // [any] Whether event lines begin with their number, and which events are logged.
    void postSetDisplayNumbers(bool display);
    void postSetDisplayInputs(bool display);
    void postSetDisplayOutputs(bool display);

    // [any] The ports, for their names.
    void postSetInputPorts(const std::vector<MidiEngine::MidiInputPort>& ports);
    void postSetOutputPorts(const std::vector<MidiEngine::MidiOutputPort>& ports);

    // [any other thread] Returns when all that was posted so far is done.
    void waitUntilIdle() { m_thread.waitUntilIdle(); }

    // [any] Whether there is nothing to do at this moment.
    bool isIdle() const { return m_thread.isIdle(); }

    // [display] Carries one request out. Numbers that are none of its requests are ignored.
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
