#include "platform/simulated/SimulatedDates.h"

#include <array>
#include <chrono>
#include <string_view>

#include <fmt/format.h>

namespace quorvel {

std::string SimulatedDates::mediumText(const Date& date) const
{
    using namespace std::chrono;
    constexpr std::array<std::string_view, 12> months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const duration<double> sinceBeginning(date.secondsSince2001);
    const year_month_day day(sys_days(2001y / January / 1) + floor<days>(sinceBeginning));
    return fmt::format("{} {}, {}", months.at(unsigned(day.month()) - 1), unsigned(day.day()), int(day.year()));
}

} // namespace quorvel
