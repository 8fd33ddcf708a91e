#pragma once

#include "Gui/Rules/values/ValueField.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Gui {

// The values of a field as a list to choose from.
struct ValuePicker {
    static constexpr int NOTHING = -1;

    struct Choice {
        std::string caption;  // In the list.
        std::string text;     // In the field.

        bool operator==(const Choice&) const = default;
    };

    std::vector<Choice> choices;
    int current = NOTHING;  // The choice that the field shows.
};

// [any] The list for a field that shows this text. Nothing if the field has no limits, goes below 0 or has too many
// values.
std::optional<ValuePicker> makeValuePicker(std::string_view text, const ValueField& field);

}
