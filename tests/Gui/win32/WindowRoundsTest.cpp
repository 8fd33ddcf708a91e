// A window that is opened and closed for a whole season in one process.
#include "tests/support/win32/OwnedHandles.h"
#include "tests/support/win32/OwnedMemory.h"
#include "tests/support/win32/WindowDesk.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

using TestSupport::countOwnedMemory;
using TestSupport::OwnedHandles;
using TestSupport::WindowDesk;

DWORD countKernelHandles() {
    DWORD handles = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    return handles;
}

TEST(WindowRoundsTest, NothingGrowsInTwoHundredRounds) {
    constexpr int WARM_UP = 20;
    constexpr int ROUNDS = 200;
    constexpr std::size_t BYTES_A_ROUND = 500;  // What heaps may hold back; the least that is ever leaked is more.
    WindowDesk desk;
    desk.start();
    const auto openAndClose = [&desk] {
        desk.open();
        UpdateWindow(desk.window());
        desk.close();
    };
    for (int i = 0; i < WARM_UP; ++i)
        openAndClose();
    const OwnedHandles handlesBefore = OwnedHandles::count();
    const DWORD kernelHandlesBefore = countKernelHandles();
    desk.host.forgetMessages();
    const std::size_t memoryBefore = countOwnedMemory();
    for (int i = 0; i < ROUNDS; ++i) {
        openAndClose();
        desk.host.forgetMessages();
    }
    const std::size_t memoryAfter = countOwnedMemory();
    const OwnedHandles handlesAfter = OwnedHandles::count();
    EXPECT_EQ(handlesAfter.graphics, handlesBefore.graphics);
    EXPECT_EQ(handlesAfter.windows, handlesBefore.windows);
    EXPECT_EQ(handlesAfter.menus, handlesBefore.menus);
    EXPECT_EQ(countKernelHandles(), kernelHandlesBefore);
    EXPECT_LT(memoryAfter, memoryBefore + ROUNDS * BYTES_A_ROUND);
    RecordProperty("MemoryBefore", static_cast<int>(memoryBefore));
    RecordProperty("MemoryAfter", static_cast<int>(memoryAfter));
}

}
}
