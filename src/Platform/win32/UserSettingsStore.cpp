#include "Platform/SettingsStore.h"

#include <windows.h>

namespace Platform {

namespace {

class RegistryKey : public SettingsKey {
public:
    explicit RegistryKey(HKEY key) : m_key(key) {}
    ~RegistryKey() override { RegCloseKey(m_key); }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    std::optional<std::uint32_t> readNumber(const std::string& name) const override {
        const auto bytes = read(name, REG_DWORD);
        if (!bytes || bytes->size() != sizeof(DWORD))
            return std::nullopt;
        DWORD number = 0;
        bytes->copy(reinterpret_cast<char*>(&number), sizeof(number));
        return number;
    }

    // Up to the terminating zero.
    std::optional<std::string> readText(const std::string& name) const override {
        const auto bytes = read(name, REG_SZ);
        return bytes ? std::optional(bytes->substr(0, bytes->find('\0'))) : std::nullopt;
    }

    std::optional<std::string> readBytes(const std::string& name) const override { return read(name, REG_BINARY); }

    void writeNumber(const std::string& name, std::uint32_t value) override {
        const DWORD number = value;
        write(name, REG_DWORD, &number, sizeof(number));
    }

    void writeText(const std::string& name, const std::string& value) override {
        write(name, REG_SZ, value.c_str(), value.size() + 1);
    }

    void writeBytes(const std::string& name, std::string_view value) override {
        write(name, REG_BINARY, value.data(), value.size());
    }

    bool save() override { return m_allWritten; }

private:
    std::optional<std::string> read(const std::string& name, DWORD kind) const {
        DWORD type = 0;
        DWORD size = 0;
        if (RegQueryValueExA(m_key, name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS || type != kind)
            return std::nullopt;
        std::string bytes(size, '\0');
        if (RegQueryValueExA(m_key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()), &size) !=
                ERROR_SUCCESS ||
            type != kind)
            return std::nullopt;
        bytes.resize(size);
        return bytes;
    }

    void write(const std::string& name, DWORD kind, const void* data, std::size_t size) {
        if (RegSetValueExA(m_key, name.c_str(), 0, kind, static_cast<const BYTE*>(data), static_cast<DWORD>(size)) !=
            ERROR_SUCCESS)
            m_allWritten = false;
    }

    HKEY m_key;
    bool m_allWritten = true;
};

class RegistryStore : public SettingsStore {
public:
    std::unique_ptr<SettingsKey> open(const std::string& key) override {
        HKEY opened = nullptr;
        if (RegCreateKeyExA(HKEY_CURRENT_USER, key.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &opened, nullptr) !=
            ERROR_SUCCESS)
            return nullptr;
        return std::make_unique<RegistryKey>(opened);
    }

    std::unique_ptr<SettingsKey> openExisting(const std::string& key) override {
        HKEY opened = nullptr;
        if (RegOpenKeyExA(HKEY_CURRENT_USER, key.c_str(), 0, KEY_ALL_ACCESS, &opened) != ERROR_SUCCESS)
            return nullptr;
        return std::make_unique<RegistryKey>(opened);
    }
};

}

std::unique_ptr<SettingsStore> createUserSettingsStore() {
    return std::make_unique<RegistryStore>();
}

}
