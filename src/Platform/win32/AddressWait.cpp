#include "Platform/AddressWait.h"

#include <windows.h>

namespace Platform {

static_assert(sizeof(std::atomic<std::uint32_t>) == sizeof(std::uint32_t));

void waitWhileEqual(const std::atomic<std::uint32_t>& word, std::uint32_t value) {
    auto* address = const_cast<std::atomic<std::uint32_t>*>(&word);
    WaitOnAddress(address, &value, sizeof(value), INFINITE);
}

void wakeOne(std::atomic<std::uint32_t>& word) {
    WakeByAddressSingle(&word);
}

void wakeAll(std::atomic<std::uint32_t>& word) {
    WakeByAddressAll(&word);
}

}
