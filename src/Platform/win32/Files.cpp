#include "Platform/Files.h"

#include "Platform/SystemPath.h"

#include <windows.h>

#include <algorithm>
#include <atomic>

namespace Platform::Files {

namespace fs = std::filesystem;

namespace {

constexpr DWORD SHARE_ALL = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Names such as "nul" mean devices in every folder; the system's full path reveals them.
bool namesDevice(const fs::path& path) {
    wchar_t full[MAX_PATH];
    const DWORD length = GetFullPathNameW(path.c_str(), MAX_PATH, full, nullptr);
    return length > 0 && length < MAX_PATH && std::wstring_view(full, length).starts_with(L"\\\\.\\");
}

class File {
public:
    File(const fs::path& path, DWORD access, DWORD share, DWORD disposition)
        : m_handle(namesDevice(path) ? INVALID_HANDLE_VALUE
                                     : CreateFileW(path.c_str(), access, share, nullptr, disposition,
                                                   FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    ~File() { close(); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    HANDLE get() const { return m_handle; }
    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    bool isPlainFile() const { return isOpen() && GetFileType(m_handle) == FILE_TYPE_DISK; }

    bool writeAll(std::string_view content) const {
        constexpr std::size_t MOST = 1u << 24;
        while (!content.empty()) {
            const auto count = static_cast<DWORD>(std::min(content.size(), MOST));
            DWORD written = 0;
            if (!WriteFile(m_handle, content.data(), count, &written, nullptr) || written == 0)
                return false;
            content.remove_prefix(written);
        }
        return true;
    }

    bool close() {
        const bool done = !isOpen() || CloseHandle(m_handle);
        m_handle = INVALID_HANDLE_VALUE;
        return done;
    }

private:
    HANDLE m_handle;
};

// A unique path beside the target. Its name is short, whatever the target's, because names have a length limit.
fs::path temporaryPath(const fs::path& target) {
    static std::atomic<unsigned> counter{0};
    for (;;) {
        const std::wstring name =
            L"." + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(counter.fetch_add(1)) + L".tmp";
        fs::path path = target.parent_path() / name;
        if (GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES)
            return path;
    }
}

bool writeNew(const fs::path& path, std::string_view content) {
    File file(path, GENERIC_WRITE, 0, CREATE_NEW);
    return file.isOpen() && file.writeAll(content) && FlushFileBuffers(file.get()) && file.close();
}

}

std::optional<std::string> read(const std::string& path, std::uintmax_t maxSize) {
    const auto source = systemPath(path);
    if (!source)
        return std::nullopt;
    const File file(*source, GENERIC_READ, SHARE_ALL, OPEN_EXISTING);
    if (!file.isPlainFile())
        return std::nullopt;
    std::string content;
    char block[1 << 16];
    for (;;) {
        DWORD count = 0;
        if (!ReadFile(file.get(), block, sizeof(block), &count, nullptr))
            return std::nullopt;
        if (count == 0)
            return content;
        content.append(block, count);
        if (content.size() > maxSize)
            return std::nullopt;
    }
}

bool replace(const std::string& path, std::string_view content) {
    const auto target = systemPath(path);
    if (!target || namesDevice(*target))
        return false;
    const DWORD attributes = GetFileAttributesW(target->c_str());
    constexpr DWORD REFUSED = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE | FILE_ATTRIBUTE_READONLY;
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & REFUSED) != 0)
        return false;
    const fs::path temporary = temporaryPath(*target);
    constexpr DWORD FLAGS = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (!writeNew(temporary, content) || !MoveFileExW(temporary.c_str(), target->c_str(), FLAGS)) {
        DeleteFileW(temporary.c_str());
        return false;
    }
    return true;
}

bool append(const std::string& path, std::string_view content) {
    const auto target = systemPath(path);
    if (!target)
        return false;
    File file(*target, FILE_APPEND_DATA, SHARE_ALL, OPEN_ALWAYS);
    return file.isPlainFile() && file.writeAll(content) && file.close();
}

bool remove(const std::string& path) {
    const auto target = systemPath(path);
    return target && DeleteFileW(target->c_str());
}

bool move(const std::string& from, const std::string& to) {
    const auto source = systemPath(from);
    const auto target = systemPath(to);
    std::error_code error;
    if (!source || !target || namesDevice(*target) || !fs::is_regular_file(*source, error))
        return false;
    return MoveFileExW(source->c_str(), target->c_str(), MOVEFILE_COPY_ALLOWED) != FALSE;
}

std::string withSystemLineEnds(std::string_view text) {
    std::string result;
    for (const char character : text) {
        if (character == '\n')
            result += '\r';
        result += character;
    }
    return result;
}

}
