#include "preferences/LayoutDigits.h"

#include "base/Utf8.h"
#include "settings/SettingsKeys.h"

namespace quorvel {

std::string LayoutDigits::digitOf(const std::string& layoutID) const
{
    const auto digits = stored();
    const auto found = digits.find(layoutID);
    return found == digits.end() ? std::string() : found->second;
}

void LayoutDigits::assign(const std::string& layoutID, std::string_view typed)
{
    const auto digit = trimmedOfWhiteSpace(typed);
    if (digit.empty()) {
        remove(layoutID);
        return;
    }
    if (characterCount(digit) != 1 || !isNumericCharacter(digit) || digit == "0") {
        return;
    }
    auto digits = stored();
    std::erase_if(digits, [digit](const auto& each) { return each.second == digit; });
    digits.insert_or_assign(layoutID, std::string(digit));
    store(digits);
}

void LayoutDigits::remove(const std::string& layoutID)
{
    auto digits = stored();
    digits.erase(layoutID);
    store(digits);
}

LayoutDigits::DigitsByID LayoutDigits::stored() const
{
    return settings.stringDictionary(settingsKeys::layoutShortcuts).value_or(DigitsByID{});
}

void LayoutDigits::store(const DigitsByID& digits)
{
    if (digits != stored()) {
        settings.setStringDictionary(settingsKeys::layoutShortcuts, digits);
    }
}

} // namespace quorvel
