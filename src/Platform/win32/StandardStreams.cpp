#include "Platform/StandardStreams.h"

#include <fcntl.h>
#include <io.h>
#include <stdio.h>

namespace Platform {

void useBinaryStandardStreams() {
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

}
