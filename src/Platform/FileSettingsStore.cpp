// Settings in one text file: "[key]" lines, each followed by its values as "name=kind:value". Characters in texts and
// names that would be ambiguous are escaped as "%" and two hexadecimal digits; bytes are hexadecimal digits only.
#include "Platform/Files.h"
#include "Platform/SettingsStore.h"

#include <charconv>
#include <map>

namespace Platform {

namespace {

constexpr std::string_view NUMBER = "number";
constexpr std::string_view TEXT = "text";
constexpr std::string_view BYTES = "bytes";
constexpr std::string_view HEX_DIGITS = "0123456789abcdef";

struct Value {
    std::string kind;
    std::string content;  // Exactly as in the file.
};

using Values = std::map<std::string, Value>;
using Keys = std::map<std::string, Values>;

std::string toHex(std::string_view bytes) {
    std::string hex;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        hex += HEX_DIGITS[value >> 4];
        hex += HEX_DIGITS[value & 15];
    }
    return hex;
}

std::optional<std::string> fromHex(std::string_view hex) {
    std::string bytes;
    if (hex.size() % 2 != 0)
        return std::nullopt;
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        const auto high = HEX_DIGITS.find(hex[i]);
        const auto low = HEX_DIGITS.find(hex[i + 1]);
        if (high == std::string_view::npos || low == std::string_view::npos)
            return std::nullopt;
        bytes += static_cast<char>(high << 4 | low);
    }
    return bytes;
}

std::string escape(std::string_view text) {
    std::string escaped;
    for (const char character : text) {
        const bool isPlain = static_cast<unsigned char>(character) >= ' ' && character != '%' && character != '=' &&
                             character != '[' && character != ']' && character != '\x7f';
        escaped += isPlain ? std::string(1, character) : "%" + toHex({&character, 1});
    }
    return escaped;
}

std::optional<std::string> unescape(std::string_view escaped) {
    std::string text;
    for (std::size_t i = 0; i < escaped.size(); ++i) {
        if (escaped[i] != '%') {
            text += escaped[i];
            continue;
        }
        const auto byte = fromHex(escaped.substr(i + 1, 2));
        if (!byte || byte->empty())
            return std::nullopt;
        text += *byte;
        i += 2;
    }
    return text;
}

std::string_view takeLine(std::string_view& rest) {
    const auto end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

// Skips lines that make no sense.
Keys parse(std::string_view rest) {
    Keys keys;
    Values* values = nullptr;
    while (!rest.empty()) {
        const std::string_view line = takeLine(rest);
        if (line.starts_with('[') && line.ends_with(']')) {
            const auto key = unescape(line.substr(1, line.size() - 2));
            values = key ? &keys[*key] : nullptr;
            continue;
        }
        const auto equals = line.find('=');
        const auto colon = line.find(':', equals == std::string_view::npos ? 0 : equals);
        if (!values || equals == std::string_view::npos || colon == std::string_view::npos)
            continue;
        if (const auto name = unescape(line.substr(0, equals)))
            (*values)[*name] = {std::string(line.substr(equals + 1, colon - equals - 1)),
                                std::string(line.substr(colon + 1))};
    }
    return keys;
}

std::string format(const Keys& keys) {
    std::string text;
    for (const auto& [key, values] : keys) {
        text += "[" + escape(key) + "]\n";
        for (const auto& [name, value] : values)
            text += escape(name) + "=" + value.kind + ":" + value.content + "\n";
    }
    return text;
}

class FileSettingsKey : public SettingsKey {
public:
    FileSettingsKey(std::string path, std::string key) : m_path(std::move(path)), m_key(std::move(key)) {
        m_keys = parse(Files::read(m_path).value_or(std::string()));
        m_wasThere = !m_keys.try_emplace(m_key).second;
    }

    // Whether the key was already in the file.
    bool wasThere() const { return m_wasThere; }

    std::optional<std::uint32_t> readNumber(const std::string& name) const override {
        const std::string* content = find(name, NUMBER);
        std::uint32_t number = 0;
        if (!content)
            return std::nullopt;
        const char* const end = content->data() + content->size();
        const auto result = std::from_chars(content->data(), end, number);
        return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
    }

    std::optional<std::string> readText(const std::string& name) const override {
        const std::string* content = find(name, TEXT);
        return content ? unescape(*content) : std::nullopt;
    }

    std::optional<std::string> readBytes(const std::string& name) const override {
        const std::string* content = find(name, BYTES);
        return content ? fromHex(*content) : std::nullopt;
    }

    void writeNumber(const std::string& name, std::uint32_t value) override {
        m_keys[m_key][name] = {std::string(NUMBER), std::to_string(value)};
    }

    void writeText(const std::string& name, const std::string& value) override {
        m_keys[m_key][name] = {std::string(TEXT), escape(value)};
    }

    void writeBytes(const std::string& name, std::string_view value) override {
        m_keys[m_key][name] = {std::string(BYTES), toHex(value)};
    }

    bool save() override { return Files::replace(m_path, format(m_keys)); }

private:
    const std::string* find(const std::string& name, std::string_view kind) const {
        const Values& values = m_keys.at(m_key);
        const auto value = values.find(name);
        return value != values.end() && value->second.kind == kind ? &value->second.content : nullptr;
    }

    std::string m_path;
    std::string m_key;
    Keys m_keys;
    bool m_wasThere = false;
};

class FileSettingsStore : public SettingsStore {
public:
    explicit FileSettingsStore(std::string path) : m_path(std::move(path)) {}

    // Creates the key if necessary.
    std::unique_ptr<SettingsKey> open(const std::string& key) override {
        const auto folderEnd = m_path.find_last_of("/\\");
        if (folderEnd != std::string::npos && folderEnd > 0 && !Files::createFolders(m_path.substr(0, folderEnd)))
            return nullptr;
        // A file that exists but can't be read must not be overwritten with an empty one.
        if (Files::size(m_path) && !Files::read(m_path))
            return nullptr;
        auto opened = std::make_unique<FileSettingsKey>(m_path, key);
        return opened->save() ? std::move(opened) : nullptr;
    }

    std::unique_ptr<SettingsKey> openExisting(const std::string& key) override {
        auto opened = std::make_unique<FileSettingsKey>(m_path, key);
        return opened->wasThere() ? std::move(opened) : nullptr;
    }

private:
    std::string m_path;
};

}

std::unique_ptr<SettingsStore> createFileSettingsStore(const std::string& path) {
    return std::make_unique<FileSettingsStore>(path);
}

}
