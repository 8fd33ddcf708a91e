#include "tests/realtime/SliceGuard.h"

#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string_view>

namespace TestSupport {

namespace {

struct AllowedPlace {
    std::string_view function;  // How its name begins, with all namespaces.
    std::string_view reason;
};

// Nothing in the engine or the real host is among these.
constexpr std::array ALLOWED = {
    AllowedPlace{"Host::Cli::ScriptPlayer::", "a script's outputs and window: they keep text of what is played"},
    AllowedPlace{"Host::Cli::ScriptDesk::keepUpdate", "a script's controls: they hear of events after the slice"},
};

constexpr int DEPTH = 40;

thread_local bool t_isInside = false;
std::atomic<std::size_t> s_count{0};

// Built on first use and never destroyed, because threads may still be playing when the program ends.
struct Breaches {
    std::mutex mutex;
    std::set<std::string> texts;
};

Breaches& breaches() {
    static auto* const all = new Breaches;
    return *all;
}

std::string nameOf(void* address) {
    Dl_info info;
    if (dladdr(address, &info) == 0 || !info.dli_sname)
        return "?";
    int status = 0;
    const std::unique_ptr<char, void (*)(void*)> name(abi::__cxa_demangle(info.dli_sname, nullptr, nullptr, &status),
                                                      [](void* text) { std::free(text); });
    return status == 0 ? name.get() : info.dli_sname;
}

struct Caller {
    std::string name;
    bool isAllowed;
};

// Looked up only once, because scripts pass the same places with each event. Use it only under the mutex of the
// breaches.
const Caller& callerAt(void* address) {
    static auto* const all = new std::map<void*, Caller>;
    const auto known = all->find(address);
    if (known != all->end())
        return known->second;
    const std::string name = nameOf(address);
    const bool isAllowed = std::any_of(ALLOWED.begin(), ALLOWED.end(),
                                       [&name](const AllowedPlace& place) { return name.starts_with(place.function); });
    return all->emplace(address, Caller{name, isAllowed}).first->second;
}

void note(const char* call) {
    std::array<void*, DEPTH> stack;
    const int depth = backtrace(stack.data(), DEPTH);
    Breaches& all = breaches();
    const std::lock_guard lock(all.mutex);
    std::string text = call;
    for (int i = 0; i < depth; ++i) {
        const Caller& caller = callerAt(stack[static_cast<std::size_t>(i)]);
        if (caller.isAllowed)
            return;
        text += "\n    " + caller.name;
    }
    all.texts.insert(text);
}

}

// For the functions that are caught.
void noteIfInside(const char* call) {
    if (!t_isInside)
        return;
    t_isInside = false;  // What follows may do all of that.
    note(call);
    t_isInside = true;
}

SliceGuard::SliceGuard() {
    ++s_count;
    t_isInside = true;
}

SliceGuard::~SliceGuard() {
    t_isInside = false;
}

std::size_t SliceGuard::count() {
    return s_count;
}

std::vector<std::string> SliceGuard::takeBreaches() {
    Breaches& all = breaches();
    const std::lock_guard lock(all.mutex);
    std::vector<std::string> taken(all.texts.begin(), all.texts.end());
    all.texts.clear();
    return taken;
}

}
