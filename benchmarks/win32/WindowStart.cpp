// How long does it take from the start of the process until the desk's window shows?
#include "Platform/MonotonicClock.h"
#include "Platform/TemporaryFolder.h"
#include "benchmarks/Report.h"

#include <windows.h>

#include <cstdio>
#include <string>

namespace {

using namespace Benchmarks;

constexpr std::int64_t PATIENCE = 30000000;

struct Search {
    DWORD process;
    HWND found;
};

// The frame with the panel of buttons in it, both visible.
BOOL CALLBACK look(HWND window, LPARAM data) {
    auto& search = *reinterpret_cast<Search*>(data);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    const HWND desk = FindWindowExA(window, nullptr, nullptr, "MirelGui");
    if (process != search.process || !IsWindowVisible(window) || !desk || !IsWindowVisible(desk))
        return TRUE;
    search.found = window;
    return FALSE;
}

HWND findWindow(DWORD process) {
    Search search{process, nullptr};
    EnumWindows(look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

// Milliseconds; negative if no window shows.
double measureStart(const std::string& folder) {
    std::string command = std::string(MIREL_CONSOLE) + " --data \"" + folder + "\"";
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    const std::int64_t start = Platform::monotonicMicroseconds();
    if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        return -1;
    HWND window = nullptr;
    while (!window && Platform::monotonicMicroseconds() - start < PATIENCE) {
        window = findWindow(process.dwProcessId);
        Sleep(1);
    }
    const double milliseconds = static_cast<double>(Platform::monotonicMicroseconds() - start) / 1000;
    if (window)
        PostMessageA(window, WM_CLOSE, 0, 0);
    else
        TerminateProcess(process.hProcess, 1);
    WaitForSingleObject(process.hProcess, INFINITE);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return window ? milliseconds : -1;
}

}

int main() {
    constexpr int STARTS = 20;
    const Platform::TemporaryFolder folder;
    std::vector<double> milliseconds;
    for (int i = 0; i < STARTS; ++i) {
        milliseconds.push_back(measureStart(folder.getPath()));
        if (milliseconds.back() < 0) {
            std::fprintf(stderr, "no window shows\n");
            return 1;
        }
    }
    reportSpread("until the window shows", milliseconds, "ms");
    return 0;
}
