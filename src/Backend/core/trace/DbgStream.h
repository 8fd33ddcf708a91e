#pragma once

#include "Backend/core/trace/DbgBuf.h"

#include <ostream>

namespace WindowsLib {

// A stream to the debugger. Text arrives with the next std::flush or std::endl.
class DbgStream : public std::ostream {
public:
    DbgStream();

    // [one thread at a time] The stream of the program.
    static DbgStream& instance();

    DbgBuf& buffer() { return m_buffer; }

private:
    DbgBuf m_buffer;
};

}
