#include "tests/support/TableFile.h"

#include "Platform/Files.h"
#include "tests/support/ProjectFolder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace TestSupport {

namespace {

constexpr std::string_view DIVIDER = " | ";

std::string trimBlanks(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string() : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Blanks at the end of a line may have been cut off by an editor.
std::vector<std::string> splitRow(const std::string& line) {
    std::string rest = " " + line + " ";
    std::vector<std::string> cells;
    for (auto at = rest.find(DIVIDER); at != std::string::npos; at = rest.find(DIVIDER)) {
        cells.push_back(trimBlanks(rest.substr(0, at)));
        rest = " " + rest.substr(at + DIVIDER.size());
    }
    cells.push_back(trimBlanks(rest));
    return cells;
}

}

std::vector<std::vector<std::string>> readTable(const std::string& name, std::size_t columns) {
    const auto text = Platform::Files::read(projectFile("tests/data/" + name));
    EXPECT_TRUE(text) << name;
    std::istringstream lines(text.value_or(""));
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line.front() == '#')
            continue;
        rows.push_back(splitRow(line));
        EXPECT_EQ(rows.back().size(), columns) << line;
        rows.back().resize(columns);
    }
    return rows;
}

}
