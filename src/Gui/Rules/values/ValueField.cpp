#include "Gui/Rules/values/ValueField.h"

#include "Backend/core/xml/Text.h"
#include "Backend/midi/Note.h"

namespace Gui {

std::int64_t readValue(std::string_view text, const ValueField& field) {
    const std::string_view trimmed = Backend::Text::trim(text);
    if (!field.isNote)
        return Backend::Text::readInteger(trimmed, 0);
    return trimmed.empty() ? 0 : Backend::Note(trimmed).getNumber();
}

}
