#include "Platform/xml/XmlText.h"

#include "Platform/xml/XmlReader.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace Platform {

namespace {

constexpr std::string_view WHITE_SPACE = " \t\r\n";
constexpr std::string_view DECLARATION_START = "<?xml";

enum class Encoding { UTF_8, UTF_16, LATIN_1, WINDOWS_1252, ASCII };

struct EncodingName {
    std::string_view name;
    Encoding encoding;
};

constexpr std::array ENCODING_NAMES = {
    EncodingName{"utf-8", Encoding::UTF_8},        EncodingName{"utf-16", Encoding::UTF_16},
    EncodingName{"iso-8859-1", Encoding::LATIN_1}, EncodingName{"windows-1252", Encoding::WINDOWS_1252},
    EncodingName{"us-ascii", Encoding::ASCII},
};

// The characters of windows-1252 from 0x80 to 0x9F; the five unassigned ones stand for themselves.
constexpr std::array<std::uint16_t, 32> WINDOWS_1252_HIGH = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr std::uint32_t BAD = 0xFFFFFFFF;
constexpr std::uint32_t REPLACEMENT = 0xFFFD;

bool isWhiteSpace(char character) {
    return WHITE_SPACE.find(character) != std::string_view::npos;
}

char lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool sameLetters(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return lower(a) == lower(b); });
}

bool isXmlCharacter(std::uint32_t character) {
    return character == '\t' || character == '\n' || character == '\r' || (character >= 0x20 && character <= 0xD7FF) ||
           (character >= 0xE000 && character <= 0xFFFD) || (character >= 0x10000 && character <= 0x10FFFF);
}

