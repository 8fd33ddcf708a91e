#include "Gui/Rules/texts/AboutText.h"

#include "Backend/core/installation/Product.h"

#include <iomanip>
#include <sstream>

namespace Gui {

namespace {

constexpr const char* VERSION_LABEL = "\r\nVersion ";
constexpr const char* CREDITS =
    "\r\n"
    "\r\nMIDI from the computer's keyboard, from controls on the screen and from MIDI ports,"
    "\r\nplayed through zones, layers, arpeggios and sequences."
    "\r\n"
    "\r\nWritten by the Mirel developers."
    "\r\nThank you for playing.";

}

std::string describeProduct(const std::optional<BuildTime>& built) {
    std::ostringstream text;
    text << MIREL_PRODUCT << VERSION_LABEL << MIREL_VERSION << ' ';
    if (built)
        text << std::setfill('0') << '(' << std::setw(2) << built->month << '/' << std::setw(2) << built->day << '/'
             << std::setw(4) << built->year << ' ' << std::setw(2) << built->hour << ':' << std::setw(2)
             << built->minute << ':' << std::setw(2) << built->second << ')';
    text << CREDITS;
    return text.str();
}

}
