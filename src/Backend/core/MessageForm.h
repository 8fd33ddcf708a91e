#pragma once
#include <cstdint>
namespace Backend {
enum class MessageForm { Param, Alloc };
constexpr MessageForm chooseMessageForm(std::int32_t row, std::int32_t column, std::int32_t ppq) {
    if (static_cast<std::uint32_t>(row) <= 15 && static_cast<std::uint32_t>(column) <= 15) return MessageForm::Alloc;
    return ppq < 0 ? MessageForm::Param : MessageForm::Alloc;
}
}
