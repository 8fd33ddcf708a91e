#include "Platform/MachineRegistry.h"

#include <windows.h>

#include <array>

namespace Platform {

namespace {

class Key : public MachineRegistryKey {
public:
    explicit Key(HKEY key) : m_key(key) {}
    ~Key() override { RegCloseKey(m_key); }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    std::vector<std::string> getValueNames() const override {
        constexpr DWORD NAME_SIZE = 500;
        std::vector<std::string> names;
        std::array<char, NAME_SIZE> name;
        for (DWORD index = 0;; ++index) {
            DWORD size = NAME_SIZE;
            const LSTATUS status = RegEnumValueA(m_key, index, name.data(), &size, nullptr, nullptr, nullptr, nullptr);
            if (status == ERROR_SUCCESS)
                names.emplace_back(name.data(), size);
            else if (status != ERROR_MORE_DATA)
                return names;
        }
    }

    std::optional<std::string> readText(const std::string& name) const override {
        DWORD type = 0;
        DWORD size = 0;
        if (RegQueryValueExA(m_key, name.c_str(), nullptr, &type, nullptr, &size) != ERROR_SUCCESS || type != REG_SZ)
            return std::nullopt;
        std::string text(size, '\0');
        if (RegQueryValueExA(m_key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size) !=
            ERROR_SUCCESS)
            return std::nullopt;
        text.resize(size);
        return text.substr(0, text.find('\0'));
    }

    long writeText(const std::string& name, const std::string& text) override {
        return RegSetValueExA(m_key, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                              static_cast<DWORD>(text.size() + 1));
    }

    void remove(const std::string& name) override { RegDeleteValueA(m_key, name.c_str()); }

private:
    HKEY m_key;
};

}

std::unique_ptr<MachineRegistryKey> openSystemRegistryKey(const std::string& key) {
    HKEY opened = nullptr;
    if (RegCreateKeyExA(HKEY_LOCAL_MACHINE, key.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &opened, nullptr) !=
        ERROR_SUCCESS)
        return nullptr;
    return std::make_unique<Key>(opened);
}

}
