#include "Platform/Sleep.h"

#include <chrono>
#include <thread>

namespace Platform {

void sleepMilliseconds(unsigned milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void sleepAnsweringMilliseconds(unsigned milliseconds) {
    sleepMilliseconds(milliseconds);
}

}
