#include "Host/cli/run/TerminalKeys.h"

#include <windows.h>

#include <set>

namespace Host::Cli {

namespace {

bool isShiftKey(WORD code) {
    return code == VK_SHIFT;
}

// The key of a record. A modifier key does not modify itself.
Key toKey(const KEY_EVENT_RECORD& record) {
    const bool isExtended = (record.dwControlKeyState & ENHANCED_KEY) != 0;
    int code = record.wVirtualKeyCode;
    if (code == VK_CONTROL && isExtended)
        code = Key::RIGHT_CONTROL;
    else if (code == VK_MENU)
        code = isExtended ? VK_RMENU : VK_LMENU;
    else if (code == VK_RETURN && isExtended)
        code = Key::NUMPAD_ENTER;
    const DWORD state = record.dwControlKeyState;
    const bool isControlKey = record.wVirtualKeyCode == VK_CONTROL;
    const bool isAltKey = record.wVirtualKeyCode == VK_MENU;
    return Key(code, (state & SHIFT_PRESSED) && !isShiftKey(record.wVirtualKeyCode),
               (state & (LEFT_CTRL_PRESSED | RIGHT_CTRL_PRESSED)) && !isControlKey,
               (state & (LEFT_ALT_PRESSED | RIGHT_ALT_PRESSED)) && !isAltKey, false);
}

class ConsoleKeys : public TerminalKeys {
public:
    ConsoleKeys(HANDLE console, DWORD mode) : m_console(console), m_mode(mode) {
        SetConsoleMode(m_console, ENABLE_PROCESSED_INPUT);
    }

    ~ConsoleKeys() override { SetConsoleMode(m_console, m_mode); }
    ConsoleKeys(const ConsoleKeys&) = delete;
    ConsoleKeys& operator=(const ConsoleKeys&) = delete;

    std::vector<KeyEvent> read(std::chrono::milliseconds limit) override {
        std::vector<KeyEvent> events;
        if (WaitForSingleObject(m_console, static_cast<DWORD>(limit.count())) != WAIT_OBJECT_0)
            return events;
        INPUT_RECORD records[64];
        DWORD count = 0;
        m_isClosed = !ReadConsoleInputW(m_console, records, 64, &count);
        for (DWORD i = 0; i < count && !m_isClosed; ++i)
            if (records[i].EventType == KEY_EVENT)
                take(records[i].Event.KeyEvent, events);
        return events;
    }

    bool isInterrupted() const override { return m_isClosed; }

private:
    void take(const KEY_EVENT_RECORD& record, std::vector<KeyEvent>& events) {
        const Key key = toKey(record);
        const int code = key.getCode();
        if (record.bKeyDown) {
            events.push_back({key, true, !m_down.insert(code).second});
        } else {
            m_down.erase(code);
            events.push_back({key, false, false});
        }
    }

    const HANDLE m_console;
    const DWORD m_mode;
    std::set<int> m_down;  // Codes.
    bool m_isClosed = false;
};

}

std::unique_ptr<TerminalKeys> TerminalKeys::open() {
    const HANDLE console = GetStdHandle(STD_INPUT_HANDLE);
    DWORD mode = 0;
    if (!GetConsoleMode(console, &mode))
        return nullptr;
    return std::make_unique<ConsoleKeys>(console, mode);
}

}
