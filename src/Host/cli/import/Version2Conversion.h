#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Host::Cli {

enum class Version2Kind { BANK, PROGRAM, PRESET };

// [any] "bank", "program" or "preset".
[[nodiscard]] std::optional<Version2Kind> findVersion2Kind(std::string_view word);

// [main, no desk] Converts a version 2 file to the text of a current one. fileName: the file's name, whose first word
// gives the kind of a preset. Text that is not UTF-8 is taken as windows-1252. dataFolder: where to find the preset
// "000 - Default", to which keys are added; without it they are added to the built-in ones. Layers keep the names of
// their sequence presets. Returns why the content can't be converted, or empty text when result holds the new file.
std::string convertVersion2(Version2Kind kind, const std::string& fileName, const std::string& content,
                            const std::string& dataFolder, std::string& result);

}
