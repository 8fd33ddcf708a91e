#pragma once

#include <windows.h>

namespace Backend::Display {
class DisplayMessageManager;
}

namespace Gui::Display {

// Takes a listener out of the log's feed. The log's thread may be in the middle of telling the listener something, and
// for that it may wait for the window's thread; so that thread goes on answering it while it waits.
class FeedEnd {
public:
    FeedEnd();
    ~FeedEnd();
    FeedEnd(const FeedEnd&) = delete;
    FeedEnd& operator=(const FeedEnd&) = delete;

    // [gui] Returns when the log's thread is done with the listener that it has, and has none. The log must be running.
    void take(Backend::Display::DisplayMessageManager& feed);

private:
    HANDLE m_reached;
};

}
