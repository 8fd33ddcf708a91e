// How soon does the window answer while the desk handles ten thousand events a second for twenty seconds?
#include "Platform/MonotonicClock.h"
#include "Platform/Sleep.h"
#include "Platform/TemporaryFolder.h"
#include "benchmarks/Report.h"
#include "benchmarks/win32/BenchWindow.h"

#include <atomic>
#include <thread>

namespace {

using namespace Benchmarks;
using Backend::MidiEngine::MidiMessage;
using Backend::MidiEngine::MirelMidiMessage;

constexpr std::int64_t SECOND = 1000000;
constexpr std::int64_t LENGTH = 20 * SECOND;
constexpr std::int64_t EVENTS_IN_SECOND = 10000;
constexpr double AIM_MILLISECONDS = 100;

std::int64_t now() {
    return Platform::monotonicMicroseconds();
}

// Notes that begin and end, as many as are due at any time.
void pour(BenchDesk& desk, std::int64_t start) {
    constexpr int NOTES = 60;
    constexpr int LOWEST = 30;
    auto& manager = desk.mirel().getMidiEngineMessageManager();
    for (std::int64_t poured = 0; poured < LENGTH / SECOND * EVENTS_IN_SECOND;) {
        for (const std::int64_t due = (now() - start) * EVENTS_IN_SECOND / SECOND; poured < due; ++poured)
            manager.postPlayMidi(MirelMidiMessage(poured % 2 == 0 ? MidiMessage::NoteOn : MidiMessage::NoteOff,
                                                  static_cast<char>(LOWEST + poured / 2 % NOTES), 100));
        Platform::sleepMilliseconds(1);
    }
}

void measure(bool showsLog) {
    const Platform::TemporaryFolder folder;
    BenchDesk desk(folder.getPath(), BenchDesk::Slices::EVERY_MILLISECOND);
    BenchWindow window(desk);
    window.gui().showDisplay(showsLog);
    window.pumpUntilIdle();
    const std::int64_t playedBefore = desk.playedEvents();
    const std::int64_t start = now();
    const HWND handle = window.handle();
    std::vector<double> milliseconds;
    std::atomic<bool> isDone{false};
    std::thread source(pour, std::ref(desk), start);
    std::thread asker([&] {
        while (now() - start < LENGTH) {
            const std::int64_t asked = now();
            SendMessageA(handle, WM_NULL, 0, 0);
            milliseconds.push_back(static_cast<double>(now() - asked) / 1000);
            Platform::sleepMilliseconds(1);
        }
        isDone = true;
    });
    while (!isDone) {
        window.pump();
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 1, QS_ALLINPUT);
    }
    source.join();
    asker.join();
    window.pumpUntilIdle();
    const std::string name = showsLog ? "with the log" : "without the log";
    reportSpread("answer " + name, milliseconds, "ms", AIM_MILLISECONDS);
    report("events played " + name, static_cast<double>(desk.playedEvents() - playedBefore), "");
}

}

int main() {
    measure(true);
    measure(false);
    return 0;
}
