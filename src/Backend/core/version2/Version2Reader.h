#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Backend {

// The lines of a version 2 file. Those programs did not use UTF-8; bytes that aren't valid UTF-8 are windows-1252.
class Version2Reader {
public:
    explicit Version2Reader(std::string_view bytes);

    Version2Reader(const Version2Reader&) = delete;
    Version2Reader& operator=(const Version2Reader&) = delete;

    // The current line without its end; don't call it at the end.
    std::string_view getLine() const { return m_line; }
    bool isAtEnd() const { return m_isAtEnd; }

    // Whether there is a line that begins with this letter.
    bool isAt(char letter) const { return !m_isAtEnd && m_line.starts_with(letter); }

    void nextLine() { readLine(); }
    void skipBlankLines();

private:
    void readLine();

    const std::string m_text;
    std::string_view m_rest;
    std::string_view m_line;
    bool m_isAtEnd = false;
};

// The fields of a line, separated by white space.
class Version2Fields {
public:
    explicit Version2Fields(std::string_view line) : m_rest(line) {}

    // The next field; empty after the last.
    std::string_view next();

    // The next field as a number, or the default.
    std::int32_t nextNumber(std::int32_t defaultValue);

    // The next field as a flag, which any number but 0 sets.
    bool nextFlag(bool defaultValue) { return nextNumber(defaultValue) != 0; }

    // The next field as text, with blanks for "_"; "-" is empty.
    std::string nextText();

private:
    std::string_view m_rest;
};

// [any] Text with blanks for "_".
std::string withBlanks(std::string_view text);

}
