#pragma once

#include <cstdint>

namespace Backend {

// How a MIDI event travels in a message: as a pointer to a copy on the heap, or packed into the two words, which have
// no room for its control and its time.
enum class MessageForm { ALLOC, PARAM };

// [any] The form for an event from a control at this cell and with this time (-1: none). Only events with neither,
// which are the most frequent, can do without the heap. A cell is a control's if both coordinates are 0 to 15.
constexpr MessageForm chooseMessageForm(int row, int column, std::int32_t ppq) {
    constexpr int CELLS = 16;
    const bool hasControl = row >= 0 && row < CELLS && column >= 0 && column < CELLS;
    return !hasControl && ppq < 0 ? MessageForm::PARAM : MessageForm::ALLOC;
}

}
