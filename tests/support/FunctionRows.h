#pragma once

#include "Backend/core/MirelIF.h"
#include "Backend/functions/Function.h"

#include <memory>
#include <string>
#include <vector>

namespace TestSupport {

// What every function class must be like, from tests/data/functions.txt.
struct FunctionRow {
    std::string className;
    std::string displayName;  // Empty if users can't choose it.
    std::string xmlTag;
    std::string kind;
    int helpId;
    std::string helpText;
    std::string newElement;      // How a new one is written.
    std::string emptyElement;    // How one read from an element without attributes is written.
    std::string exampleElement;  // With every attribute, each different from the two above.
};

std::vector<FunctionRow> readFunctionRows();

// The element's line as writeXml writes it, without the line end.
std::string write(const Backend::FunctionManagement::Function& function);

// The function in an element's text; null if there is none.
std::unique_ptr<Backend::FunctionManagement::Function> readFunction(const std::string& xml, Backend::MirelIF& mirel);

// A new function of a row, NoFunction included.
std::unique_ptr<Backend::FunctionManagement::Function> makeFunction(const FunctionRow& row, Backend::MirelIF& mirel);

}
