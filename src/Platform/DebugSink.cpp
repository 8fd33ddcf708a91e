#include "Platform/DebugSink.h"

#include <memory>
#include <mutex>

namespace Platform {

namespace {

using Sink = std::function<void(const std::string&)>;

struct CurrentSink {
    std::mutex mutex;
    std::shared_ptr<const Sink> sink;  // Shared, so that it can be replaced while another thread is using it.
};

// Never destroyed, because static objects may still write when the program ends.
CurrentSink& current() {
    static CurrentSink& object = *new CurrentSink;
    return object;
}

}

void writeDebugText(const std::string& text) {
    std::shared_ptr<const Sink> sink;
    {
        const std::lock_guard lock(current().mutex);
        sink = current().sink;
    }
    if (sink)
        (*sink)(text);
    else
        writeSystemDebugText(text);
}

void setDebugSink(std::function<void(const std::string&)> sink) {
    std::shared_ptr<const Sink> next;
    if (sink)
        next = std::make_shared<const Sink>(std::move(sink));
    const std::lock_guard lock(current().mutex);
    current().sink.swap(next);
}

}
