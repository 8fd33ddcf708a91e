#include "Platform/DebugSink.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Platform {
namespace {

TEST(DebugSinkTest, SetSinkGetsEachTextInOneCall) {
    std::vector<std::string> texts;
    setDebugSink([&](const std::string& text) { texts.push_back(text); });
    writeDebugText("one\ntwo\n");
    writeDebugText("");
    setDebugSink({});
    writeDebugText("");
    const std::vector<std::string> expected = {"one\ntwo\n", ""};
    EXPECT_EQ(texts, expected);
}

TEST(DebugSinkTest, DebugFileHasAName) {
    EXPECT_FALSE(debugFilePath().empty());
}

}
}
