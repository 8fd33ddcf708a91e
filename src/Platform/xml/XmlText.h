// What is done to a document before the system's parser sees it, so that all parsers get the same simple input.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Platform {

struct DecodedXml {
    std::string text;
    int firstLine = 1;  // The line of the document on which the text begins.
    bool wasUtf8 = false;
    bool wasUtf16 = false;  // In all other encodings ASCII characters are the same bytes as here.
};

// [any] The document as UTF-8 without byte order mark, XML declaration and white space at its end, with line ends as
// newlines. A byte order mark wins over the declared encoding. Nothing if the declaration is malformed, the encoding is
// unknown, or the bytes are not in it or hold a character that XML doesn't allow.
[[nodiscard]] std::optional<DecodedXml> decodeXml(std::string_view document);

// [any] UTF-8 text with the replacement character (U+FFFD) for every byte that is none and every character that no
// document can hold.
std::string withXmlCharacters(std::string_view text);

// [any] The text itself if it is UTF-8, else what its bytes are in windows-1252.
std::string utf8OrWindows1252(std::string_view bytes);

// [any] Whether the markup keeps the limits of XmlReader.h and holds no DOCTYPE or other declaration. Finds some of
// what is not well-formed, leaves the rest to the parser, and takes time in proportion to the length.
[[nodiscard]] bool xmlKeepsLimits(std::string_view text);

}
