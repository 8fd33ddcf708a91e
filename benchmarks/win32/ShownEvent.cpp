// What does an event shown in the window cost, on the window's thread and until its line is in the log?
#include "Platform/MonotonicClock.h"
#include "Platform/TemporaryFolder.h"
#include "benchmarks/Report.h"
#include "benchmarks/win32/BenchWindow.h"

int main() {
    using namespace Benchmarks;
    using Backend::MidiEngine::MidiMessage;
    using Backend::MidiEngine::MirelMidiMessage;
    constexpr int ROUNDS = 30;
    constexpr int EVENTS = 1000;
    const Platform::TemporaryFolder folder;
    BenchDesk desk(folder.getPath(), BenchDesk::Slices::EVERY_MILLISECOND);
    BenchWindow window(desk);
    std::vector<double> told;
    std::vector<double> shown;
    for (int round = 0; round < ROUNDS; ++round) {
        const std::int64_t start = Platform::monotonicMicroseconds();
        for (int i = 0; i < EVENTS; ++i)
            window.gui().displayMidiOutputEvent(
                MirelMidiMessage(i % 2 == 0 ? MidiMessage::NoteOn : MidiMessage::NoteOff, 60, 100,
                                 {.output = 0, .channel = 0, .zone = 0}));
        told.push_back(static_cast<double>(Platform::monotonicMicroseconds() - start) / EVENTS);
        desk.mirel().getDisplayMessageManager().postFlush();
        window.pumpUntilIdle();
        shown.push_back(static_cast<double>(Platform::monotonicMicroseconds() - start) / EVENTS);
    }
    reportSpread("on the window's thread, of 1,000 events each", told, "us");
    reportSpread("until it stands in the log, of 1,000 events each", shown, "us");
    return 0;
}
