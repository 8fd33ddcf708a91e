#include "Platform/DebugSink.h"

#include <gtest/gtest.h>

namespace Platform {
namespace {

TEST(WindowsDebugSinkTest, DebugFileIsAtTheTopOfTheDrive) {
    EXPECT_EQ(debugFilePath(), "c:\\dbg.txt");
}

}
}
