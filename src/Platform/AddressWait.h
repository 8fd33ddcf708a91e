// Sleeping until a word changes: the cheapest wait that both systems offer.
#pragma once

#include <atomic>
#include <cstdint>

namespace Platform {

// [any] Sleeps while the word holds this value. May return early, so callers check again.
void waitWhileEqual(const std::atomic<std::uint32_t>& word, std::uint32_t value);

// [any, rt] Wakes one sleeper, after the word was changed. Costs a system call.
void wakeOne(std::atomic<std::uint32_t>& word);

// [any, rt] Wakes all sleepers, after the word was changed. Costs a system call.
void wakeAll(std::atomic<std::uint32_t>& word);

}
