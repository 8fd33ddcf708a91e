#include "tests/support/win32/DeskGui.h"

#include "Backend/core/MirelMessages.h"
#include "Backend/functions/values/SelectType.h"

#include <utility>

namespace TestSupport {

using namespace Backend;

namespace {

template <class Object>
const Object& objectIn(std::uintptr_t word) {
    return *reinterpret_cast<const Object*>(word);
}

std::string describe(const MSG& message) {
    const std::string number = std::to_string(message.message);
    const auto l = static_cast<std::uintptr_t>(message.lParam);
    switch (message.message) {
        case MirelMessages::CHANGE_PROGRAM.NUMBER:
        case MirelMessages::CHANGE_DEFAULT_MIDI_OUTPUT.NUMBER: {
            const auto& type = objectIn<SelectType>(message.wParam);
            return number + " mode=" + std::to_string(type.getMode()) + " value=" + std::to_string(type.getValue());
        }
        case MirelMessages::CHANGE_PROGRAM_NAME.NUMBER: return number + " '" + objectIn<std::string>(l) + "'";
        case MirelMessages::SAVE_TO_BANK.NUMBER:
        case MirelMessages::SAVE_TO_PROGRAM.NUMBER: return number + " '" + objectIn<std::string>(message.wParam) + "'";
        default:
            return number + " " + std::to_string(static_cast<std::intptr_t>(message.wParam)) + " " +
                   std::to_string(message.lParam);
    }
}

}

DeskGui::DeskGui() {
    m_recorder.setManager(m_posts);
    m_master.addMessageManager(&m_recorder);
    m_master.start();
    desk.start();
}

DeskGui::~DeskGui() {
    m_master.stop();
}

void DeskGui::Recorder::handleMessage(const MSG& message) {
    m_lines.push_back(describe(message));
    m_manager->disposeMessage(message);
}

std::vector<std::string> DeskGui::takePosted() {
    m_master.waitUntilIdle();
    return m_recorder.take();
}

std::vector<std::string> DeskGui::takeCalls() {
    return std::exchange(m_calls, {});
}

}
