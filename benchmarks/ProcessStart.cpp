// How long does it take from the start of the process until the first note can be played?
#include "Platform/MonotonicClock.h"
#include "Platform/Sleep.h"
#include "Platform/TemporaryFolder.h"
#include "benchmarks/Report.h"
#include "benchmarks/RunningProgram.h"
#include "tests/Host/common/ports/posix/JackTestClient.h"
#include "tests/Host/common/ports/posix/JackTestServer.h"

#include <cstdio>

namespace {

using namespace Benchmarks;

constexpr int STARTS = 30;
constexpr double AIM_MILLISECONDS = 150;
constexpr std::int64_t PATIENCE = 20000000;
constexpr int FRAMES_IN_CYCLE = 64;

double millisecondsSince(std::int64_t start) {
    return static_cast<double>(Platform::monotonicMicroseconds() - start) / 1000;
}

// The very first start does that.
bool makeFolders(const std::string& folder) {
    RunningProgram program(folder);
    return program.waitUntilPlaying();
}

// On a computer without MIDI: until it reports that it plays, at which moment a note would be played.
bool measureAlone(const std::string& folder) {
    std::vector<double> milliseconds;
    for (int i = 0; i < STARTS; ++i) {
        const std::int64_t start = Platform::monotonicMicroseconds();
        RunningProgram program(folder);
        if (!program.waitUntilPlaying())
            return false;
        milliseconds.push_back(millisecondsSince(start));
    }
    reportSpread("no MIDI system", milliseconds, "ms", AIM_MILLISECONDS);
    return true;
}

// At a JACK server: until the first of the notes that another program keeps playing comes back to it.
bool measureAtServer(const std::string& folder) {
    Host::JackTestServer server;
    if (!server.start(Host::JackTestServer::Cycles::IN_TIME, FRAMES_IN_CYCLE))
        return false;
    std::vector<double> milliseconds;
    for (int i = 0; i < STARTS; ++i) {
        Host::JackTestClient player("player");
        const std::int64_t start = Platform::monotonicMicroseconds();
        RunningProgram program(folder, {"--in", player.output(), "--out", player.input()});
        for (bool isOn = true; player.heard().empty(); isOn = !isOn) {
            player.send({static_cast<std::uint8_t>(isOn ? 0x90 : 0x80), 60, 100});
            Platform::sleepMilliseconds(1);
            if (Platform::monotonicMicroseconds() - start > PATIENCE)
                return false;
        }
        milliseconds.push_back(static_cast<double>(player.heard().front().microseconds - start) / 1000);
    }
    reportSpread("JACK, a note through the desk", milliseconds, "ms", AIM_MILLISECONDS);
    return true;
}

}

int main() {
    const Platform::TemporaryFolder folder;
    if (makeFolders(folder.getPath()) && measureAlone(folder.getPath()) && measureAtServer(folder.getPath()))
        return 0;
    std::fprintf(stderr, "the desk did not play\n");
    return 1;
}
