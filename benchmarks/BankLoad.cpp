// How long does it take to load a bank of 128 full programs?
#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/files/Bank.h"
#include "Platform/Files.h"
#include "Platform/MonotonicClock.h"
#include "Platform/TemporaryFolder.h"
#include "benchmarks/BenchDesk.h"
#include "benchmarks/FullBank.h"
#include "benchmarks/Report.h"

#include <cstdio>

int main() {
    using namespace Benchmarks;
    constexpr std::size_t PROGRAMS = 128;
    constexpr int LOADS = 30;
    constexpr double MEBIBYTE = 1 << 20;
    const Platform::TemporaryFolder folder;
    const std::string bank = Platform::Files::join(folder.getPath(), "full.bnk");
    const std::string text = makeFullBank(PROGRAMS);
    if (!Platform::Files::replace(bank, text))
        return 1;
    BenchDesk desk(folder.getPath(), BenchDesk::Slices::EVERY_MILLISECOND);
    std::vector<double> milliseconds;
    for (int i = 0; i < LOADS; ++i) {
        const std::int64_t start = Platform::monotonicMicroseconds();
        desk.mirel().getMessageManager().postLoadBank(bank);
        desk.waitUntilIdle();
        milliseconds.push_back(static_cast<double>(Platform::monotonicMicroseconds() - start) / 1000);
    }
    if (desk.mirel().getCurrentBank().getProgramNames().size() != PROGRAMS) {
        std::fprintf(stderr, "the bank was not loaded\n");
        return 1;
    }
    report("size of the bank", static_cast<double>(text.size()) / MEBIBYTE, "MiB");
    reportSpread("from the request until the first program plays", milliseconds, "ms");
    return 0;
}
