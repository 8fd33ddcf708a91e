#pragma once

#include <sstream>

namespace WindowsLib {

// A stream's buffer whose text goes to the debugger at each flush and at its end.
class DbgBuf : public std::stringbuf {
public:
    DbgBuf() = default;
    ~DbgBuf() override;

    // While false, text is discarded. Initially true.
    void setEnabled(bool enabled) { m_enabled = enabled; }
    bool isEnabled() const { return m_enabled; }

protected:
    int sync() override;

private:
    void passOn();

    bool m_enabled = true;
};

}
