#include "Host/cli/script/BackendCalls.h"

#include "Backend/core/messages/Message.h"

namespace Host::Cli {

using namespace Backend;

namespace {

constexpr Message<40000, Heap<BackendCalls::Action>> CALL{};  // Outside of all families of the desk.

}

void BackendCalls::post(const Action& action) {
    MessageManager::post(CALL, action);
}

bool BackendCalls::wantMessage(unsigned int message) {
    return message == CALL.NUMBER;
}

void BackendCalls::handleMessage(const MSG& message) {
    CALL.open(message.wParam, message.lParam, [](const Action& action) { action(); });
}

void BackendCalls::disposeMessage(const MSG& message) {
    CALL.dispose(message.wParam, message.lParam);
}

}
