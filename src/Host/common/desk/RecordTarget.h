#pragma once

#include <optional>
#include <string>

namespace Host {

class Recorder;

// [any] Whether a recording can be written to this file. The file stays as it is, also one that is not there.
bool canRecordTo(const std::string& path);

// [any] Writes a recording to this file or, if that fails, to "Rescued recording.mid" in the data folder, with a number
// behind "recording" if that is there already. Where it lies then; nothing if both failed.
[[nodiscard]] std::optional<std::string> keepRecording(const Recorder& recorder, const std::string& path);

}
