// Texts of notes, fractions, cells and selectors: any text gives some value, whose own text reads back to itself.
#include "Backend/functions/values/RelativeFixedValue.h"
#include "Backend/functions/values/SelectControlType.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/midi/Fraction.h"
#include "Backend/midi/Note.h"

#include <cstdlib>

namespace {

template <typename Value>
void check(std::string_view text) {
    const std::string written = Value(text).toXmlString();
    if (Value(std::string_view(written)).toXmlString() != written)
        std::abort();
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    check<Backend::Note>(text);
    check<Backend::Fraction>(text);
    check<Cell>(text);
    check<RelativeFixedValue>(text);
    check<SelectType>(text);
    check<SelectControlType>(text);
    return 0;
}
