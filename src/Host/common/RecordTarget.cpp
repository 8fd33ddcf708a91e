#include "Host/common/RecordTarget.h"

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

}
