#include "Backend/core/trace/DbgStream.h"

#include "tests/support/CapturedDebugText.h"

#include <gtest/gtest.h>

namespace WindowsLib {
namespace {

using TestSupport::CapturedDebugText;
using Texts = std::vector<std::string>;

TEST(DbgStreamTest, FlushPassesTheTextOnAndEmptiesTheBuffer) {
    const CapturedDebugText debug;
    DbgStream stream;
    stream << "one " << 2;
    EXPECT_TRUE(debug.texts().empty());
    stream << std::endl;
    EXPECT_EQ(debug.texts(), (Texts{"one 2\n"}));
    stream << "three" << std::flush;
    EXPECT_EQ(debug.texts(), (Texts{"one 2\n", "three"}));
    EXPECT_EQ(stream.buffer().str(), "");
}

TEST(DbgStreamTest, DisabledBufferDiscardsItsText) {
    const CapturedDebugText debug;
    DbgStream stream;
    EXPECT_TRUE(stream.buffer().isEnabled());
    stream.buffer().setEnabled(false);
    stream << "gone" << std::flush;
    EXPECT_EQ(stream.buffer().str(), "");
    stream.buffer().setEnabled(true);
    stream << "kept" << std::flush;
    EXPECT_EQ(debug.texts(), (Texts{"kept"}));
}

TEST(DbgStreamTest, WhatIsLeftGoesOutAtTheEnd) {
    const CapturedDebugText debug;
    {
        DbgStream stream;
        stream << "left";
    }
    EXPECT_EQ(debug.texts(), (Texts{"left"}));
}

TEST(DbgStreamTest, ProgramHasOneStream) {
    EXPECT_EQ(&DbgStream::instance(), &DbgStream::instance());
    EXPECT_TRUE(DbgStream::instance().buffer().isEnabled());
}

}
}
