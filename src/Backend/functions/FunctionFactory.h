// Creates functions. Each stores the backend that it acts on, which must outlive it.
#pragma once

#include "Backend/functions/Function.h"

#include <memory>
#include <string>

namespace Backend {
class MirelIF;
class XmlElement;
}

namespace Backend::FunctionManagement {

// From a function's element; null for any other element, and for NoFunction's.
[[nodiscard]] std::unique_ptr<Function> createFunction(const XmlElement& element, MirelIF& mirel);

// A new function as the user first gets it; null for a tag that is not a function's, and for NoFunction.
[[nodiscard]] std::unique_ptr<Function> createDefaultFunction(const std::string& xmlTag, MirelIF& mirel);

}
