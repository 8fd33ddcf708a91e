#include "Host/console/OpenRequest.h"

namespace Host::Console {

namespace {

constexpr std::string_view BANK = "bank ";
constexpr std::string_view PROGRAM = "program ";
constexpr std::string_view FILE = "file ";

void addLine(std::string& text, std::string_view name, const std::string& value) {
    if (value.empty() || value.find('\n') != std::string::npos)
        return;
    text.append(name).append(value).append("\n");
}

}

std::string OpenRequest::toText() const {
    std::string text;
    addLine(text, BANK, bank);
    addLine(text, PROGRAM, program);
    for (const std::string& file : files)
        addLine(text, FILE, file);
    return text;
}

OpenRequest OpenRequest::fromText(std::string_view text) {
    OpenRequest request;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        if (line.starts_with(BANK))
            request.bank = line.substr(BANK.size());
        else if (line.starts_with(PROGRAM))
            request.program = line.substr(PROGRAM.size());
        else if (line.starts_with(FILE) && line.size() > FILE.size())
            request.files.emplace_back(line.substr(FILE.size()));
    }
    return request;
}

}
