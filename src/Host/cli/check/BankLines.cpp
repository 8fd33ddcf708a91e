#include "Host/cli/check/BankLines.h"

#include "Backend/core/files/BankFile.h"
#include "Backend/core/xml/Text.h"
#include "Platform/xml/XmlMarkup.h"

#include <algorithm>

namespace Host::Cli {

using Backend::BankFile::PROGRAM_TAG;
using Platform::XmlMarkup;

namespace {

// The line starts that the desk looks for.
constexpr std::string_view PROGRAM_START = "<Program ";
constexpr std::string_view PROGRAM_END = "</Program>";
constexpr std::string_view BANK_END = "</Bank>";

constexpr int BANK_LEVEL = 0;
constexpr int PROGRAM_LEVEL = 1;
constexpr int COMPONENT_LEVEL = 2;

bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

bool isBlank(std::string_view text) {
    return Backend::Text::trim(text).empty();
}

class BankLines {
public:
    explicit BankLines(const Platform::DecodedXml& document) : m_text(document.text), m_markups(document) {}

    Complaints check() {
        int level = BANK_LEVEL;
        while (const auto markup = m_markups.next()) {
            if (markup->kind == XmlMarkup::Kind::END_TAG)
                --level;
            if (markup->kind == XmlMarkup::Kind::OTHER)
                checkOther(*markup);
            else
                checkTag(*markup, level);
            if (markup->kind == XmlMarkup::Kind::START_TAG)
                ++level;
        }
        return std::move(m_complaints);
    }

private:
    // One for each line is enough.
    void complain(const XmlMarkup& markup, std::string text) {
        if (m_complaints.empty() || m_complaints.back().line != markup.line)
            m_complaints.push_back({markup.line, std::move(text)});
    }

    void checkOther(const XmlMarkup& markup) {
        for (const std::string_view tag : {PROGRAM_START, PROGRAM_END, BANK_END})
            if (contains(markup.text, tag))
                complain(markup, "\"" + std::string(tag) +
                                     "\" in a comment or the like is taken for a tag when the bank is changed");
    }

    void checkTag(const XmlMarkup& markup, int level) {
        const bool isProgram = level == PROGRAM_LEVEL && markup.name() == PROGRAM_TAG;
        if (level == PROGRAM_LEVEL)
            m_isInProgram = isProgram && markup.kind == XmlMarkup::Kind::START_TAG;
        if (isProgram)
            checkProgramTag(markup);
        else if (markup.name() == PROGRAM_TAG)
            complain(markup,
                     "an element Program that is not a child of the bank is taken for one when the bank is changed");
        else if (level == BANK_LEVEL && markup.kind == XmlMarkup::Kind::END_TAG && markup.text != BANK_END)
            complain(markup, "the bank's end tag must be just " + std::string(BANK_END));
        if (isProgram || isEndOfBank(markup, level) || (level == COMPONENT_LEVEL && m_isInProgram))
            checkOwnLine(markup);
    }

    static bool isEndOfBank(const XmlMarkup& markup, int level) {
        return level == BANK_LEVEL && markup.kind == XmlMarkup::Kind::END_TAG;
    }

    void checkProgramTag(const XmlMarkup& markup) {
        if (markup.kind == XmlMarkup::Kind::EMPTY_TAG)
            complain(markup, "a program in a bank needs an end tag on a line of its own");
        else if (markup.kind == XmlMarkup::Kind::END_TAG && markup.text != PROGRAM_END)
            complain(markup, "a program's end tag must be just " + std::string(PROGRAM_END));
        else if (markup.isStart() && !markup.text.starts_with(PROGRAM_START))
            complain(markup, "a program's tag must begin with \"" + std::string(PROGRAM_START) + "\"");
    }

    void checkOwnLine(const XmlMarkup& markup) {
        const std::size_t before = m_text.substr(0, markup.position).rfind('\n');
        const std::size_t start = before == std::string_view::npos ? 0 : before + 1;
        const std::size_t behind = markup.position + markup.text.size();
        const std::size_t end = std::min(m_text.find('\n', behind), m_text.size());
        if (!isBlank(m_text.substr(start, markup.position - start)) || !isBlank(m_text.substr(behind, end - behind)))
            complain(markup, "a tag of a program's frame shares its line, but banks are changed line by line");
    }

    std::string_view m_text;
    Platform::XmlMarkupReader m_markups;
    bool m_isInProgram = false;
    Complaints m_complaints;
};

// The line of the first carriage return without a newline after it; 0 if there is none.
int findLoneReturn(std::string_view content) {
    int line = 1;
    for (std::size_t i = 0; i < content.size(); ++i) {
        if (content[i] == '\n')
            ++line;
        else if (content[i] == '\r' && content.substr(i + 1, 1) != "\n")
            return line;
    }
    return 0;
}

}

Complaints checkBankLines(std::string_view content) {
    if (contains(content, std::string_view("\0", 1)))
        return {{1, "the bank is in UTF-16, in which the desk finds no programs to change"}};
    if (const int line = findLoneReturn(content); line > 0)
        return {{line, "a carriage return without a newline doesn't end a line when the bank is changed"}};
    const auto document = Platform::decodeXml(content);
    return document ? BankLines(*document).check() : Complaints();
}

}
