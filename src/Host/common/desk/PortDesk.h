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

// A desk that plays in real time on the computer's MIDI ports. It keeps the order of start and end.
class PortDesk {
public:
    struct Options {
        std::string product;        // The product's name, for the settings key.
        std::string dataFolder;     // Where the lists of ports are kept.
        std::string virtualPort;    // The name for ports of the desk's own; empty: none.
        bool keepsSwitches = true;  // Whether ports stay switched on or off in the next run.
        bool recordsAll = false;    // Whether the Recorder also gets what is played on the other outputs.
    };

    PortDesk(std::shared_ptr<MidiSystem> system, const Options& options);

    // Does what stop does.
    ~PortDesk();
    PortDesk(const PortDesk&) = delete;
    PortDesk& operator=(const PortDesk&) = delete;

    // [main] Starts the threads, opens the ports and hands them to the desk, which then plays its defaults.
    void start();

    // [main] Ends all sounding notes, saves the settings and closes the ports. False if a port hung and was abandoned.
    bool stop();

    // [main, between start and stop] Ends all sounding notes and plays nothing more, so that the program can be paused.
    // False if a port hung.
    bool pause();

    // [main, after pause] Goes on playing.
    void resume();

    Backend::MirelIF& mirel() { return *m_mirel; }
    MidiPorts& ports() { return *m_ports; }

    // [any] Whether the player's thread ended by itself, as it does when something fails in a slice.
    bool hasFailed() const { return m_watch->isRunning && m_player.hasEnded(); }

    // [main] Waits until the desk has handled everything that was posted to it.
    void waitUntilIdle();

private:
    // The desk's host, with real ports. When the desk switches one on or off, the result is reported back to it.
    class Player : public PortPlayer {
    public:
        explicit Player(PortDesk& desk);

        void playMidi(const Backend::MidiEngine::MirelMidiMessage& message) override;
        void enableMidiInput(int port, bool enable) override;
        void enableMidiOutput(int port, bool enable) override;

    private:
        // The state of an output in the take.
        struct Take {
            SoundingNotes sounding;
            bool isSwitchedOff = false;
        };

        void record(const Backend::MidiEngine::MirelMidiMessage& message);
        void endTake(Take& take) const;

        PortDesk& m_desk;
        std::vector<Take> m_takes;  // By output; empty unless all is recorded. Under the engine's lock.
    };

    // The part of the port watcher that must outlive the desk if a scan hangs.
    struct Watch {
        std::atomic<bool> isRunning{false};
        std::atomic<int> changes{0};  // Changes to the lists of ports, made by the desk or by the system.
        std::atomic<int> told{0};     // How many of those the desk knows of.
    };

    // The index of the recorder among the outputs.
    char findRecorder() const;

    void startPlayer();

    // [any] Logs which ports don't work.
    void logFailures();

    // [watcher] Reports changes to the desk.
    void tellChanges();

    // [engine] Notes that a port was switched on or off, to be reported to the desk soon.
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