void appendUtf8(std::string& text, std::uint32_t character) {
    const auto tail = [&](int shift) { text += static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
        tail(0);
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0 | (character >> 12));
        tail(6);
        tail(0);
    } else {
        text += static_cast<char>(0xF0 | (character >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

// Takes one character from bytes in an encoding; BAD if they don't form one.
class Source {
public:
    Source(std::string_view bytes, Encoding encoding, bool bigEndian)
        : m_bytes(bytes), m_encoding(encoding), m_bigEndian(bigEndian) {}

    bool atEnd() const { return m_position == m_bytes.size(); }

    std::size_t position() const { return m_position; }
    void setPosition(std::size_t position) { m_position = position; }

    std::uint32_t take() {
        switch (m_encoding) {
            case Encoding::UTF_8: return takeUtf8();
            case Encoding::UTF_16: return takeUtf16();
            case Encoding::LATIN_1: return takeByte();
            case Encoding::WINDOWS_1252: {
                const std::uint32_t byte = takeByte();
                return byte >= 0x80 && byte < 0xA0 ? WINDOWS_1252_HIGH[byte - 0x80] : byte;
            }
            case Encoding::ASCII: {
                const std::uint32_t byte = takeByte();
                return byte < 0x80 ? byte : BAD;
            }
        }
        return BAD;
    }

private:
    std::uint32_t takeByte() { return static_cast<unsigned char>(m_bytes[m_position++]); }

    std::uint32_t takeUtf8() {
        const std::uint32_t first = takeByte();
        if (first < 0x80)
            return first;
        const int length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
        if (first < 0xC2 || first > 0xF4 || m_bytes.size() - m_position < static_cast<std::size_t>(length - 1))
            return BAD;
        std::uint32_t character = first & (0xFFu >> (length + 1));
        for (int i = 1; i < length; ++i) {
            const std::uint32_t next = takeByte();
            if ((next & 0xC0) != 0x80)
                return BAD;
            character = character << 6 | (next & 0x3F);
        }
        const bool tooLong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
        return tooLong ? BAD : character;
    }

    std::uint32_t takeUnit() {
        if (m_bytes.size() - m_position < 2) {
            m_position = m_bytes.size();
            return BAD;
        }
        const std::uint32_t first = takeByte();
        const std::uint32_t second = takeByte();
        return m_bigEndian ? first << 8 | second : second << 8 | first;
    }

    std::uint32_t takeUtf16() {
        const std::uint32_t unit = takeUnit();
        if (unit == BAD || unit < 0xD800 || unit > 0xDFFF)
            return unit;
        const std::uint32_t second = unit < 0xDC00 ? takeUnit() : BAD;
        if (second == BAD || second < 0xDC00 || second > 0xDFFF)
            return BAD;
        return 0x10000 + ((unit - 0xD800) << 10 | (second - 0xDC00));
    }

    std::string_view m_bytes;
    std::size_t m_position = 0;
    Encoding m_encoding;
    bool m_bigEndian;
};

std::optional<std::string> toUtf8(std::string_view bytes, Encoding encoding, bool bigEndian) {
    std::string text;
    text.reserve(bytes.size());
    Source source(bytes, encoding, bigEndian);
    bool afterReturn = false;
    while (!source.atEnd()) {
        const std::uint32_t character = source.take();
        if (!isXmlCharacter(character))
            return std::nullopt;
        if (character != '\n' || !afterReturn)
            appendUtf8(text, character == '\r' ? '\n' : character);
        afterReturn = character == '\r';
    }
    return text;
}

// The declaration at the start of a document.
struct Declaration {
    std::size_t length = 0;
    std::string encoding;
};

class DeclarationReader {
public:
    explicit DeclarationReader(std::string_view text) : m_text(text) {}

    // Nothing if it is malformed; an empty declaration if the document has none.
    std::optional<Declaration> read() {
        Declaration declaration;
        if (!m_text.starts_with(DECLARATION_START) || m_text.size() == DECLARATION_START.size() ||
            !isWhiteSpace(m_text[DECLARATION_START.size()]))
            return declaration;
        m_position = DECLARATION_START.size();
        if (take("version") != "1.0")
            return std::nullopt;
        declaration.encoding = take("encoding").value_or("");
        const auto standalone = take("standalone");
        if (standalone && standalone != "yes" && standalone != "no")
            return std::nullopt;
        skipBlanks();
        if (m_malformed || !m_text.substr(m_position).starts_with("?>"))
            return std::nullopt;
        declaration.length = m_position + 2;
        return declaration;
    }

private:
    void skipBlanks() {
        while (m_position < m_text.size() && isWhiteSpace(m_text[m_position]))
            ++m_position;
    }

    // The value of name="value" if that comes next; otherwise nothing, and nothing is consumed.
    std::optional<std::string> take(std::string_view name) {
        const std::size_t start = m_position;
        skipBlanks();
        if (m_position == start || !m_text.substr(m_position).starts_with(name)) {
            m_position = start;
            return std::nullopt;
        }
        m_position += name.size();
        skipBlanks();
        if (m_position < m_text.size() && m_text[m_position] == '=') {
            ++m_position;
            skipBlanks();
            const char quote = m_position < m_text.size() ? m_text[m_position] : '\0';
            const std::size_t end = m_text.find(quote, m_position + 1);
            if ((quote == '"' || quote == '\'') && end != std::string_view::npos) {
                const std::string value(m_text.substr(m_position + 1, end - m_position - 1));
                m_position = end + 1;
                m_malformed = m_malformed || value.empty();
                return value;
            }
        }
        m_malformed = true;
        return std::nullopt;
    }

    std::string_view m_text;
    std::size_t m_position = 0;
    bool m_malformed = false;
};

std::optional<Encoding> encodingOfName(const std::string& name) {
    if (name.empty())
        return Encoding::UTF_8;
    for (const EncodingName& row : ENCODING_NAMES) {
        if (sameLetters(row.name, name))
            return row.encoding;
    }
    return std::nullopt;
}

int countLineEnds(std::string_view text) {
    int count = 0;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] == '\n' || (text[i] == '\r' && text.substr(i + 1, 1) != "\n"))
            ++count;
    return count;
}

// Trailing white space doesn't concern the parser, and some count it against a limit of their own.
std::optional<DecodedXml> withoutTrailingSpace(std::optional<std::string> text, int firstLine) {
    if (!text)
        return std::nullopt;
    text->erase(text->find_last_not_of(WHITE_SPACE) + 1);
    return DecodedXml{std::move(*text), firstLine, false, false};
}

std::optional<DecodedXml> fromUtf8(std::optional<DecodedXml> decoded) {
    if (decoded)
        decoded->wasUtf8 = true;
    return decoded;
}

std::optional<DecodedXml> fromUtf16(std::optional<DecodedXml> decoded) {
    if (decoded)
        decoded->wasUtf16 = true;
    return decoded;
}

std::optional<DecodedXml> withoutDeclaration(const std::optional<std::string>& text) {
    if (!text)
        return std::nullopt;
    const auto declaration = DeclarationReader(*text).read();
    if (!declaration)
        return std::nullopt;
    return withoutTrailingSpace(text->substr(declaration->length),
                                1 + countLineEnds(std::string_view(*text).substr(0, declaration->length)));
}

}

std::optional<DecodedXml> decodeXml(std::string_view document) {
    using namespace std::string_view_literals;
    if (document.starts_with("\xEF\xBB\xBF"))
        return fromUtf8(withoutDeclaration(toUtf8(document.substr(3), Encoding::UTF_8, false)));
    if (document.starts_with("\xFF\xFE"))
        return fromUtf16(withoutDeclaration(toUtf8(document.substr(2), Encoding::UTF_16, false)));
    if (document.starts_with("\xFE\xFF"))
        return fromUtf16(withoutDeclaration(toUtf8(document.substr(2), Encoding::UTF_16, true)));
    if (document.starts_with("<\0?\0"sv))
        return fromUtf16(withoutDeclaration(toUtf8(document, Encoding::UTF_16, false)));
    if (document.starts_with("\0<\0?"sv))
        return fromUtf16(withoutDeclaration(toUtf8(document, Encoding::UTF_16, true)));
    const auto declaration = DeclarationReader(document).read();
    const auto encoding = declaration ? encodingOfName(declaration->encoding) : std::nullopt;
    // A declaration that can be read byte by byte contradicts a two-byte encoding.
    if (!encoding || encoding == Encoding::UTF_16)
        return std::nullopt;
    auto decoded = withoutTrailingSpace(toUtf8(document.substr(declaration->length), *encoding, false),
                                        1 + countLineEnds(document.substr(0, declaration->length)));
    return encoding == Encoding::UTF_8 ? fromUtf8(std::move(decoded)) : decoded;
}

