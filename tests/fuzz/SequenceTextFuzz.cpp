// The text of a sequence: any text gives some sequence, whose own text reads back to itself.
#include "Backend/midi/sequences/Sequence.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using Backend::SequenceManagement::Sequence;
    const std::string text = Sequence(std::string_view(reinterpret_cast<const char*>(data), size)).toString();
    if (Sequence(text).toString() != text)
        std::abort();
    return 0;
}
