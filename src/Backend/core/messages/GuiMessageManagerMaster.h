#pragma once

#include "Platform/WindowTypes.h"

#include <atomic>
#include <vector>

namespace Backend {

class GuiMessageManager;

// The managers that handle the main window's messages. It has no thread; the window's procedure drives it.
class GuiMessageManagerMaster {
public:
    GuiMessageManagerMaster() = default;
    GuiMessageManagerMaster(const GuiMessageManagerMaster&) = delete;
    GuiMessageManagerMaster& operator=(const GuiMessageManagerMaster&) = delete;

    // [any] Sets the thread that the window belongs to.
    void setThreadId(DWORD threadId);

    // [any, before the window exists] Appends a manager, which must outlive this object.
    void addMessageManager(GuiMessageManager* manager);

    // [gui] Whether any manager handles messages of this number.
    bool wantMessage(unsigned int message) const;

    // [gui] Gives the message to the first manager that wants it, if any. Always 0.
    LRESULT handleMessage(HWND window, unsigned int message, WPARAM wParam, LPARAM lParam);

    // [any] Posts to a window, without retry. False if that failed; the caller then still owns the payload.
    bool postMessage(HWND window, unsigned int message, WPARAM wParam, LPARAM lParam);

    // [any] Whether the calling thread is the window's.
    bool currentThreadIsManagerThread() const;

private:
    GuiMessageManager* findManager(unsigned int message) const;

    std::atomic<DWORD> m_threadId{0};
    std::vector<GuiMessageManager*> m_messageManagers;
};

}
