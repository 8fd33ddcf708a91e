#include "Platform/Sleep.h"

#include <windows.h>

namespace Platform {

void sleepMilliseconds(unsigned milliseconds) {
    Sleep(milliseconds);
}

}
