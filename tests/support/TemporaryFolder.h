#pragma once

#include "Platform/Files.h"
#include "Platform/MessageThread.h"
#include "Platform/SystemPath.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace TestSupport {

// A folder for one test, removed when it ends. Its name has characters beyond ASCII.
class TemporaryFolder {
public:
    TemporaryFolder() {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        const std::string base = Platform::utf8Path(std::filesystem::temp_directory_path());
        std::string name = std::string("mirel-") + test->test_suite_name() + "-" + test->name() + "-Zo\xC3\xAB-" +
                           std::to_string(Platform::currentThreadId());
        std::replace(name.begin(), name.end(), '/', '-');  // In names of tests with parameters.
        m_path = Platform::Files::join(base, name);
        removeAll();
        EXPECT_TRUE(Platform::Files::createFolders(m_path));
    }

    ~TemporaryFolder() { removeAll(); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return m_path; }
    std::string file(const std::string& name) const { return Platform::Files::join(m_path, name); }

private:
    void removeAll() const {
        std::error_code error;
        std::filesystem::remove_all(*Platform::systemPath(m_path), error);
    }

    std::string m_path;
};

}
