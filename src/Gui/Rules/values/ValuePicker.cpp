#include "Gui/Rules/values/ValuePicker.h"

#include "Backend/core/xml/Text.h"
#include "Backend/midi/Note.h"

namespace Gui {

namespace {

constexpr int NOTES = 128;
constexpr std::intptr_t TOO_WIDE = 500;  // Between the smallest value and the largest.

ValuePicker makeNotePicker() {
    ValuePicker picker;
    for (int number = 0; number < NOTES; ++number) {
        const std::string name = Backend::getNoteName(static_cast<char>(number), true);
        picker.choices.push_back({name + " (" + std::to_string(number) + ")", name});
    }
    return picker;
}

}

std::optional<ValuePicker> makeValuePicker(std::string_view text, const ValueField& field) {
    ValuePicker picker;
    std::intptr_t min = field.minIsZero ? 0 : field.min;
    const std::intptr_t max = field.maxIsZero ? 0 : field.max;
    if (field.isNote) {
        picker = makeNotePicker();
        min = 0;
    } else {
        if (min < 0 || max <= 0 || max - min >= TOO_WIDE)
            return std::nullopt;
        if (min == 0 && field.showsZeroAsBlank)
            min = 1;
        for (std::intptr_t value = min; value <= max; ++value)
            picker.choices.push_back({std::to_string(value), std::to_string(value)});
    }
    if (picker.choices.empty())
        return std::nullopt;

    if (field.isNote && Backend::Text::trim(text).empty())
        return picker;
    const std::int64_t current = readValue(text, field) - min;
    if (current >= 0 && current < static_cast<std::int64_t>(picker.choices.size()))
        picker.current = static_cast<int>(current);
    return picker;
}

}
