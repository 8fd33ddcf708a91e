// Files and folders by UTF-8 paths, separated by "/" or the system's own separator.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Platform::Files {

// No sensible file is larger; a larger one counts as unreadable.
inline constexpr std::uintmax_t MAX_SIZE = 64u << 20;

// [any] The whole content; nothing if the file can't be opened, is not a plain file or is larger than maxSize bytes.
[[nodiscard]] std::optional<std::string> read(const std::string& path, std::uintmax_t maxSize = MAX_SIZE);

// [any] Replaces or creates the file in one step: written beside the target, flushed, moved over it. If it returns
// false, the target is unchanged. False for folders, devices and read-only files.
[[nodiscard]] bool replace(const std::string& path, std::string_view content);

// [any] Appends to the file, creating it if missing.
bool append(const std::string& path, std::string_view content);

// [any] Removes one file. False if it did not exist or could not be removed.
bool remove(const std::string& path);

// [any] Renames or moves a file. False if that fails or if the target exists.
bool move(const std::string& from, const std::string& to);

// [any] Creates the folder and its parents. True if it exists afterwards.
bool createFolders(const std::string& path);

// [any] Removes a folder. False if it did not exist, is not empty or could not be removed.
bool removeEmptyFolder(const std::string& path);

// [any] Names (without folder, with extension) of the plain files in a folder with this extension (".seq"; "" matches
// any), in byte order. Case matters where it does for the system's file names. Empty if the folder does not exist.
std::vector<std::string> list(const std::string& folder, const std::string& extension);

// [any] The size in bytes; nothing if it is not a plain file.
std::optional<std::uintmax_t> size(const std::string& path);

// [any] The text with each newline replaced by the system's line end.
std::string withSystemLineEnds(std::string_view text);

// [any] The folder, a separator unless the folder ends with one or is empty, and the name.
std::string join(const std::string& folder, const std::string& name);

}
