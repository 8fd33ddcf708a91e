#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Host::Cli {

enum class Version2Kind { BANK, PROGRAM, PRESET };

// [any] "bank", "program" or "preset".
[[nodiscard]] std::optional<Version2Kind> findVersion2Kind(std::string_view word);

// [main, no desk] Converts a version 2 file to the text of a file of this version. fileName: that of the file, whose
// first word tells the kind of a preset. Text that is not UTF-8 is taken for windows-1252. dataFolder: where the preset
// "000 - Default" is looked for, on top of which keys stand; without it they stand on the built-in ones. Layers keep
// the names of their sequence presets. Returns why the content is no such file, and empty when result holds the text.
std::string convertVersion2(Version2Kind kind, const std::string& fileName, const std::string& content,
                            const std::string& dataFolder, std::string& result);

}
