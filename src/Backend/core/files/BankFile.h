// The text of bank files. A bank is never rewritten from scratch: programs are inserted and cut line by line, and all
// other lines stay as they are, byte for byte. Every tag of a program block has a line to itself.
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

// [any] The names of a bank's programs, in order. Empty if the file is missing or not XML.
std::vector<std::string> readProgramNames(const std::string& path);

// [any] The bytes of a bank, ready to insert a block into: unchanged, or in UTF-8 if the file is XML in an encoding
// that doesn't match the block's. Nothing if the file can't be read.
[[nodiscard]] std::optional<std::string> readBank(const std::string& path, std::string_view block);

// [any] Whether replacing one text by the other loses nothing: the desk can read the new one, or could not read the old
// one.
[[nodiscard]] bool remainsReadable(std::string_view oldBank, std::string_view newBank);

// [any] A file of one program: the header, and a root with this name that contains the program's block.
std::string wrapProgram(const std::string& rootTag, const std::string& programBlock);

// [any] The bank with a block in place of the program with an index. If the index is beyond the last program, the block
// is appended to everything.
std::string replaceProgram(std::string_view bank, int index, std::string_view programBlock);

// More programs than this are not added at once, because the bank must remain readable.
inline constexpr int MAX_ADDED_PROGRAMS = 100000;

// [any] The bank cut to its first size programs, or with empty ones added after its count; nothing if those would be
// too many.
std::optional<std::string> resize(std::string_view bank, int count, int size);

}
