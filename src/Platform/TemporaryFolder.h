#pragma once

#include <string>

namespace Platform {

// A new folder for this object alone, removed with its contents when the object is destroyed.
class TemporaryFolder {
public:
    // [any] Throws std::runtime_error if no folder can be created.
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& getPath() const { return m_path; }

private:
    std::string m_path;
};

}
