#pragma once

#include "Backend/core/log/DisplayListener.h"
#include "Backend/core/log/DisplayMessageManager.h"

#include <string>

namespace TestSupport {

// All that stands in a desk's log at this moment. Nobody listens to the log afterwards.
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
