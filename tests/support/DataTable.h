#pragma once

#include "tests/support/ProjectFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

namespace TestSupport {

// The rows of a file in tests/data, whose columns are separated by "|". A line that begins with "#" is a comment.
inline std::vector<std::vector<std::string>> readTable(const std::string& name) {
    std::ifstream file(projectFile("tests/data/" + name));
    EXPECT_TRUE(file.is_open()) << name;
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#')
            continue;
        std::vector<std::string> row;
        std::size_t start = 0;
        for (;;) {
            const std::size_t bar = line.find('|', start);
            std::string cell = line.substr(start, bar == std::string::npos ? bar : bar - start);
            const std::size_t first = cell.find_first_not_of(' ');
            const std::size_t last = cell.find_last_not_of(' ');
            row.push_back(first == std::string::npos ? std::string() : cell.substr(first, last - first + 1));
            if (bar == std::string::npos)
                break;
            start = bar + 1;
        }
        rows.push_back(row);
    }
    EXPECT_FALSE(rows.empty()) << name;
    return rows;
}

}
