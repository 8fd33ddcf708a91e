#include "Backend/core/messages/Message.h"

#include "tests/support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Backend {
namespace {

using Numbers = std::vector<int>;

constexpr Message<100> PLAIN;
constexpr Message<101, bool> FLAG;
constexpr Message<102, Nothing, int> NUMBER;
constexpr Message<103, Heap<Numbers>, bool> NUMBERS;
constexpr Message<104, Heap<std::string>, Heap<Numbers>> BOTH;
constexpr SentMessage<105, Heap<Numbers>> SENT;

struct Pair {
    Pair(std::uint64_t first, std::int64_t second) : m_first(first), m_second(second) {}
    std::uint64_t getWparam() const { return m_first; }
    std::int64_t getLparam() const { return m_second; }

    std::uint64_t m_first;
    std::int64_t m_second;
};

constexpr Message<106, BothWords<Pair>> PAIR;

struct Posted {
    UINT number = 0;
    WPARAM w = 0;
    LPARAM l = 0;

    void operator()(UINT n, WPARAM wParam, LPARAM lParam) { *this = {n, wParam, lParam}; }
    bool operator==(const Posted& other) const { return number == other.number && w == other.w && l == other.l; }
};

template <class Row, class... Values>
Posted post(Row row, const Values&... values) {
    Posted posted;
    EXPECT_TRUE(row.post(posted, values...));
    return posted;
}

// Whether these values compile as what a message carries.
template <class Row, class... Values>
concept Carries = requires(Row row, Posted& posted, const Values&... values) {
    row.post(posted, values...);
};

static_assert(Carries<decltype(PLAIN)>);
static_assert(!Carries<decltype(PLAIN), int>);
static_assert(Carries<decltype(FLAG), bool>);
static_assert(!Carries<decltype(FLAG)>);
static_assert(!Carries<decltype(FLAG), int>, "a number is not a flag");
static_assert(!Carries<decltype(FLAG), bool, bool>);
static_assert(!Carries<decltype(NUMBER), bool>, "a flag is not a number");
static_assert(!Carries<decltype(NUMBER), char>);
static_assert(Carries<decltype(NUMBERS), Numbers, bool>);
static_assert(!Carries<decltype(NUMBERS), bool, Numbers>, "the words in their order");
static_assert(!Carries<decltype(NUMBERS), std::vector<char>, bool>);
static_assert(!Carries<decltype(NUMBERS), Numbers*, bool>);
static_assert(!Carries<decltype(BOTH), const char*, Numbers>);
static_assert(Carries<decltype(PAIR), Pair>);
static_assert(!Carries<decltype(PAIR), Pair, int>);
static_assert(!PLAIN.IS_SENT);
static_assert(SENT.IS_SENT);
static_assert(SENT.NUMBER == 105);

TEST(MessageTest, ValuesStandInTheirWords) {
    EXPECT_EQ(post(PLAIN), (Posted{100, 0, 0}));
    EXPECT_EQ(post(FLAG, true), (Posted{101, 1, 0}));
    EXPECT_EQ(post(NUMBER, -5), (Posted{102, 0, -5}));
    EXPECT_EQ(post(PAIR, Pair(7, -9)), (Posted{106, 7, -9}));
}

TEST(MessageTest, WhatWasPostedIsOpenedOnce) {
    const std::string text = "a text that is too long for a string to hold it inside";
    const Numbers numbers(50, 3);
    const TestSupport::AllocationCounter heap;

    const Posted posted = post(BOTH, text, numbers);
    EXPECT_EQ(heap.count(), 4u);

    int calls = 0;
    BOTH.open(posted.w, posted.l, [&](const std::string& first, const Numbers& second) {
        ++calls;
        EXPECT_TRUE(first == text);
        EXPECT_TRUE(second == numbers);
    });
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(heap.unreturned(), 0);
}

TEST(MessageTest, WhatIsNotHandledIsDisposedOf) {
    const std::string text = "a text that is too long for a string to hold it inside";
    const Numbers numbers(50);
    const TestSupport::AllocationCounter heap;
    for (const Posted& posted : {post(NUMBERS, numbers, true), post(SENT, numbers)})
        NUMBERS.dispose(posted.w, posted.l);
    const Posted both = post(BOTH, text, numbers);
    BOTH.dispose(both.w, both.l);
    PLAIN.dispose(1, 1);
    PAIR.dispose(1, 1);
    EXPECT_EQ(heap.unreturned(), 0);
}

TEST(MessageTest, WhatIsNotTakenIsDestroyed) {
    const Numbers numbers(50);
    const TestSupport::AllocationCounter heap;
    EXPECT_FALSE(NUMBERS.post([](UINT, WPARAM, LPARAM) { return false; }, numbers, true));
    EXPECT_EQ(heap.unreturned(), 0);
}

TEST(MessageTest, WhatIsTakenBelongsToTheReceiver) {
    const Numbers numbers(50, 1);
    Posted posted;
    const auto take = [&posted](UINT number, WPARAM w, LPARAM l) {
        posted = {number, w, l};
        return true;
    };
    EXPECT_TRUE(NUMBERS.post(take, numbers, true));
    NUMBERS.open(posted.w, posted.l, [](Numbers&& given, bool flag) {
        const Numbers taken = std::move(given);
        EXPECT_EQ(taken, Numbers(50, 1));
        EXPECT_TRUE(flag);
    });
}

TEST(MessageTest, ACopyThatFailsLeavesNothingBehind) {
    struct Reluctant {
        Reluctant() = default;
        Reluctant(const Reluctant&) { throw 5; }
    };
    constexpr Message<107, Heap<Numbers>, Heap<Reluctant>> MESSAGE;
    const Numbers numbers(50);
    const TestSupport::AllocationCounter heap;
    EXPECT_THROW(post(MESSAGE, numbers, Reluctant()), int);
    EXPECT_EQ(heap.unreturned(), 0);
}

TEST(MessageTest, AMessageWithoutItsCopyIsNotHandled) {
    const std::string text = "a text that is too long for a string to hold it inside";
    const TestSupport::AllocationCounter heap;
    const auto fail = [](const std::string&, const Numbers&) { FAIL(); };
    BOTH.open(0, 0, fail);
    BOTH.open(Carried<Heap<std::string>>::put<WPARAM>(text), 0, fail);
    EXPECT_EQ(heap.unreturned(), 0);
}

}
}
