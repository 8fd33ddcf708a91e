#include "Gui/Display/FeedEnd.h"

#include "Backend/core/DisplayMessageManager.h"

#include <thread>

namespace Gui::Display {

FeedEnd::FeedEnd() : m_reached(CreateEventA(nullptr, FALSE, FALSE, nullptr)) {}

FeedEnd::~FeedEnd() {
    CloseHandle(m_reached);
}

void FeedEnd::take(Backend::Display::DisplayMessageManager& feed) {
    ResetEvent(m_reached);
    // This object stands in for the listener, and whatever reaches it comes after all that the listener was told. A
    // full queue would keep this thread in the posts, so another one makes them.
    std::thread poster([&] {
        feed.postSetListener(this);
        feed.postSendAll();
    });
    while (MsgWaitForMultipleObjects(1, &m_reached, FALSE, INFINITE, QS_SENDMESSAGE) == WAIT_OBJECT_0 + 1) {
        MSG unused;
        PeekMessageA(&unused, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    }
    poster.join();
    feed.postSetListener(nullptr);
}

void FeedEnd::setText(const char*) {
    SetEvent(m_reached);
}

}
