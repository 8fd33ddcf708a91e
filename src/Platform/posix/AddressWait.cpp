#include "Platform/AddressWait.h"

namespace Platform {

void waitWhileEqual(const std::atomic<std::uint32_t>& word, std::uint32_t value) {
    word.wait(value);
}

void wakeOne(std::atomic<std::uint32_t>& word) {
    word.notify_one();
}

void wakeAll(std::atomic<std::uint32_t>& word) {
    word.notify_all();
}

}
