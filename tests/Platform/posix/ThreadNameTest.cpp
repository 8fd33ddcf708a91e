#include "Platform/MessageThread.h"

#include <gtest/gtest.h>
#include <pthread.h>

#include <string>

namespace Platform {
namespace {

std::string nameInside(const char* name) {
    std::string seen;
    MessageThread thread;
    thread.start(name, [&] {
        char text[64] = {};
        pthread_getname_np(pthread_self(), text, sizeof(text));
        seen = text;
    });
    thread.join();
    return seen;
}

TEST(PosixThreadNameTest, ThreadHasItsNameFromTheBeginning) {
    EXPECT_EQ(nameInside("mirel backend"), "mirel backend");
}

TEST(PosixThreadNameTest, LongNameIsCut) {
    EXPECT_EQ(nameInside("123456789012345678"), "123456789012345");
}

}
}
