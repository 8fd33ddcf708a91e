#include "Backend/core/trace/Trace.h"

#include "Platform/DebugSink.h"
#include "Platform/Files.h"
#include "Platform/MessageThread.h"
#include "tests/support/CapturedDebugText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <thread>
#include <vector>

namespace Backend {
namespace {

using TestSupport::CapturedDebugText;
using Lines = std::vector<std::string>;

std::string content(const std::string& path) {
    return Platform::Files::read(path).value_or("");
}

TEST(TraceTest, ChannelStartsSilentWithItsName) {
    const Trace trace;
    EXPECT_EQ(trace.getName(), "MIREL_TRACE");
    EXPECT_FALSE(trace.isEnabled());
    EXPECT_FALSE(trace.writesToFile());
    EXPECT_FALSE(Trace::channel().isEnabled());
    EXPECT_FALSE(Trace::channel().writesToFile());
    EXPECT_EQ(&Trace::channel(), &Trace::channel());
}

TEST(TraceTest, LineNamesPlaceAndText) {
    const CapturedDebugText debug;
    Trace trace;
    trace.setEnabled(true);
    trace.trace("src\\Gui\\MirelGui", 12, "Gui::MirelGui::create", "IN");
    trace.trace("src\\Gui\\MirelGui", 99, "Gui::MirelGui::create", "OUT");
    EXPECT_EQ(debug.texts(), (Lines{"MIREL_TRACE: src\\Gui\\MirelGui:12 -- Gui::MirelGui::create -- IN\n",
                                    "MIREL_TRACE: src\\Gui\\MirelGui:99 -- Gui::MirelGui::create -- OUT\n"}));
}

TEST(TraceTest, EmptyTextLeavesOutItsSeparator) {
    const CapturedDebugText debug;
    Trace trace;
    trace.setEnabled(true);
    trace.trace("a", -1, "f", "");
    EXPECT_EQ(debug.texts(), (Lines{"MIREL_TRACE: a:-1 -- f\n"}));
}

TEST(TraceTest, EmptyNameLeavesOutThePrefix) {
    const CapturedDebugText debug;
    Trace trace;
    trace.setEnabled(true);
    trace.setName("");
    trace.trace("a", 1, "f", "IN");
    trace.setName("X");
    trace.trace("a", 1, "f", "IN");
    EXPECT_EQ(debug.texts(), (Lines{"a:1 -- f -- IN\n", "X: a:1 -- f -- IN\n"}));
}

TEST(TraceTest, FailedAssertionIsOneLine) {
    const CapturedDebugText debug;
    Trace trace;
    trace.setEnabled(true);
    trace.traceAssert("src\\Gui\\Utils\\Panel", 7, "Panel::changeSize", "rval != FALSE", true);
    EXPECT_TRUE(debug.texts().empty());
    trace.traceAssert("src\\Gui\\Utils\\Panel", 7, "Panel::changeSize", "rval != FALSE", false);
    EXPECT_EQ(debug.texts(), (Lines{"MIREL_TRACE: src\\Gui\\Utils\\Panel:7 -- Panel::changeSize -- "
                                    "TRACE ASSERT FAILED: rval != FALSE\n"}));
}

TEST(TraceTest, DisabledChannelWritesNothing) {
    const CapturedDebugText debug;
    Trace trace;
    trace.setWriteToFile(true);
    trace.trace("disabled", 1, "f", "IN");
    trace.traceAssert("disabled", 1, "f", "x", false);
    EXPECT_TRUE(debug.texts().empty());
    EXPECT_EQ(content(Platform::debugFilePath()).find("disabled"), std::string::npos);
}

TEST(TraceTest, LinesGoToTheFileTooWhenAsked) {
    const CapturedDebugText debug;
    Trace trace;
    trace.setEnabled(true);
    // A unique place, because all tests share the file.
    const std::string place = "unique-" + std::to_string(reinterpret_cast<std::uintptr_t>(&trace)) + "-" +
                              std::to_string(Platform::currentThreadId());

    trace.trace(place, 1, "f", "IN");
    EXPECT_EQ(content(Platform::debugFilePath()).find(place), std::string::npos) << "not asked yet";

    trace.setWriteToFile(true);
    trace.trace(place, 2, "f", "IN");
    trace.trace(place, 3, "f", "OUT");
    const std::string text = content(Platform::debugFilePath());

    for (const char* line : {":2 -- f -- IN\n", ":3 -- f -- OUT\n"}) {
        const std::string whole = Platform::Files::withSystemLineEnds("MIREL_TRACE: " + place + line);
        EXPECT_NE(text.find(whole), std::string::npos) << line;
    }

    EXPECT_EQ(debug.texts().size(), 3u);
}

TEST(TraceTest, LinesOfSeveralThreadsStayWhole) {
    const CapturedDebugText debug;
    Trace trace;
    trace.setEnabled(true);

    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&trace] {
            for (int line = 0; line < 200; ++line)
                trace.trace("file", 5, "function", "text");
        });
    }

    for (std::thread& thread : threads)
        thread.join();
    const Lines lines = debug.texts();
    EXPECT_EQ(lines.size(), 800u);
    EXPECT_TRUE(std::all_of(lines.begin(), lines.end(), [](const std::string& line) {
        return line == "MIREL_TRACE: file:5 -- function -- text\n";
    }));
}

}
}
