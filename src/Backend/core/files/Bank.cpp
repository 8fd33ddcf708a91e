#include "Backend/core/files/Bank.h"

namespace Backend {

std::string Bank::getName() const {
    const auto separator = m_path.find_last_of("/\\");
    const std::string name = separator == std::string::npos ? m_path : m_path.substr(separator + 1);
    return name.substr(0, name.rfind('.'));
}

}
