#pragma once

#include "Host/console/OpenRequest.h"

#include <windows.h>

#include <chrono>
#include <string>

namespace Host::Console {

// One running desk for each data folder. A second one hands over what it was asked to open, and ends. [main]
class SingleInstance {
public:
    // A desk that starts or ends holds the others up for this long.
    static constexpr std::chrono::milliseconds WAIT_LIMIT{15000};

    enum class Result { FIRST, HANDED_OVER, FAILED };

    explicit SingleInstance(const std::string& dataFolder);
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    // Whether this process is to be the desk of the folder. If not, the other one has the request and comes to the
    // front; failed: the other one doesn't answer.
    Result enter(const OpenRequest& request, std::chrono::milliseconds limit = WAIT_LIMIT);

    // Makes a window the one that others find.
    void announce(HWND window) const;

    // What a window got in a WM_COPYDATA; false if that is none of ours.
    static bool read(const COPYDATASTRUCT& data, OpenRequest& request);

    // The folder's name for the system, the same however the folder is written.
    static std::string keyOf(const std::string& dataFolder);

private:
    HWND findOther() const;

    std::string m_name;
    HANDLE m_mutex = nullptr;
    bool m_isOwner = false;
};

}
