#pragma once

#include "Host/console/OpenRequest.h"

#include <windows.h>

#include <chrono>
#include <string>

namespace Host::Console {

// One running desk per data folder. A second one hands over what it was asked to open, then ends. [main]
class SingleInstance {
public:
    // A desk that is starting or ending holds up the others for at most this long.
    static constexpr std::chrono::milliseconds WAIT_LIMIT{15000};

    enum class Result { FIRST, HANDED_OVER, FAILED };

    explicit SingleInstance(const std::string& dataFolder);
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    // Whether this process becomes the folder's desk. If not, the other one has the request and comes to the front;
    // failed: the other one doesn't answer.
    Result enter(const OpenRequest& request, std::chrono::milliseconds limit = WAIT_LIMIT);

    // Makes this the window that others find.
    void announce(HWND window) const;

    // Reads a WM_COPYDATA that a window received; false if it is not ours.
    static bool read(const COPYDATASTRUCT& data, OpenRequest& request);

    // The folder's name for system objects, the same however the path is written.
    static std::string keyOf(const std::string& dataFolder);

private:
    HWND findOther() const;

    std::string m_name;
    HANDLE m_mutex = nullptr;
    bool m_isOwner = false;
};

}
