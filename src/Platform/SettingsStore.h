#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace Platform {

// The values under one key of a store: numbers, texts and runs of bytes, each by its name. A value of a different kind
// than the one asked for counts as missing.
class SettingsKey {
public:
    virtual ~SettingsKey() = default;

    virtual std::optional<std::uint32_t> readNumber(const std::string& name) const = 0;
    virtual std::optional<std::string> readText(const std::string& name) const = 0;
    virtual std::optional<std::string> readBytes(const std::string& name) const = 0;

    virtual void writeNumber(const std::string& name, std::uint32_t value) = 0;
    virtual void writeText(const std::string& name, const std::string& value) = 0;
    virtual void writeBytes(const std::string& name, std::string_view value) = 0;

    // Makes the writes durable. False if that failed; the store is then unchanged, or partly changed where the system
    // stores each value separately.
    virtual bool save() = 0;
};

// Where settings outlive the program. For one thread at a time.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    // Opens a key, creating it if missing. Names of keys are separated by "\". Null if that is impossible.
    [[nodiscard]] virtual std::unique_ptr<SettingsKey> open(const std::string& key) = 0;

    // Opens an existing key; null for any other. Changes nothing in the store.
    [[nodiscard]] virtual std::unique_ptr<SettingsKey> openExisting(const std::string& key) = 0;
};

// The user's own store: the registry below HKEY_CURRENT_USER on Windows, elsewhere a file in the user's configuration
// folder.
[[nodiscard]] std::unique_ptr<SettingsStore> createUserSettingsStore();

// A store in one file. Several keys share it; a missing or malformed file holds no values.
[[nodiscard]] std::unique_ptr<SettingsStore> createFileSettingsStore(const std::string& path);

}
