// Files and folders by UTF-8 paths; both "/" and the system's separator divide folders.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Platform::Files {

// No file that the system reads is sensibly larger; a larger one counts as unreadable.
inline constexpr std::uintmax_t MAX_SIZE = 64u << 20;

// [any] The whole content; nothing if it can't be opened, is no plain file or is larger than maxSize bytes.
[[nodiscard]] std::optional<std::string> read(const std::string& path, std::uintmax_t maxSize = MAX_SIZE);

// [any] Replaces or makes the file in one step: written beside the target, flushed, moved over it. After a false the
// target is what it was before. False for folders, devices and read-only files.
[[nodiscard]] bool replace(const std::string& path, std::string_view content);

// [any] Adds to the end of the file, which is made if missing.
bool append(const std::string& path, std::string_view content);

// [any] Removes one file. False if it was not there or could not be removed.
bool remove(const std::string& path);

// [any] Renames or moves a file. False if that fails or if the target exists.
bool move(const std::string& from, const std::string& to);

// [any] Makes the folder and all above it. True if it is there afterwards.
bool createFolders(const std::string& path);

// [any] Removes a folder. False if it was not there, is not empty or could not be removed.
bool removeEmptyFolder(const std::string& path);

// [any] Names (without folder, with extension) of the plain files in a folder whose extension is this one (".seq"; ""
// is any), in byte order. Case counts where it does for the system's file names. Empty if there is no such folder.
std::vector<std::string> list(const std::string& folder, const std::string& extension);

// [any] The size in bytes; nothing if it is no plain file.
std::optional<std::uintmax_t> size(const std::string& path);

// [any] Text with each newline as the system's text files have it.
std::string withSystemLineEnds(std::string_view text);

// [any] folder, the separator unless the folder ends with one or is empty, name.
std::string join(const std::string& folder, const std::string& name);

}