std::string withXmlCharacters(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    Source source(text, Encoding::UTF_8, false);
    while (!source.atEnd()) {
        const std::size_t start = source.position();
        std::uint32_t character = source.take();
        // The bytes after an invalid one may be valid again.
        if (character == BAD)
            source.setPosition(start + 1);
        if (!isXmlCharacter(character))
            character = REPLACEMENT;
        appendUtf8(result, character);
    }
    return result;
}

std::string utf8OrWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    Source source(bytes, Encoding::UTF_8, false);
    while (!source.atEnd()) {
        if (source.take() != BAD)
            continue;
        Source oldSource(bytes, Encoding::WINDOWS_1252, false);
        while (!oldSource.atEnd())
            appendUtf8(text, oldSource.take());
        return text;
    }
    return text.assign(bytes);
}

namespace {

// Walks over the markup and counts.
class LimitCheck {
public:
    explicit LimitCheck(std::string_view text) : m_text(text) {}

    bool run() {
        for (;;) {
            const std::size_t textStart = m_position;
            m_position = m_text.find('<', m_position);
            if (m_position == std::string_view::npos)
                return true;
            const std::size_t markupStart = m_position;
            m_nodes += comes("</") ? 0 : 1;
            if (m_nodes > XML_MAX_NODES || !passMarkup() || markupStart - textStart > XML_MAX_RUN ||
                m_position - markupStart > XML_MAX_RUN)
                return false;
        }
    }

private:
    bool comes(std::string_view what) const { return m_text.substr(m_position).starts_with(what); }

    bool passTo(std::string_view end, std::size_t from) {
        const std::size_t found = m_text.find(end, from);
        if (found == std::string_view::npos)
            return false;
        m_position = found + end.size();
        return true;
    }

    bool passMarkup() {
        if (comes("<!--"))
            return passTo("-->", m_position + 4);
        if (comes("<![CDATA["))
            return passTo("]]>", m_position + 9);
        if (comes("<!"))
            return false;
        if (comes("<?"))
            return passInstruction();
        if (comes("</"))
            return --m_depth >= 0 && passTo(">", m_position);
        return passStartTag();
    }

    // The name "xml" is reserved for the declaration, which has been removed.
    bool passInstruction() {
        const std::size_t start = m_position + 2;
        if (!passTo("?>", start))
            return false;
        const std::string_view content = m_text.substr(start, m_position - 2 - start);
        return !sameLetters(content.substr(0, content.find_first_of(WHITE_SPACE)), "xml");
    }

    // Element names have no prefix; attribute names may have the ones that XML itself defines.
    bool mayHavePrefix(std::size_t nameStart, std::size_t colon) const {
        const std::string_view prefix = m_text.substr(nameStart, colon - nameStart);
        return nameStart != m_position + 1 && (prefix == "xml" || prefix == "xmlns");
    }

    bool passStartTag() {
        std::size_t attributes = 0;
        std::size_t nameStart = m_position + 1;
        char quote = '\0';
        for (std::size_t i = m_position + 1; i < m_text.size(); ++i) {
            const char character = m_text[i];
            if (character == '<')
                return false;
            if (quote != '\0') {
                if (character == quote)
                    quote = '\0';
            } else if (isWhiteSpace(character)) {
                nameStart = i + 1;
            } else if (character == ':') {
                if (!mayHavePrefix(nameStart, i))
                    return false;
            } else if (character == '"' || character == '\'') {
                quote = character;
                ++m_nodes;
                if (++attributes > XML_MAX_ATTRIBUTES || m_nodes > XML_MAX_NODES)
                    return false;
            } else if (character == '>') {
                m_position = i + 1;
                const bool isEmpty = m_text[i - 1] == '/';
                m_depth += isEmpty ? 0 : 1;
                return m_depth + (isEmpty ? 1 : 0) <= XML_MAX_DEPTH;
            }
        }
        return false;
    }

    std::string_view m_text;
    std::size_t m_position = 0;
    std::size_t m_nodes = 0;
    int m_depth = 0;
};

}

bool xmlKeepsLimits(std::string_view text) {
    return LimitCheck(text).run();
}

}
