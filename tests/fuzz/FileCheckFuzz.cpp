// Any bytes as a file to check. Each complaint is one line of printable text about an existing line, and the same file
// always gets the same complaints.
#include "Host/cli/check/FileCheck.h"

#include <algorithm>
#include <cstdlib>

namespace {

using namespace Host::Cli;

void require(bool holds) {
    if (!holds)
        std::abort();
}

// In a place without any presets.
Complaints check(std::string_view content) {
    PresetFiles presets("", "/nowhere");
    FileCheck check(content, presets);
    const std::string error = check.run();
    require(error.empty() || check.getComplaints().empty());
    return check.getComplaints();
}

bool isSame(const Complaint& left, const Complaint& right) {
    return left.line == right.line && left.text == right.text;
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string content(reinterpret_cast<const char*>(data), size);
    // At most, because a lone carriage return also ends a line.
    const auto ends = std::count_if(content.begin(), content.end(), [](char c) { return c == '\n' || c == '\r'; });
    const Complaints complaints = check(content);
    int line = 1;
    for (const Complaint& complaint : complaints) {
        require(complaint.line >= line && complaint.line <= 1 + ends);
        require(!complaint.text.empty() && complaint.text.find_first_of("\r\n\t") == std::string::npos);
        line = complaint.line;
    }
    const Complaints again = check(content);
    require(std::equal(complaints.begin(), complaints.end(), again.begin(), again.end(), isSame));
    return 0;
}
