// The message numbers that no family's own table has: the range each manager handles, and the messages that end
// threads.
#pragma once

#include "Platform/WindowTypes.h"

#include <array>

namespace Backend {

// Where a message lies. The same number means different things in each.
enum class MessageQueueKind { BACKEND, WINDOW, ENGINE, DISPLAY };

struct MessageRange {
    MessageQueueKind queue;
    UINT first;
    UINT last;

    constexpr bool contains(UINT message) const { return message >= first && message <= last; }
};

// The ranges of the managers: XxxMessageManager has XXX_RANGE.
// clang-format off
inline constexpr MessageRange MIREL_RANGE              = {MessageQueueKind::BACKEND, 33218, 33273};
inline constexpr MessageRange COMPUTER_INPUT_RANGE     = {MessageQueueKind::BACKEND, 33468, 33477};
inline constexpr MessageRange CONTROL_RANGE            = {MessageQueueKind::BACKEND, 33968, 33978};
inline constexpr MessageRange LAYER_RANGE              = {MessageQueueKind::BACKEND, 34718, 34726};
inline constexpr MessageRange ZONE_RANGE               = {MessageQueueKind::BACKEND, 34968, 34972};
inline constexpr MessageRange MIREL_GUI_RANGE          = {MessageQueueKind::WINDOW,  33218, 33269};
inline constexpr MessageRange COMPUTER_INPUT_GUI_RANGE = {MessageQueueKind::WINDOW,  33468, 33473};
inline constexpr MessageRange CONTROL_GUI_RANGE        = {MessageQueueKind::WINDOW,  33968, 33974};
inline constexpr MessageRange LAYER_GUI_RANGE          = {MessageQueueKind::WINDOW,  34718, 34729};
inline constexpr MessageRange ZONE_GUI_RANGE           = {MessageQueueKind::WINDOW,  34968, 34972};
inline constexpr MessageRange MIDI_ENGINE_RANGE        = {MessageQueueKind::ENGINE,  32870, 32883};
inline constexpr MessageRange DISPLAY_RANGE            = {MessageQueueKind::DISPLAY, 32870, 32880};

inline constexpr std::array MESSAGE_RANGES = {
    MIREL_RANGE,     COMPUTER_INPUT_RANGE,     CONTROL_RANGE,     LAYER_RANGE,     ZONE_RANGE,
    MIREL_GUI_RANGE, COMPUTER_INPUT_GUI_RANGE, CONTROL_GUI_RANGE, LAYER_GUI_RANGE, ZONE_GUI_RANGE,
    MIDI_ENGINE_RANGE, DISPLAY_RANGE,
};
// clang-format on

// Ends the backend worker. No manager sees it.
inline constexpr UINT QUIT_BACKEND_WORKER = 32969;

// Ends the engine's and the display's message threads.
inline constexpr UINT QUIT_MESSAGE_THREAD = 32869;

}
