#include "Backend/core/settings/Setting.h"

#include <array>
#include <cstring>

namespace Backend {

namespace {

// A text longer than this, including its terminating zero, is not read.
constexpr std::size_t LONGEST_TEXT = 1000;

using RectNumbers = std::array<std::int32_t, 4>;

}

template <>
void BoolSetting::load(const Platform::SettingsKey& key) {
    if (const auto number = key.readNumber(m_name))
        m_value = *number != 0;
}

template <>
void BoolSetting::write(Platform::SettingsKey& key) const {
    key.writeNumber(m_name, m_value ? 1 : 0);
}

template <>
void IntSetting::load(const Platform::SettingsKey& key) {
    if (const auto number = key.readNumber(m_name))
        m_value = static_cast<int>(*number);
}

template <>
void IntSetting::write(Platform::SettingsKey& key) const {
    key.writeNumber(m_name, static_cast<std::uint32_t>(m_value));
}

template <>
void StringSetting::load(const Platform::SettingsKey& key) {
    if (auto text = key.readText(m_name); text && text->size() < LONGEST_TEXT)
        m_value = std::move(*text);
}

template <>
void StringSetting::write(Platform::SettingsKey& key) const {
    key.writeText(m_name, m_value);
}

template <>
void RectSetting::load(const Platform::SettingsKey& key) {
    const auto bytes = key.readBytes(m_name);
    RectNumbers numbers;
    if (!bytes || bytes->size() != sizeof(numbers))
        return;
    std::memcpy(numbers.data(), bytes->data(), sizeof(numbers));
    m_value = {numbers[0], numbers[1], numbers[2], numbers[3]};
}

template <>
void RectSetting::write(Platform::SettingsKey& key) const {
    const RectNumbers numbers = {m_value.left, m_value.top, m_value.right, m_value.bottom};
    std::array<char, sizeof(numbers)> bytes;
    std::memcpy(bytes.data(), numbers.data(), sizeof(numbers));
    key.writeBytes(m_name, std::string_view(bytes.data(), bytes.size()));
}

template <>
std::string BoolSetting::describe() const {
    return m_value ? "true" : "false";
}

template <>
std::string IntSetting::describe() const {
    return std::to_string(m_value);
}

template <>
std::string StringSetting::describe() const {
    return m_value;
}

template <>
std::string RectSetting::describe() const {
    return std::to_string(m_value.left) + "," + std::to_string(m_value.top) + "," + std::to_string(m_value.right) +
           "," + std::to_string(m_value.bottom);
}

}
