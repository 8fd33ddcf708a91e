#pragma once

#include <optional>
#include <string>

namespace Host {

class Recorder;

// [any] Whether a recording can be written to this file. Neither changes nor creates the file.
bool canRecordTo(const std::string& path);

// [any] Writes a recording to this file or, if that fails, to "Rescued recording.mid" in the data folder, with a number
// after "recording" if that file already exists. Returns the path written; nothing if both failed.
[[nodiscard]] std::optional<std::string> keepRecording(const Recorder& recorder, const std::string& path);

}
