#include "Backend/core/trace/DbgBuf.h"

#include "Platform/DebugSink.h"

namespace WindowsLib {

DbgBuf::~DbgBuf() {
    passOn();
}

int DbgBuf::sync() {
    passOn();
    return 0;
}

void DbgBuf::passOn() {
    if (m_enabled)
        Platform::writeDebugText(str());
    str({});
}

}
