#include "Platform/AddressWait.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace Platform {
namespace {

TEST(AddressWaitTest, ReturnsAtOnceIfTheWordDiffers) {
    const std::atomic<std::uint32_t> word{7};
    waitWhileEqual(word, 6);
}

TEST(AddressWaitTest, SleepersReturnOnceTheWordHasChangedAndTheyAreWoken) {
    std::atomic<std::uint32_t> word{0};
    const auto sleep = [&word] {
        while (word.load() == 0)
            waitWhileEqual(word, 0);
    };

    std::thread one(sleep);
    word.store(1);
    wakeOne(word);
    one.join();
    word.store(0);
    std::vector<std::thread> several;
    for (int i = 0; i < 4; ++i)
        several.emplace_back(sleep);
    word.store(2);
    wakeAll(word);

    for (std::thread& thread : several)
        thread.join();
    EXPECT_EQ(word.load(), 2u);
}

}
}
