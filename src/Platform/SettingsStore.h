#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace Platform {

// The values under one key of a store: numbers, texts and runs of bytes, each by its name. A value of another kind than
// the one asked for counts as missing.
class SettingsKey {
public:
    virtual ~SettingsKey() = default;

    virtual std::optional<std::uint32_t> readNumber(const std::string& name) const = 0;
    virtual std::optional<std::string> readText(const std::string& name) const = 0;
    virtual std::optional<std::string> readBytes(const std::string& name) const = 0;

    virtual void writeNumber(const std::string& name, std::uint32_t value) = 0;
    virtual void writeText(const std::string& name, const std::string& value) = 0;
    virtual void writeBytes(const std::string& name, std::string_view value) = 0;

    // Makes what was written last. False if that failed; the store is then what it was, or holds a part of it where the
    // system keeps each value on its own.
    virtual bool save() = 0;
};

// Where settings outlive the program. For one thread at a time.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    // Opens a key, and makes it if it is missing. Names of keys are divided by "\". Null if that is impossible.
    [[nodiscard]] virtual std::unique_ptr<SettingsKey> open(const std::string& key) = 0;

    // Opens a key that is there already; null for any other. Changes nothing in the store.
    [[nodiscard]] virtual std::unique_ptr<SettingsKey> openExisting(const std::string& key) = 0;
};

// The user's own store: the registry below HKEY_CURRENT_USER on Windows, elsewhere a file in the folder for the user's
// configuration.
[[nodiscard]] std::unique_ptr<SettingsStore> createUserSettingsStore();

// A store in one file. Several keys share it; a file that is missing or holds nonsense holds no values.
[[nodiscard]] std::unique_ptr<SettingsStore> createFileSettingsStore(const std::string& path);

}
