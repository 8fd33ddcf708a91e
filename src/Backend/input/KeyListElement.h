#pragma once

#include "Backend/core/xml/ListElement.h"

#include <string>

namespace Backend::ComputerInput {

// The attributes of an element that holds keys.
struct KeyListElement : ListElement {
    static auto attributes() {
        return std::tuple_cat(
            ListElement::attributes(),
            std::tuple(Attribute{"useKeyUpMod", &KeyListElement::useKeyUpMod, false, Written::SOMETIMES}));
    }

    bool useKeyUpMod = false;  // Whether the release of a key is looked up with the modifiers that are held then.
};

// The attributes of the element in a program. If it names a preset, the keys come from that preset.
struct ProgramKeysElement : KeyListElement {
    static auto attributes() {
        return std::tuple_cat(
            std::tuple(Attribute{"preset", &ProgramKeysElement::preset, std::string(), Written::UNLESS_MISSING}),
            KeyListElement::attributes());
    }

    std::string preset;
};

}
