#include "Platform/Shell.h"

#include <mutex>

namespace Platform {

namespace {

// Guards the stand-ins below.
std::mutex& standInLock() {
    static std::mutex lock;
    return lock;
}

std::function<std::vector<std::string>()>& midiInputNames() {
    static std::function<std::vector<std::string>()> names;
    return names;
}

std::function<void(const std::string&, const std::string&)>& messageSink() {
    static std::function<void(const std::string&, const std::string&)> sink;
    return sink;
}

}

void setMessageSink(std::function<void(const std::string& text, const std::string& title)> sink) {
    const std::lock_guard lock(standInLock());
    messageSink() = std::move(sink);
}

void setMidiInputNames(std::function<std::vector<std::string>()> names) {
    const std::lock_guard lock(standInLock());
    midiInputNames() = std::move(names);
}

std::vector<std::string> getMidiInputNames() {
    const std::lock_guard lock(standInLock());
    return midiInputNames() ? midiInputNames()() : getSystemMidiInputNames();
}

void showMessage(const std::string& text, const std::string& title) {
    std::function<void(const std::string&, const std::string&)> sink;
    {
        const std::lock_guard lock(standInLock());
        sink = messageSink();
    }
    if (sink)
        sink(text, title);
    else
        showSystemMessage(text, title);
}

}
