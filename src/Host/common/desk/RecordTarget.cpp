#include "Host/common/desk/RecordTarget.h"

#include "Backend/core/installation/MirelUtils.h"
#include "Host/common/ports/Recorder.h"
#include "Platform/Files.h"

namespace Host {

bool canRecordTo(const std::string& path) {
    const bool isNew = !Platform::Files::size(path);
    if (!Platform::Files::append(path, ""))
        return false;
    if (isNew)
        Platform::Files::remove(path);
    return true;
}

std::optional<std::string> keepRecording(const Recorder& recorder, const std::string& path) {
    if (recorder.write(path))
        return path;
    const std::string begin = Platform::Files::join(Backend::MirelUtils::getMirelAppDataDir(), "Rescued recording");
    std::string other = begin + ".mid";
    for (int number = 2; Platform::Files::size(other); ++number)
        other = begin + " " + std::to_string(number) + ".mid";
    return recorder.write(other) ? std::optional(other) : std::nullopt;
}

}
