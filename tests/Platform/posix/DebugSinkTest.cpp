#include "Platform/DebugSink.h"

#include <gtest/gtest.h>

namespace Platform {
namespace {

TEST(PosixDebugSinkTest, TextGoesToStandardError) {
    testing::internal::CaptureStderr();
    writeDebugText("a line\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "a line\n");
}

}
}
