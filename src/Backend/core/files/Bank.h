#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace Backend {

// A file of programs, and their names in file order.
class Bank {
public:
    Bank() = default;
    Bank(std::string path, std::vector<std::string> programNames)
        : m_path(std::move(path)), m_programNames(std::move(programNames)) {}

    const std::string& getPath() const { return m_path; }
    const std::vector<std::string>& getProgramNames() const { return m_programNames; }

    // The name of the file without its extension.
    std::string getName() const;

private:
    std::string m_path;
    std::vector<std::string> m_programNames;
};

}
