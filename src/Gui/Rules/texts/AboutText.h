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

// [any] What the product says about itself, in lines that end with "\r\n". The time stands in parentheses after the
// version if it is known.
std::string describeProduct(const std::optional<BuildTime>& built);

}
