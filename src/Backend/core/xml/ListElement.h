#pragma once

#include "Backend/core/xml/Attribute.h"

namespace Backend {

// The attributes of an element that holds a list.
struct ListElement {
    static auto attributes() { return std::tuple(Attribute{"merge", &ListElement::merge, false}); }

    bool merge = false;  // Whether the list is added to what is there; else it replaces that.
};

}
