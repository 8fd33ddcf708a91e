#include "Backend/core/messages/MessageTable.h"

#include "tests/support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Backend {
namespace {

using Numbers = std::vector<int>;

constexpr MessageRange RANGE = {MessageQueueKind::BACKEND, 100, 106};
constexpr Message<101> CLEAR;
constexpr Message<102, bool> SET_FLAG;
constexpr Message<103, Nothing, Heap<Numbers>> SET_NUMBERS;
constexpr SentMessage<104, int> COUNT;
constexpr Message<105, Heap<Numbers>> FORGET;
constexpr auto FAMILY = familyOf<RANGE>(Unused<100, 106>(), CLEAR, SET_FLAG, SET_NUMBERS, COUNT, FORGET);

class Target {
public:
    void clear() { m_calls += "clear "; }
    void setFlag(bool flag) { m_calls += flag ? "on " : "off "; }
    void setInteger(int) {}
    int count(int number) { return number + 1; }

    std::string m_calls;
};

void setNumbers(Target& target, const Numbers& numbers) {
    target.m_calls += std::to_string(numbers.size()) + " ";
}

constexpr MessageTable ROWS(FAMILY, on(CLEAR, &Target::clear), on(SET_FLAG, &Target::setFlag),
                            on(SET_NUMBERS, &setNumbers), on(COUNT, &Target::count), on(FORGET, IGNORED));

struct TakesFlag {
    void operator()(Target&, bool) const {}
};

static_assert(HandlerOf<decltype(&Target::setFlag), Message<102, bool>>);
static_assert(!HandlerOf<decltype(&Target::setInteger), Message<102, bool>>, "a flag is not a number");
static_assert(!HandlerOf<decltype(&Target::clear), Message<102, bool>>);
static_assert(!HandlerOf<decltype(&Target::setFlag), Message<101>>);
static_assert(HandlerOf<decltype(&setNumbers), Message<103, Heap<Numbers>>>);
static_assert(!HandlerOf<decltype(&setNumbers), Message<103, Heap<std::vector<char>>>>);
static_assert(HandlerOf<TakesFlag, Message<102, bool>>);
static_assert(!HandlerOf<TakesFlag, Message<102, int>>);

// A family lists each message of its range once, and a table has a row for each.
static_assert(isFilledBy(RANGE, Unused<100, 106>(), CLEAR, SET_FLAG, SET_NUMBERS, COUNT, FORGET));
static_assert(!isFilledBy(RANGE, Unused<100, 106>(), CLEAR, SET_FLAG, SET_NUMBERS, COUNT), "one is missing");
static_assert(!isFilledBy(RANGE, Unused<100, 105, 106>(), CLEAR, SET_FLAG, SET_NUMBERS, COUNT, FORGET), "two for 105");
static_assert(!isFilledBy(RANGE, Unused<100, 106>(), CLEAR, SET_FLAG, SET_NUMBERS, COUNT, COUNT, FORGET), "twice");
static_assert(!isFilledBy(RANGE, Unused<100, 106>(), CLEAR, SET_FLAG, SET_NUMBERS, COUNT, FORGET, Message<107>()),
              "outside");
static_assert(!isFilledBy(RANGE, Unused<100, 106, 107>(), CLEAR, SET_FLAG, SET_NUMBERS, COUNT, FORGET), "outside");
static_assert(MessageFamily<Message<1>, Message<2>>::isListOf<Message<2>, Message<1>>());
static_assert(!MessageFamily<Message<1>, Message<2>>::isListOf<Message<1>>());
static_assert(!MessageFamily<Message<1>, Message<2>>::isListOf<Message<1>, Message<1>>());
static_assert(!MessageFamily<Message<1>, Message<2>>::isListOf<Message<1>, Message<2, bool>>());

MSG message(UINT number, WPARAM wParam, LPARAM lParam) {
    MSG message{};
    message.message = number;
    message.wParam = wParam;
    message.lParam = lParam;
    return message;
}

TEST(MessageTableTest, EachMessageIsCarriedOutByItsRow) {
    Target target;
    int answer = 0;
    const Numbers numbers(3);
    EXPECT_TRUE(ROWS.handle(target, 102, 7, 0, answer));
    EXPECT_TRUE(ROWS.handle(target, 101, 0, 0, answer));
    EXPECT_TRUE(ROWS.handle(target, 102, 0, 7, answer));
    SET_NUMBERS.post([&](UINT n, WPARAM w, LPARAM l) { EXPECT_TRUE(ROWS.handle(target, n, w, l, answer)); }, numbers);
    EXPECT_EQ(target.m_calls, "on clear off 3 ");
    EXPECT_EQ(answer, 0);
    EXPECT_TRUE(ROWS.handle(target, 104, 41, 0, answer));
    EXPECT_EQ(answer, 42);
}

TEST(MessageTableTest, NumbersWithoutAMessageDoNothing) {
    Target target;
    int answer = 0;
    for (const UINT number : {0u, 99u, 100u, 106u, 107u}) {
        EXPECT_FALSE(ROWS.handle(target, number, ~WPARAM{0}, -1, answer));
        EXPECT_FALSE(FAMILY.open(number, ~WPARAM{0}, -1, [](const auto&...) { FAIL(); }));
        EXPECT_FALSE(FAMILY.dispose(message(number, ~WPARAM{0}, -1)));
    }
    EXPECT_EQ(target.m_calls, "");
}

TEST(MessageTableTest, WhatAMessageBringsIsDestroyedHoweverItEnds) {
    Target target;
    int answer = 0;
    const Numbers numbers(50);
    const TestSupport::AllocationCounter heap;
    FORGET.post([&](UINT n, WPARAM w, LPARAM l) { EXPECT_TRUE(ROWS.handle(target, n, w, l, answer)); }, numbers);
    FORGET.post([&](UINT n, WPARAM w, LPARAM l) { EXPECT_TRUE(FAMILY.dispose(message(n, w, l))); }, numbers);
    FORGET.post([&](UINT n, WPARAM w, LPARAM l) { EXPECT_TRUE(FAMILY.open(n, w, l, [](const auto&...) {})); }, numbers);
    EXPECT_EQ(heap.unreturned(), 0);
}

TEST(MessageTableTest, OnlySendersOfSentMessagesWait) {
    EXPECT_TRUE(FAMILY.isSent(104));
    for (const UINT number : {99u, 100u, 101u, 102u, 103u, 105u})
        EXPECT_FALSE(FAMILY.isSent(number)) << number;
}

}
}
