#include "Gui/Display/FeedEnd.h"

#include "Backend/core/DisplayMessageManager.h"

#include <thread>

namespace Gui::Display {

FeedEnd::FeedEnd() : m_reached(CreateEventA(nullptr, FALSE, FALSE, nullptr)) {}

FeedEnd::~FeedEnd() {
    CloseHandle(m_reached);
}

void FeedEnd::take(Backend::Display::DisplayMessageManager& feed) {
    std::thread other([&] {
        feed.sendSetListener(nullptr);
        SetEvent(m_reached);
    });
    while (MsgWaitForMultipleObjects(1, &m_reached, FALSE, INFINITE, QS_SENDMESSAGE) == WAIT_OBJECT_0 + 1) {
        MSG unused;
        PeekMessageA(&unused, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    }
    other.join();
}

}
