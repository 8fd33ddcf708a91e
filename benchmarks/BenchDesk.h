#pragma once

#include "Host/common/desk/ObservedMirel.h"
#include "Host/common/desk/PortPlayer.h"
#include "Host/common/ports/MidiPorts.h"

#include <atomic>
#include <cstdint>
#include <string>
#include <thread>

namespace Benchmarks {

// A desk with all its threads, on a computer without ports: its only output is the Recorder. It keeps its settings in a
// folder.
class BenchDesk {
public:
    enum class Slices {
        EVERY_MILLISECOND,  // The real player.
        WITHOUT_PAUSE,      // One after the other, so that nobody waits for one.
    };

    BenchDesk(const std::string& dataFolder, Slices slices);
    ~BenchDesk();
    BenchDesk(const BenchDesk&) = delete;
    BenchDesk& operator=(const BenchDesk&) = delete;

    Backend::Mirel& mirel() { return m_mirel; }

    // Waits, asleep, until the desk has handled everything that was posted.
    void waitUntilIdle();

    // The same without sleeping, for what is shorter than a wake-up.
    void spinUntilIdle();

    // How many slices somebody has waited for so far.
    std::int64_t awaitedSlices() const { return m_awaitedSlices; }

    // [any] How many events the desk has handed to its host so far, and when the last one, on the monotonic clock.
    std::int64_t playedEvents() const { return m_player.events; }
    std::int64_t lastPlayed() const { return m_player.last; }

private:
    struct Player : Host::PortPlayer {
        using Host::PortPlayer::PortPlayer;
        void playMidi(const Backend::MidiEngine::MirelMidiMessage& message) override;

        std::atomic<std::int64_t> events{0};
        std::atomic<std::int64_t> last{0};
    };

    void playTimeSlice(std::int32_t from, std::int32_t to);
    void playWithoutPause();

    const bool m_pauses;
    Host::MidiPorts m_ports;
    Player m_player{m_ports};
    Host::ObservedMirel m_mirel;
    std::atomic<std::int64_t> m_awaitedSlices{0};
    std::atomic<bool> m_isEnding{false};
    std::thread m_restless;
};

}
