#pragma once

#include "Backend/core/MirelIF.h"
#include "Host/common/desk/PortPlayer.h"
#include "Host/common/ports/MidiPorts.h"
#include "Host/common/ports/PortWatcher.h"
#include "Host/common/ports/SoundingNotes.h"

#include <memory>
#include <string>
#include <vector>

namespace Host {

// A desk that plays in real time on the computer's MIDI ports. It keeps the order of the start and of the end.
class PortDesk {
public:
    struct Options {
        std::string product;        // The product's name, for the key of the settings.
        std::string dataFolder;     // Where the lists of ports are kept.
        std::string virtualPort;    // The name of ports of the desk's own; empty: none.
        bool keepsSwitches = true;  // Ports that are switched stay so in the next run.
        bool recordsAll = false;    // The Recorder gets what is played on the other outputs too.
    };

    PortDesk(std::shared_ptr<MidiSystem> system, const Options& options);

    // As stop.
    ~PortDesk();
    PortDesk(const PortDesk&) = delete;
    PortDesk& operator=(const PortDesk&) = delete;

    // [main] Starts the threads, opens the ports and hands them to the desk, which then plays its defaults.
    void start();

    // [main] Ends all that sounds, saves the settings and closes the ports. False if a port hung and was left behind.
    bool stop();

    // [main, between start and stop] Ends all that sounds and plays nothing from then on, so that the program can be
    // paused. False if a port hung.
    bool pause();

    // [main, after pause] Plays on.
    void resume();

    Backend::MirelIF& mirel() { return *m_mirel; }
    MidiPorts& ports() { return *m_ports; }

    // [any] Whether the player's thread has ended by itself, as it does when something fails in a slice.
    bool hasFailed() const { return m_watch->isRunning && m_player.hasEnded(); }

    // [main] Waits until the desk has done what was posted to it.
    void waitUntilIdle();

private:
    // The desk's host: real ports, of which the desk hears anew when it switches one on or off.
    class Player : public PortPlayer {
    public:
        explicit Player(PortDesk& desk);

        void playMidi(const Backend::MidiEngine::MirelMidiMessage& message) override;
        void enableMidiInput(int port, bool enable) override;
        void enableMidiOutput(int port, bool enable) override;

    private:
        // An output as the take has it.
        struct Take {
            SoundingNotes sounding;
            bool isSwitchedOff = false;
        };

        void record(const Backend::MidiEngine::MirelMidiMessage& message);
        void endTake(Take& take) const;

        PortDesk& m_desk;
        std::vector<Take> m_takes;  // By output; none unless all is recorded. Under the engine's lock.
    };

    // What of the watch outlives the desk if a look at the ports hangs.
    struct Watch {
        std::atomic<bool> isRunning{false};
        std::atomic<int> changes{0};  // Of the lists of ports: by the desk, which switches them, and by the system.
        std::atomic<int> told{0};     // Of those, that the desk has been told of.
    };

    // The index of the recorder among the outputs.
    char findRecorder() const;

    void startPlayer();

    // [any] Says in the log which ports don't work.
    void logFailures();

    // [watcher] Tells the desk of what has changed.
    void tellChanges();

    // [engine] A port was switched on or off, of which the desk hears soon.
    void noteSwitch();

    const bool m_recordsAll;
    const std::shared_ptr<Watch> m_watch = std::make_shared<Watch>();
    const std::shared_ptr<MidiPorts> m_ports;
    Player m_player;
    char m_recorder = -1;
    std::unique_ptr<Backend::MirelIF> m_mirel;
    std::unique_ptr<PortWatcher> m_watcher;
};

}
