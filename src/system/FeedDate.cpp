#include "system/FeedDate.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <locale>
#include <sstream>
#include <string>

namespace quorvel {

namespace {

constexpr std::array<std::string_view, 12> monthNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

// Hours and minutes as one number, "+0130" as 130; other zones have names.
std::optional<std::chrono::minutes> zoneOffset(const std::string& zone)
{
    if (zone == "GMT" || zone == "UTC" || zone == "UT" || zone == "Z") {
        return std::chrono::minutes(0);
    }
    const bool isNumeric = zone.size() == 5 && (zone[0] == '+' || zone[0] == '-') &&
                           zone.find_first_not_of("0123456789", 1) == std::string::npos;
    if (!isNumeric) {
        return std::nullopt;
    }
    const auto digit = [&zone](std::size_t index) { return zone[index] - '0'; };
    const std::chrono::minutes size(60 * (10 * digit(1) + digit(2)) + 10 * digit(3) + digit(4));
    return zone[0] == '-' ? -size : size;
}

} // namespace

std::optional<Date> feedDate(std::string_view text)
{
    using namespace std::chrono;
    const auto comma = text.find(',');
    std::istringstream stream(std::string(comma == std::string_view::npos ? text : text.substr(comma + 1)));
    stream.imbue(std::locale::classic());
    unsigned dayNumber = 0;
    int yearNumber = 0;
    int hour = -1;
    int minute = -1;
    int second = -1;
    char firstColon = 0;
    char secondColon = 0;
    std::string monthName;
    std::string zone;
    stream >> dayNumber >> monthName >> yearNumber >> hour >> firstColon >> minute >> secondColon >> second >> zone;
    const auto month = std::ranges::find(monthNames, monthName);
    const auto offset = zoneOffset(zone);
    const bool isTime = firstColon == ':' && secondColon == ':' && hour >= 0 && hour < 24 && minute >= 0 &&
                        minute < 60 && second >= 0 && second <= 60;
    if (stream.fail() || month == monthNames.end() || !offset || !isTime || yearNumber < 0 || yearNumber > 9999) {
        return std::nullopt;
    }
    const year_month_day day(year(yearNumber), std::chrono::month(unsigned(month - monthNames.begin()) + 1),
                             std::chrono::day(dayNumber));
    if (!day.ok()) {
        return std::nullopt;
    }
    const auto moment = sys_days(day) + hours(hour) + minutes(minute) + seconds(second) - *offset;
    return Date{duration<double>(moment - sys_days(2001y / January / 1)).count()};
}

} // namespace quorvel
