// How long does a change of program take while the player runs, from the reset until everything is rebuilt?
#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/files/Bank.h"
#include "Backend/core/files/Program.h"
#include "Backend/functions/values/SelectType.h"
#include "Platform/Files.h"
#include "Platform/MonotonicClock.h"
#include "Platform/TemporaryFolder.h"
#include "benchmarks/BenchDesk.h"
#include "benchmarks/FullBank.h"
#include "benchmarks/Report.h"

#include <cstdio>

namespace {

using namespace Benchmarks;

constexpr int CHANGES = 200;
constexpr int PROGRAMS = 8;  // The whole bank is read for one program of it; BankLoad measures how the size matters.

// False if the desk did not do what was asked.
bool measure(const std::string& folder, BenchDesk::Slices slices, const char* name, std::optional<double> aim) {
    const std::string bank = Platform::Files::join(folder, "full.bnk");
    if (!Platform::Files::replace(bank, makeFullBank(PROGRAMS)))
        return false;
    BenchDesk desk(folder, slices);
    desk.mirel().getMessageManager().postLoadBank(bank);
    desk.waitUntilIdle();
    std::vector<double> milliseconds;
    std::vector<double> awaited;
    for (int i = 0; i < CHANGES; ++i) {
        const int program = (i + 1) % PROGRAMS;
        const std::int64_t slicesBefore = desk.awaitedSlices();
        const std::int64_t start = Platform::monotonicMicroseconds();
        desk.mirel().getMessageManager().postChangeProgram(SelectType(SelectType::SPECIFIC, program));
        desk.waitUntilIdle();
        milliseconds.push_back(static_cast<double>(Platform::monotonicMicroseconds() - start) / 1000);
        awaited.push_back(static_cast<double>(desk.awaitedSlices() - slicesBefore));
        if (desk.mirel().getCurrentProgram().getIndex() != program)
            return false;
    }
    reportSpread(name, milliseconds, "ms", aim);
    report(std::string(name) + ", slices waited for", percentile(awaited, 50), "");
    return true;
}

}

int main() {
    constexpr double AIM_MILLISECONDS = 10;
    const Platform::TemporaryFolder folder;
    if (measure(folder.getPath(), BenchDesk::Slices::EVERY_MILLISECOND, "a slice every millisecond", std::nullopt) &&
        measure(folder.getPath(), BenchDesk::Slices::WITHOUT_PAUSE, "slices without a pause", AIM_MILLISECONDS))
        return 0;
    std::fprintf(stderr, "the program was not changed\n");
    return 1;
}
