// How long does it take to repaint the whole window?
#include "Platform/MonotonicClock.h"
#include "Platform/TemporaryFolder.h"
#include "benchmarks/Report.h"
#include "benchmarks/win32/BenchWindow.h"

int main() {
    using namespace Benchmarks;
    constexpr int TIMES = 300;
    const Platform::TemporaryFolder folder;
    BenchDesk desk(folder.getPath(), BenchDesk::Slices::EVERY_MILLISECOND);
    BenchWindow window(desk);
    std::vector<double> milliseconds;
    for (int i = 0; i < TIMES; ++i) {
        const std::int64_t start = Platform::monotonicMicroseconds();
        RedrawWindow(window.frame(), nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
        GdiFlush();
        milliseconds.push_back(static_cast<double>(Platform::monotonicMicroseconds() - start) / 1000);
        window.pumpUntilIdle();
    }
    reportSpread("all screens", milliseconds, "ms");
    return 0;
}
