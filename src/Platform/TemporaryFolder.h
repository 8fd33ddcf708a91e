#pragma once

#include <string>

namespace Platform {

// A new folder for this object alone, which goes with it and all that is in it.
class TemporaryFolder {
public:
    // [any] Throws std::runtime_error if there is no place for one.
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& getPath() const { return m_path; }

private:
    std::string m_path;
};

}
