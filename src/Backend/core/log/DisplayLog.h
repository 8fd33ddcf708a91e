#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Backend::Display {

class DisplayListener;

// The text of the log, and how much of it was shown. When it is full, its older half is dropped.
class DisplayLog {
public:
    static constexpr std::size_t CAPACITY = 30000;
    static constexpr std::size_t MAX_ADDITION = CAPACITY / 2;

    // Text of MAX_ADDITION bytes or more is dropped.
    void add(std::string_view text);

    // Passes on what was not shown yet, or everything.
    void flush(DisplayListener& listener);
    void sendAll(DisplayListener& listener);

    const std::string& getText() const { return m_text; }

private:
    void keepLastHalf();

    std::string m_text;
    std::size_t m_sentLength = 0;
};

}
