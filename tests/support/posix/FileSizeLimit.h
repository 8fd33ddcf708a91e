#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

namespace TestSupport {

// Simulates a full disk: files of this process can't grow beyond a size while this object exists.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) : m_oldHandler(std::signal(SIGXFSZ, SIG_IGN)) {
        EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &m_old), 0);
        rlimit limit = m_old;
        limit.rlim_cur = bytes;
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    }

    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldHandler);
    }

    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    void (*m_oldHandler)(int);
    rlimit m_old = {};
};

}
