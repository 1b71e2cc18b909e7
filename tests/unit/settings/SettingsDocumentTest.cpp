#include <fstream>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/SettingsTable.h"

namespace quorvel {
namespace {

std::string typeName(SettingType type)
{
    switch (type) {
    case SettingType::integer:
        return "integer";
    case SettingType::real:
        return "real";
    case SettingType::boolean:
        return "Boolean";
    case SettingType::string:
        return "string";
    case SettingType::data:
        return "data";
    case SettingType::stringArray:
        return "array of strings";
    case SettingType::stringDictionary:
        return "dictionary of strings";
    }
    return "";
}

struct DefaultText {
    std::string operator()(std::monostate) const { return "–"; }
    std::string operator()(std::int64_t value) const { return fmt::format("{}", value); }
    std::string operator()(double value) const { return fmt::format("{}", value); }
    std::string operator()(bool value) const { return fmt::format("{}", value); }
    std::string operator()(std::string_view value) const { return fmt::format("`{}`", value); }
    std::string operator()(const KeyCodesByProfile& values) const { return fmt::format("{}", fmt::join(values, "/")); }
};

// What the document says of a setting, but for its meaning.
std::string expectedRow(const SettingDefinition& setting)
{
    return fmt::format("| `{}` | {} | {} | {} | {} |", setting.key, typeName(setting.type),
                       std::visit(DefaultText{}, setting.paneDefault),
                       std::visit(DefaultText{}, setting.readerFallback),
                       std::visit(DefaultText{}, setting.resetValue));
}

std::vector<std::string> documentedRows()
{
    std::ifstream document(QUORVEL_SETTINGS_DOCUMENT);
    std::vector<std::string> rows;
    for (std::string line; std::getline(document, line);) {
        if (line.starts_with("| `")) {
            const auto meaning = line.rfind('|', line.size() - 2);
            rows.push_back(line.substr(0, meaning + 1));
        }
    }
    return rows;
}

TEST(SettingsDocument, HoldsEverySettingOfTheTableWithItsTypeAndDefaults)
{
    std::vector<std::string> expected;
    for (const auto& setting : settingsTable()) {
        expected.push_back(expectedRow(setting));
    }
    EXPECT_THAT(documentedRows(), testing::ElementsAreArray(expected));
}

} // namespace
} // namespace quorvel
