// Prepares a document for the system's parser, so that all parsers get the same simple input.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Platform {

struct DecodedXml {
    std::string text;
    int firstLine = 1;  // The line of the document on which the text begins.
    bool wasUtf8 = false;
    bool wasUtf16 = false;  // In all other encodings, ASCII characters are the same bytes as here.
};

// [any] The document as UTF-8 without byte order mark, XML declaration and trailing white space, its line ends turned
// into newlines. A byte order mark overrides the declared encoding. Nothing if the declaration is malformed, the
// encoding is unknown, or the bytes are invalid in it or hold a character that XML doesn't allow.
[[nodiscard]] std::optional<DecodedXml> decodeXml(std::string_view document);

// [any] UTF-8 text in which U+FFFD replaces every invalid byte and every character that no document can hold.
std::string withXmlCharacters(std::string_view text);

// [any] The text itself if it is UTF-8, otherwise its bytes decoded as windows-1252.
std::string utf8OrWindows1252(std::string_view bytes);

// [any] Whether the markup keeps the limits of XmlReader.h and holds no DOCTYPE or other declaration. Detects some
// malformed documents, leaves the rest to the parser, and takes time in proportion to the length.
[[nodiscard]] bool xmlKeepsLimits(std::string_view text);

}
