#include "Backend/core/trace/DbgStream.h"

namespace WindowsLib {

DbgStream::DbgStream() : std::ostream(nullptr) {
    rdbuf(&m_buffer);
}

DbgStream& DbgStream::instance() {
    static DbgStream stream;
    return stream;
}

}
