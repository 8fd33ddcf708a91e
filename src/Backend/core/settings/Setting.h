#pragma once

#include "Backend/core/settings/Rect.h"
#include "Platform/SettingsStore.h"

#include <string>
#include <utility>

namespace Backend {

// One setting: its value, the name under which it is stored, and whether it was set since it was last stored.
template <typename Value>
class Setting {
public:
    Setting(const char* name, Value defaultValue) : m_name(name), m_value(std::move(defaultValue)) {}

    const Value& get() const { return m_value; }

    // Counts as a change even if the value is the same.
    void set(Value value) {
        m_value = std::move(value);
        m_changed = true;
    }

    const char* getName() const { return m_name; }
    bool isChanged() const { return m_changed; }

    // The value as text: true or false, a number, the text itself, the four numbers of a rectangle.
    std::string describe() const;

    // A value that is missing or of another kind leaves the current one.
    void load(const Platform::SettingsKey& key);

    // Writes the value if it was changed.
    void save(Platform::SettingsKey& key) {
        if (!m_changed)
            return;
        write(key);
        m_changed = false;
    }

private:
    void write(Platform::SettingsKey& key) const;

    const char* m_name;
    Value m_value;
    bool m_changed = false;
};

using BoolSetting = Setting<bool>;
using IntSetting = Setting<int>;
using StringSetting = Setting<std::string>;
using RectSetting = Setting<Rect>;

template <>
void BoolSetting::load(const Platform::SettingsKey& key);
template <>
std::string BoolSetting::describe() const;
template <>
void BoolSetting::write(Platform::SettingsKey& key) const;
template <>
void IntSetting::load(const Platform::SettingsKey& key);
template <>
std::string IntSetting::describe() const;
template <>
void IntSetting::write(Platform::SettingsKey& key) const;
template <>
void StringSetting::load(const Platform::SettingsKey& key);
template <>
std::string StringSetting::describe() const;
template <>
void StringSetting::write(Platform::SettingsKey& key) const;
template <>
void RectSetting::load(const Platform::SettingsKey& key);
template <>
std::string RectSetting::describe() const;
template <>
void RectSetting::write(Platform::SettingsKey& key) const;

}
