#include "Backend/midi/SpareMessages.h"

#include "tests/support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace Backend::MidiEngine {
namespace {

using Given = std::unique_ptr<MirelMidiMessage>;

MirelMidiMessage numbered(int number) {
    return {MidiMessage::NoteOn, static_cast<char>(number % 128), static_cast<char>(number / 128 % 128)};
}

int numberOf(const MirelMidiMessage& message) {
    return message.getD1() + 128 * message.getD2();
}

TEST(SpareMessagesTest, AsManyAsThereAreAreGivenWithoutTheHeap) {
    SpareMessages spares;
    std::vector<Given> given;
    given.reserve(SpareMessages::CAPACITY + 1);
    const auto keep = [&given](Given& message) {
        given.push_back(std::move(message));
        return true;
    };
    std::size_t taken = 0;
    bool isLeft = true;
    {
        const TestSupport::AllocationCounter counter;
        for (std::size_t i = 0; i < SpareMessages::CAPACITY; ++i)
            isLeft = isLeft && spares.give(numbered(static_cast<int>(i)), keep);
        taken = counter.count();
    }

    EXPECT_TRUE(isLeft);
    EXPECT_EQ(taken, 0u);
    EXPECT_FALSE(spares.give(numbered(1), keep)) << "none is left";
    ASSERT_EQ(given.size(), SpareMessages::CAPACITY);
    for (std::size_t i = 0; i < given.size(); ++i)
        EXPECT_EQ(numberOf(*given[i]), static_cast<int>(i));

    spares.refill();
    EXPECT_TRUE(spares.give(numbered(5), keep));
    EXPECT_EQ(numberOf(*given.back()), 5);
}

TEST(SpareMessagesTest, OneThatIsNotTakenOverStays) {
    SpareMessages spares;
    for (std::size_t i = 0; i < 2 * SpareMessages::CAPACITY; ++i)
        ASSERT_FALSE(spares.give(numbered(1), [](Given&) { return false; }));

    Given given;
    EXPECT_TRUE(spares.give(numbered(7), [&given](Given& message) {
        given = std::move(message);
        return true;
    }));
    EXPECT_EQ(numberOf(*given), 7);
}

TEST(SpareMessagesTest, OneThreadRefillsWhileAnotherGives) {
    SpareMessages spares;
    constexpr int COUNT = 10000;
    std::vector<Given> given;
    given.reserve(COUNT);
    std::atomic<bool> isDone{false};
    std::thread maker([&] {
        while (!isDone) {
            spares.refill();
            std::this_thread::yield();
        }
    });

    while (given.size() < COUNT) {
        const auto keep = [&given](Given& message) {
            given.push_back(std::move(message));
            return true;
        };
        if (!spares.give(numbered(static_cast<int>(given.size())), keep))
            std::this_thread::yield();
    }
    isDone = true;
    maker.join();

    for (int i = 0; i < COUNT; ++i)
        ASSERT_EQ(numberOf(*given[static_cast<std::size_t>(i)]), i);
}

}
}
