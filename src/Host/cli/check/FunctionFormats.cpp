#include "Host/cli/check/FunctionFormats.h"

#include "Backend/functions/Functions.h"
#include "Host/cli/check/FileCheck.h"

#include <algorithm>
#include <array>
#include <type_traits>

namespace Host::Cli {

using namespace Backend;
using namespace Backend::FunctionManagement;

namespace {

template <class Function>
constexpr ElementFormat formatOf(const FunctionRow<Function>& row) {
    ElementFormat format{.tag = row.xmlTag, .attributes = attributesOf<Function>};
    if constexpr (std::is_same_v<Function, Functions::LoadComputerInputPreset>)
        format.more = &FileCheck::checkComputerInputPreset;
    else if constexpr (std::is_same_v<Function, Functions::LoadControlPreset>)
        format.more = &FileCheck::checkControlPreset;
    else if constexpr (std::is_same_v<Function, Functions::LoadLayerPreset>)
        format.more = &FileCheck::checkLayerPreset;
    return format;
}

constexpr auto FORMATS = std::apply([](const auto&... rows) { return std::array{formatOf(rows)...}; }, FUNCTION_LIST);

}

const ElementFormat* findFunctionFormat(std::string_view tag) {
    const auto found =
        std::find_if(FORMATS.begin(), FORMATS.end(), [tag](const ElementFormat& format) { return tag == format.tag; });
    return found == FORMATS.end() ? nullptr : &*found;
}

}
