#include "Platform/Shell.h"

#include <mutex>

namespace Platform {

namespace {

std::mutex& sinkLock() {
    static std::mutex lock;
    return lock;
}

std::function<void(const std::string&, const std::string&)>& messageSink() {
    static std::function<void(const std::string&, const std::string&)> sink;
    return sink;
}

}

void setMessageSink(std::function<void(const std::string& text, const std::string& title)> sink) {
    const std::lock_guard lock(sinkLock());
    messageSink() = std::move(sink);
}

void showMessage(const std::string& text, const std::string& title) {
    std::function<void(const std::string&, const std::string&)> sink;
    {
        const std::lock_guard lock(sinkLock());
        sink = messageSink();
    }
    if (sink)
        sink(text, title);
    else
        showSystemMessage(text, title);
}

}
