#pragma once

#include <optional>
#include <string>

namespace Gui {

// A moment in local time; the month counts from 1.
struct BuildTime {
    int year;
    int month;
    int day;
    int hour;
    int minute;
    int second;
};

// [any] The information about the product, in lines that end with "\r\n". The time, if known, follows the version in
// parentheses.
std::string describeProduct(const std::optional<BuildTime>& built);

}
