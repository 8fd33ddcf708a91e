#pragma once

#include <string>
#include <vector>

namespace TestSupport {

// The rows of a table in tests/data, whose columns are divided by " | ". Lines that begin with # are no rows. Every row
// has this many columns; others fail the test.
std::vector<std::vector<std::string>> readTable(const std::string& name, std::size_t columns);

}
