#pragma once

#include <chrono>
#include <thread>

namespace TestSupport {

// Polls until the condition holds. False after a limit that only a hang reaches.
template <class Condition>
bool eventually(Condition condition) {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > limit)
            return false;
        std::this_thread::yield();
    }
    return true;
}

}
