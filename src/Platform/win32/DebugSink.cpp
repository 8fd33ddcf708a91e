#include "Platform/DebugSink.h"

#include <windows.h>

namespace Platform {

void writeSystemDebugText(const std::string& text) {
    OutputDebugStringA(text.c_str());
}

std::string debugFilePath() {
    return "c:\\dbg.txt";
}

}
