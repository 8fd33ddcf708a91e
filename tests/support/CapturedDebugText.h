#pragma once

#include "Platform/DebugSink.h"

#include <mutex>
#include <string>
#include <vector>

namespace TestSupport {

// Captures what goes to the debug sink while this object exists.
class CapturedDebugText {
public:
    CapturedDebugText() {
        Platform::setDebugSink([this](const std::string& text) {
            const std::lock_guard lock(m_mutex);
            m_texts.push_back(text);
        });
    }

    ~CapturedDebugText() { Platform::setDebugSink({}); }
    CapturedDebugText(const CapturedDebugText&) = delete;
    CapturedDebugText& operator=(const CapturedDebugText&) = delete;

    // One entry per call.
    std::vector<std::string> texts() const {
        const std::lock_guard lock(m_mutex);
        return m_texts;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<std::string> m_texts;
};

}
