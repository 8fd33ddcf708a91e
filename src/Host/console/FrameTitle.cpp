#include "Host/console/FrameTitle.h"

#include "Backend/core/installation/Product.h"

namespace Host::Console {

std::string makeFrameTitle(const std::string& bank, const std::string& program, int programIndex, bool globalKeyboard) {
    constexpr const char* SEPARATOR = " - ";
    std::string title;
    if (!program.empty())
        title += std::to_string(programIndex + 1) + SEPARATOR + program + SEPARATOR;
    if (!bank.empty())
        title += bank + SEPARATOR;
    title += MIREL_PRODUCT;
    if (globalKeyboard)
        title += " (global keyboard)";
    return title;
}

}
