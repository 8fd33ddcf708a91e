// A window that is opened and closed in one process as often as in a whole season.
#include "tests/support/win32/OwnedHandles.h"
#include "tests/support/win32/OwnedMemory.h"
#include "tests/support/win32/WindowDesk.h"

#include <gtest/gtest.h>

namespace Gui {
namespace {

using TestSupport::countOwnedMemory;
using TestSupport::OwnedHandles;
using TestSupport::WindowDesk;

// GetProcessHandleCount counts nothing here, so the numbers that handles have are tried, from the lowest.
int countKernelHandles() {
    constexpr ULONG_PTR STEP = 4;
    constexpr ULONG_PTR END = 0x8000;
    int handles = 0;
    for (ULONG_PTR number = STEP; number < END; number += STEP) {
        DWORD flags = 0;
        handles += GetHandleInformation(reinterpret_cast<HANDLE>(number), &flags) != FALSE;
    }
    return handles;
}

TEST(WindowRoundsTest, WhatIsLeftIsSeen) {
    const int handles = countKernelHandles();
    const std::size_t memory = countOwnedMemory();
    const HANDLE event = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    void* const block = HeapAlloc(GetProcessHeap(), 0, 5000);
    EXPECT_EQ(countKernelHandles(), handles + 1);
    EXPECT_GE(countOwnedMemory(), memory + 5000);
    HeapFree(GetProcessHeap(), 0, block);
    CloseHandle(event);
    EXPECT_EQ(countKernelHandles(), handles);
    EXPECT_LT(countOwnedMemory(), memory + 5000);
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
    const int kernelHandlesBefore = countKernelHandles();
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
    EXPECT_LT(countKernelHandles(), kernelHandlesBefore + ROUNDS / 10);  // The system keeps a few.
    EXPECT_LT(memoryAfter, memoryBefore + ROUNDS * BYTES_A_ROUND);
    RecordProperty("MemoryBefore", static_cast<int>(memoryBefore));
    RecordProperty("MemoryAfter", static_cast<int>(memoryAfter));
}

}
}
