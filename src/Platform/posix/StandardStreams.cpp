#include "Platform/StandardStreams.h"

namespace Platform {

// They always are.
void useBinaryStandardStreams() {}

}
