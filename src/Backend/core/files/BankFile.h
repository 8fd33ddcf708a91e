// The text of bank files. A bank is never built anew: programs are put in and cut off by lines, and all other lines
// stay as they are, byte for byte. Every tag of a program block has a line to itself.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Backend::BankFile {

inline constexpr const char* BANK_TAG = "Bank";
inline constexpr const char* PROGRAM_FILE_TAG = "ProgramFile";
inline constexpr const char* PROGRAM_TEXT_TAG = "MirelProgramFile";
inline constexpr const char* PROGRAM_TAG = "Program";

// [any] The names of the programs of a bank, in its order. Empty if there is no such file or it is no XML.
std::vector<std::string> readProgramNames(const std::string& path);

// [any] The bytes of a bank that a block can be put into: as they are, or in UTF-8 if the file is XML in an encoding
// that the block would not be in. Nothing if the file can't be read.
[[nodiscard]] std::optional<std::string> readBank(const std::string& path, std::string_view block);

// [any] Whether nothing is lost by writing this text in place of that one: the desk can read the new one, or could not
// read the old one.
[[nodiscard]] bool remainsReadable(std::string_view oldBank, std::string_view newBank);

// [any] A file of one program: the header, a root of this name and the program's block in it.
std::string wrapProgram(const std::string& rootTag, const std::string& programBlock);

// [any] The bank with a block in place of the program of an index. With an index beyond the last program the block
// stands behind everything.
std::string replaceProgram(std::string_view bank, int index, std::string_view programBlock);

// More programs than this are not added at once: the bank must remain one that can be read.
inline constexpr int MAX_ADDED_PROGRAMS = 100000;

// [any] The bank with its first size programs, or with empty ones after its count; nothing if those would be too many.
std::optional<std::string> resize(std::string_view bank, int count, int size);

}
