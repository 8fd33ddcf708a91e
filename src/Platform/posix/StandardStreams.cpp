#include "Platform/StandardStreams.h"

namespace Platform {

// They always do.
void useBinaryStandardStreams() {}

}
