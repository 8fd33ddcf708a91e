#pragma once

#include "Backend/input/Key.h"

#include <map>
#include <vector>

namespace Gui {

// The keys that went down and have not come up. A window that loses the keyboard never hears of their end, and so tells
// it to the desk itself. For one thread.
class HeldKeys {
public:
    // A key is down, with the modifiers of its first press; repeats change nothing.
    void press(const Key& key) { m_keys.try_emplace(key.getCode(), key); }

    // A key came up, whatever the modifiers are by then.
    void release(std::int32_t code) { m_keys.erase(code); }

    // All that are down, each as it was pressed, and none afterwards.
    std::vector<Key> takeAll() {
        std::vector<Key> keys;
        keys.reserve(m_keys.size());
        for (const auto& [code, key] : m_keys)
            keys.push_back(key);
        m_keys.clear();
        return keys;
    }

private:
    std::map<std::int32_t, Key> m_keys;
};

}
