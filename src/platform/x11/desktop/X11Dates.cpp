#include "platform/x11/desktop/X11Dates.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include <unicode/udat.h>
#include <unicode/ustring.h>

namespace quorvel::x11 {

namespace {

constexpr double secondsFrom1970To2001 = 978'307'200.0;

struct FormatClosing {
    void operator()(UDateFormat* format) const { udat_close(format); }
};

using DateFormat = std::unique_ptr<UDateFormat, FormatClosing>;

// In the order in which the C library asks them.
std::string localeOfDates()
{
    for (const char* name : {"LC_ALL", "LC_TIME", "LANG"}) {
        const char* value = std::getenv(name);
        if (value != nullptr && *value != '\0') {
            return value;
        }
    }
    return "C";
}

std::string utf8(const UChar* text, std::int32_t length)
{
    std::string result(static_cast<std::size_t>(length) * 3, '\0'); // the most that UTF-8 needs for a unit of UTF-16
    std::int32_t written = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8(result.data(), static_cast<std::int32_t>(result.size()), &written, text, length, &status);
    result.resize(U_SUCCESS(status) ? static_cast<std::size_t>(written) : 0);
    return result;
}

} // namespace

Date X11Dates::now() const
{
    const std::chrono::duration<double> sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return {sinceEpoch.count() - secondsFrom1970To2001};
}

std::string X11Dates::mediumText(const Date& date) const
{
    constexpr double millisecondsPerSecond = 1000.0;
    UErrorCode status = U_ZERO_ERROR;
    const DateFormat format(
        udat_open(UDAT_NONE, UDAT_MEDIUM, localeOfDates().c_str(), nullptr, -1, nullptr, 0, &status));
    if (U_FAILURE(status)) {
        return {};
    }
    std::array<UChar, 128> text{};
    const double moment = (date.secondsSince2001 + secondsFrom1970To2001) * millisecondsPerSecond;
    const auto length =
        udat_format(format.get(), moment, text.data(), static_cast<std::int32_t>(text.size()), nullptr, &status);
    return U_SUCCESS(status) ? utf8(text.data(), length) : std::string();
}

} // namespace quorvel::x11
