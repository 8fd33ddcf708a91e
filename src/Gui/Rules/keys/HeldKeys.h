#pragma once

#include "Backend/input/Key.h"

#include <map>
#include <set>
#include <vector>

namespace Gui {

// The keys that went down and have not come up. A window that loses the keyboard never gets their releases, so it
// reports them to the desk itself. For one thread.
class HeldKeys {
public:
    // A key is down, with the modifiers of its first press; repeats change nothing. False for a repeat of a key already
    // reported as released.
    bool press(const Key& key, bool isRepeat) {
        if (isRepeat && m_told.contains(key.getCode()))
            return false;
        m_told.erase(key.getCode());
        m_keys.try_emplace(key.getCode(), key);
        return true;
    }

    // A key came up, whatever the modifiers are by then. False if it was already reported as released.
    bool release(std::int32_t code) {
        m_keys.erase(code);
        return m_told.erase(code) == 0;
    }

    // Takes all keys that are down, each as it was pressed. The caller must report their releases.
    std::vector<Key> takeAll() {
        std::vector<Key> keys;
        keys.reserve(m_keys.size());
        for (const auto& [code, key] : m_keys)
            keys.push_back(key);
        for (const Key& key : keys)
            m_told.insert(key.getCode());
        m_keys.clear();
        return keys;
    }

private:
    std::map<std::int32_t, Key> m_keys;
    std::set<std::int32_t> m_told;  // Reported as released, though as far as is known still held.
};

}
