// How much memory and how many system objects does a desk hold while its window shows and nothing happens?
#include "Platform/TemporaryFolder.h"
#include "benchmarks/Report.h"
#include "benchmarks/win32/BenchWindow.h"
#include "tests/support/win32/OwnedHandles.h"

#include <psapi.h>

int main() {
    using namespace Benchmarks;
    constexpr double MEBIBYTE = 1024 * 1024;
    const Platform::TemporaryFolder folder;
    BenchDesk desk(folder.getPath(), BenchDesk::Slices::EVERY_MILLISECOND);
    BenchWindow window(desk);
    PROCESS_MEMORY_COUNTERS memory = {};
    GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof(memory));
    const auto owned = TestSupport::OwnedHandles::count();
    report("resident", static_cast<double>(memory.WorkingSetSize) / MEBIBYTE, "MiB");
    report("private", static_cast<double>(memory.PagefileUsage) / MEBIBYTE, "MiB");
    report("graphics objects", owned.graphics, "");
    report("windows", owned.windows, "");
    report("menus", owned.menus, "");
    return 0;
}
