#include "Host/console/win32/SingleInstance.h"

#include "Platform/SystemPath.h"

#include <cstdio>

namespace Host::Console {

namespace {

constexpr ULONG_PTR OPEN_REQUEST = 0x4d495245;  // Distinguishes ours among all that windows send to one another.
constexpr UINT ANSWER_LIMIT = 5000;             // In milliseconds.

// A full path in lower case without a trailing separator: Windows ignores the case of file names.
std::wstring normalise(const std::string& folder) {
    const auto path = Platform::systemPath(folder);
    const std::wstring given = path ? path->wstring() : std::wstring();
    std::wstring full(GetFullPathNameW(given.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(given.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    while (!full.empty() && (full.back() == L'\\' || full.back() == L'/'))
        full.pop_back();
    CharLowerBuffW(full.data(), static_cast<DWORD>(full.size()));
    return full;
}

}

std::string SingleInstance::keyOf(const std::string& dataFolder) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const wchar_t character : normalise(dataFolder))
        hash = (hash ^ static_cast<std::uint64_t>(character)) * 0x100000001b3;
    char text[32];
    std::snprintf(text, sizeof text, "MirelConsole-%016llx", static_cast<unsigned long long>(hash));
    return text;
}

SingleInstance::SingleInstance(const std::string& dataFolder)
    : m_name(keyOf(dataFolder)), m_mutex(CreateMutexA(nullptr, FALSE, m_name.c_str())) {}

SingleInstance::~SingleInstance() {
    if (m_isOwner)
        ReleaseMutex(m_mutex);
    if (m_mutex)
        CloseHandle(m_mutex);
}

SingleInstance::Result SingleInstance::enter(const OpenRequest& request, std::chrono::milliseconds limit) {
    constexpr DWORD STEP = 50;
    const std::string text = request.toText();
    const auto end = std::chrono::steady_clock::now() + limit;
    do {
        // If a process dies holding the mutex, the next one gets it.
        const DWORD wait = WaitForSingleObject(m_mutex, STEP);
        if (wait == WAIT_OBJECT_0 || wait == WAIT_ABANDONED) {
            m_isOwner = true;
            return Result::FIRST;
        }
        const HWND other = findOther();
        if (!other)
            continue;  // It is about to open its window, or has just closed it.
        DWORD process = 0;
        GetWindowThreadProcessId(other, &process);
        AllowSetForegroundWindow(process);
        COPYDATASTRUCT data{OPEN_REQUEST, static_cast<DWORD>(text.size()), const_cast<char*>(text.data())};
        DWORD_PTR answer = 0;
        if (SendMessageTimeoutA(other, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data), SMTO_NORMAL, ANSWER_LIMIT,
                                &answer) &&
            answer == TRUE)
            return Result::HANDED_OVER;
    } while (std::chrono::steady_clock::now() < end);
    return Result::FAILED;
}

void SingleInstance::announce(HWND window) const {
    SetPropA(window, m_name.c_str(), reinterpret_cast<HANDLE>(1));
}

HWND SingleInstance::findOther() const {
    struct Search {
        const char* name;
        HWND found;
    } search{m_name.c_str(), nullptr};
    EnumWindows(
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            if (!GetPropA(window, wanted.name))
                return TRUE;
            wanted.found = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

bool SingleInstance::read(const COPYDATASTRUCT& data, OpenRequest& request) {
    if (data.dwData != OPEN_REQUEST || (data.cbData > 0 && !data.lpData))
        return false;
    request = OpenRequest::fromText({static_cast<const char*>(data.lpData), data.cbData});
    return true;
}

}
