// How long does a note take from another JACK program through a running desk and back?
//
// The server has the dummy driver, with 64 frames at 48000 a second. Frames are the server's own count: they include
// the rest of the cycle in which the note was sent, the slice that plays it and the wait for the cycle that carries it
// back, as a loop of programs costs one cycle more than a chain. What a sound card would add for its buffers is not
// included. The clock gives the moment when the program had the note in its hands, so it includes the system's delay in
// waking the server and its programs.
#include "Platform/MonotonicClock.h"
#include "Platform/Sleep.h"
#include "Platform/TemporaryFolder.h"
#include "benchmarks/Report.h"
#include "benchmarks/RunningProgram.h"
#include "tests/Host/common/ports/posix/JackTestClient.h"
#include "tests/Host/common/ports/posix/JackTestServer.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <optional>
#include <random>

namespace {

using namespace Benchmarks;

constexpr int NOTES = 3000;
constexpr int FRAMES_IN_CYCLE = 64;
constexpr double FRAMES_IN_MILLISECOND = 48;
constexpr std::int64_t PATIENCE = 3000000;

struct Latency {
    double byFrames;  // Both in milliseconds.
    double byClock;
};

// The newest Note On of this note.
std::optional<Host::JackTestClient::Event> findNote(const std::vector<Host::JackTestClient::Event>& events,
                                                    std::uint8_t note) {
    const auto found = std::find_if(events.rbegin(), events.rend(), [note](const auto& event) {
        return (event.bytes.front() & 0xf0) == 0x90 && event.bytes[1] == note;
    });
    return found == events.rend() ? std::nullopt : std::optional(*found);
}

// Sends a note that differs from all others nearby, and waits for it. Nothing if it doesn't come back.
std::optional<Latency> measure(Host::JackTestClient& player, std::uint8_t note, std::uint32_t frame) {
    player.forget();
    player.send({0x90, note, 100}, frame);
    const std::int64_t start = Platform::monotonicMicroseconds();
    while (Platform::monotonicMicroseconds() - start < PATIENCE) {
        Platform::sleepMilliseconds(1);
        const auto heard = findNote(player.heard(), note);
        const auto sent = findNote(player.sent(), note);
        if (heard && sent)
            return Latency{static_cast<double>(heard->frame - sent->frame) / FRAMES_IN_MILLISECOND,
                           static_cast<double>(heard->microseconds - sent->microseconds) / 1000};
    }
    return std::nullopt;
}

// Plays until the first note comes back, and waits until all have.
bool warmUp(Host::JackTestClient& player) {
    const std::int64_t start = Platform::monotonicMicroseconds();
    while (player.heard().empty()) {
        player.send({0x90, 60, 100});
        player.send({0x80, 60, 64});
        Platform::sleepMilliseconds(10);
        if (Platform::monotonicMicroseconds() - start > PATIENCE)
            return false;
    }
    Platform::sleepMilliseconds(500);
    return true;
}

}

int main() {
    const Platform::TemporaryFolder folder;
    Host::JackTestServer server;
    if (!server.start(Host::JackTestServer::Cycles::IN_TIME, FRAMES_IN_CYCLE))
        return 1;
    Host::JackTestClient player("player");
    RunningProgram program(folder.getPath(), {"--in", player.output(), "--out", player.input()});
    if (!program.waitUntilPlaying() || !warmUp(player)) {
        std::fprintf(stderr, "no note came through the desk: %s\n", program.output().c_str());
        return 1;
    }
    std::mt19937 random(1);
    std::vector<double> byFrames;
    std::vector<double> byClock;
    int lost = 0;
    for (int i = 0; i < NOTES; ++i) {
        const auto note = static_cast<std::uint8_t>(i % 128);
        if (const auto latency = measure(player, note, static_cast<std::uint32_t>(random() % FRAMES_IN_CYCLE))) {
            byFrames.push_back(latency->byFrames);
            byClock.push_back(latency->byClock);
        } else {
            ++lost;  // A server that does not wait for its clients may lose one.
        }
        player.send({0x80, note, 64});
        Platform::sleepMilliseconds(4 + static_cast<unsigned>(random() % 8));
    }
    const double typical = percentile(byFrames, 50);
    std::vector<double> jitter;
    std::transform(byFrames.begin(), byFrames.end(), std::back_inserter(jitter),
                   [typical](double latency) { return std::abs(latency - typical); });
    reportSpread("latency by frames", byFrames, "ms");
    reportSpread("jitter by frames, from the median", jitter, "ms");
    reportSpread("latency by the clock", byClock, "ms");
    report("notes that were lost", lost, "");
    return 0;
}
