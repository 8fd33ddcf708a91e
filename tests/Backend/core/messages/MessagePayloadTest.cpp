#include "Backend/core/messages/MessagePayload.h"

#include "tests/support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Backend {
namespace {

enum class Mode : std::int32_t { FIRST = -1, SECOND = 7 };

class Switch {
public:
    enum State : std::int32_t { off, on };
    explicit Switch(State state) : m_state(state) {}
    State getState() const { return m_state; }

private:
    State m_state;
};

TEST(MessagePayloadTest, NumbersAndEnumeratorsAreTheWord) {
    EXPECT_EQ(Carried<int>::put<WPARAM>(-1), ~WPARAM{0});
    EXPECT_EQ(Carried<int>::put<LPARAM>(-300), -300);
    EXPECT_EQ(Carried<Mode>::put<WPARAM>(Mode::FIRST), ~WPARAM{0});
    EXPECT_EQ(Carried<Mode>::get(LPARAM{7}), Mode::SECOND);
    EXPECT_EQ(Carried<int>::get(~WPARAM{0}), -1);
}

TEST(MessagePayloadTest, TheLowPartOfAWordIsTheNumber) {
    EXPECT_EQ(Carried<int>::get(WPARAM{0x7fffffff80000005}), -2147483643);
    EXPECT_EQ(Carried<char>::get(LPARAM{0x1ff}), static_cast<char>(0xff));
}

TEST(MessagePayloadTest, AnyWordButZeroIsTrue) {
    EXPECT_EQ(Carried<bool>::put<WPARAM>(true), 1u);
    EXPECT_EQ(Carried<bool>::put<LPARAM>(false), 0);
    EXPECT_TRUE(Carried<bool>::get(WPARAM{0x100000000}));
    EXPECT_TRUE(Carried<bool>::get(LPARAM{-1}));
    EXPECT_FALSE(Carried<bool>::get(LPARAM{0}));
}

TEST(MessagePayloadTest, AToggleIsItsState) {
    EXPECT_EQ(Carried<State<Switch>>::put<LPARAM>(Switch(Switch::on)), 1);
    EXPECT_EQ(Carried<State<Switch>>::get(WPARAM{1}).getState(), Switch::on);
}

TEST(MessagePayloadTest, WhatIsNotOwnedMayBeNull) {
    int object = 5;
    using Pointer = Carried<int*>;
    EXPECT_EQ(Pointer::get(Pointer::put<WPARAM>(&object)), &object);
    EXPECT_EQ(Pointer::put<LPARAM>(nullptr), 0);
    EXPECT_TRUE(Pointer::has(LPARAM{0}));
    Pointer::drop(Pointer::put<WPARAM>(&object));
    EXPECT_EQ(object, 5);
}

TEST(MessagePayloadTest, ACopyOnTheHeapIsAnObjectOfItsOwn) {
    using Copy = Carried<Heap<std::string>>;
    std::string original = "a text that is too long for a string to hold it inside";
    const std::string expected = original;
    const auto word = Copy::put<LPARAM>(original);
    original = "another";
    EXPECT_TRUE(Copy::has(word));
    EXPECT_EQ(static_cast<const std::string&>(Copy::get(word)), expected);
    Copy::drop(word);
}

TEST(MessagePayloadTest, AHandlerMayTakeTheCopyAway) {
    using Copy = Carried<Heap<std::vector<int>>>;
    const auto word = Copy::put<WPARAM>({1, 2, 3});
    const std::vector<int> taken = Copy::get(word);
    EXPECT_EQ(taken, (std::vector<int>{1, 2, 3}));
    Copy::drop(word);
}

TEST(MessagePayloadTest, ADroppedCopyGoesBackToTheHeap) {
    using Copy = Carried<Heap<std::vector<int>>>;
    const std::vector<int> original(50);
    const TestSupport::AllocationCounter heap;
    Copy::drop(Copy::put<WPARAM>(original));
    EXPECT_EQ(heap.count(), 2u);
    EXPECT_EQ(heap.unreturned(), 0);
}

TEST(MessagePayloadTest, AWordOfZeroHasNoCopy) {
    EXPECT_FALSE(Carried<Heap<int>>::has(LPARAM{0}));
    Carried<Heap<int>>::drop(WPARAM{0});
}

}
}
