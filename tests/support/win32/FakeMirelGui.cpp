#include "tests/support/win32/FakeMirelGui.h"

#include <stdexcept>

namespace TestSupport {

void FakeMirelGui::missing(const char* operation) {
    throw std::logic_error(std::string("no window stands behind ") + operation);
}

}
