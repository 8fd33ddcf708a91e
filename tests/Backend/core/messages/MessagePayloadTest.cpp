#include "Backend/core/messages/MessagePayload.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Backend {
namespace {

TEST(MessagePayloadTest, ObjectComesBackFromEitherWord) {
    const WPARAM first = releasePayload<WPARAM>(std::make_unique<std::string>("one"));
    const LPARAM second = releasePayload<LPARAM>(std::make_unique<std::vector<int>>(3, 7));
    EXPECT_EQ(*takePayload<std::string>(first), "one");
    EXPECT_EQ(*takePayload<std::vector<int>>(second), std::vector<int>(3, 7));
}

TEST(MessagePayloadTest, NullTravelsAsZero) {
    EXPECT_EQ(releasePayload<WPARAM>(std::unique_ptr<int>()), 0u);
    EXPECT_EQ(takePayload<int>(LPARAM{0}), nullptr);
}

TEST(MessagePayloadTest, CopyIsAnObjectOfItsOwn) {
    std::string original = "seven";
    const auto word = releaseCopy<LPARAM>(original);
    original = "eight";
    EXPECT_EQ(*takePayload<std::string>(word), "seven");
}

}
}
