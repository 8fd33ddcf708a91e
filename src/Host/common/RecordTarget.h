#pragma once

#include <string>

namespace Host {

// [any] Whether a recording can be written to this file. The file stays as it is, also one that is not there.
bool canRecordTo(const std::string& path);

}
