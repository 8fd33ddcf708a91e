#pragma once

#include "Backend/core/log/DisplayListener.h"
#include "Backend/core/log/DisplayMessageManager.h"

#include <string>

namespace TestSupport {

// The whole text of a desk's log at this moment. The log has no listener afterwards.
inline std::string readLog(Backend::Display::DisplayMessageManager& log) {
    struct Reader : Backend::Display::DisplayListener {
        void append(const char* added) override { text += added; }
        void setText(const char* whole) override { text = whole; }

        std::string text;
    } reader;
    log.postSetListener(&reader);
    log.postSendAll();
    log.postSetListener(nullptr);
    log.waitUntilIdle();
    return reader.text;
}

}
