// How long does it take from a key press, through the window, until the desk hands the note to its host?
#include "Platform/MonotonicClock.h"
#include "Platform/Sleep.h"
#include "Platform/TemporaryFolder.h"
#include "benchmarks/Report.h"
#include "benchmarks/win32/BenchWindow.h"

#include <cstdio>

namespace {

using namespace Benchmarks;

constexpr int PRESSES = 1000;

void send(WORD key, bool isDown) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = isDown ? 0 : KEYEVENTF_KEYUP;
    SendInput(1, &input, sizeof(input));
}

}

int main() {
    constexpr std::int64_t PATIENCE = 5000000;
    const Platform::TemporaryFolder folder;
    BenchDesk desk(folder.getPath(), BenchDesk::Slices::EVERY_MILLISECOND);
    BenchWindow window(desk);
    std::vector<double> milliseconds;
    for (int i = 0; i < PRESSES; ++i) {
        const std::int64_t before = desk.playedEvents();
        const std::int64_t pressed = Platform::monotonicMicroseconds();
        send('Q', true);
        while (desk.playedEvents() == before) {
            window.pump();
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 1, QS_ALLINPUT);
            if (Platform::monotonicMicroseconds() - pressed > PATIENCE) {
                std::fprintf(stderr, "the key plays no note\n");
                return 1;
            }
        }
        milliseconds.push_back(static_cast<double>(desk.lastPlayed() - pressed) / 1000);
        send('Q', false);
        while (desk.playedEvents() < before + 2)
            window.pump();
        window.pumpUntilIdle();
        Platform::sleepMilliseconds(2);  // All threads sleep before the next key, as when somebody plays.
    }
    reportSpread("key to note, with slices of a millisecond", milliseconds, "ms");
    return 0;
}
