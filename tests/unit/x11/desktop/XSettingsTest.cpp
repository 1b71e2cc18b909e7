#include "platform/x11/desktop/XSettings.h"

#include <vector>

#include <gtest/gtest.h>

namespace quorvel::x11 {
namespace {

enum class ByteOrder : std::uint8_t { leastSignificantFirst = 0, mostSignificantFirst = 1 };

// What a settings daemon publishes.
class Settings {
public:
    explicit Settings(ByteOrder order) : order(order) {}

    void addInteger(std::string_view name, std::uint32_t value)
    {
        addHead(0, name);
        add(settings, value, 4);
    }

    void addText(std::string_view name, std::string_view value)
    {
        addHead(1, name);
        add(settings, static_cast<std::uint32_t>(value.size()), 4);
        addPadded(value);
    }

    void addColor(std::string_view name)
    {
        addHead(2, name);
        settings.insert(settings.end(), 8, 0xEE);
    }

    std::vector<std::uint8_t> bytes() const
    {
        std::vector<std::uint8_t> result{static_cast<std::uint8_t>(order), 0, 0, 0};
        add(result, 7, 4);
        add(result, count, 4);
        result.insert(result.end(), settings.begin(), settings.end());
        return result;
    }

private:
    void addHead(std::uint8_t type, std::string_view name)
    {
        ++count;
        settings.push_back(type);
        settings.push_back(0);
        add(settings, static_cast<std::uint32_t>(name.size()), 2);
        addPadded(name);
        add(settings, 3, 4);
    }

    void addPadded(std::string_view text)
    {
        settings.insert(settings.end(), text.begin(), text.end());
        settings.resize((settings.size() + 3) / 4 * 4);
    }

    void add(std::vector<std::uint8_t>& to, std::uint32_t value, unsigned size) const
    {
        for (unsigned index = 0; index < size; ++index) {
            const unsigned place = order == ByteOrder::leastSignificantFirst ? index : size - 1 - index;
            to.push_back(static_cast<std::uint8_t>(value >> (8 * place)));
        }
    }

    ByteOrder order;
    std::uint32_t count = 0;
    std::vector<std::uint8_t> settings;
};

Settings sample(ByteOrder order)
{
    Settings settings(order);
    settings.addInteger("Xft/DPI", 98304);
    settings.addColor("Net/Color");
    settings.addText("Net/ThemeName", "Adwaita");
    settings.addText("Gtk/FontName", "Cantarell 11");
    return settings;
}

TEST(XSettings, FindTheTextInEitherByteOrder)
{
    for (const auto order : {ByteOrder::leastSignificantFirst, ByteOrder::mostSignificantFirst}) {
        const auto bytes = sample(order).bytes();
        EXPECT_EQ(textSetting(bytes, "Gtk/FontName"), "Cantarell 11");
        EXPECT_EQ(textSetting(bytes, "Net/ThemeName"), "Adwaita");
    }
}

TEST(XSettings, AbsentAndOtherSettingsAreNoText)
{
    const auto bytes = sample(ByteOrder::leastSignificantFirst).bytes();
    EXPECT_EQ(textSetting(bytes, "Gtk/Font"), std::nullopt);
    EXPECT_EQ(textSetting(bytes, "Xft/DPI"), std::nullopt);
    EXPECT_EQ(textSetting(bytes, "Net/Color"), std::nullopt);
}

TEST(XSettings, DataThatEndsTooEarlyHasNoText)
{
    const auto bytes = sample(ByteOrder::leastSignificantFirst).bytes();
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        EXPECT_EQ(textSetting(std::span(bytes).first(size), "Gtk/FontName"), std::nullopt) << size;
    }
}

TEST(XSettings, AnUnknownTypeEndsTheReading)
{
    auto bytes = sample(ByteOrder::leastSignificantFirst).bytes();
    bytes[12] = 9;
    EXPECT_EQ(textSetting(bytes, "Gtk/FontName"), std::nullopt);
}

TEST(XSettings, ACountThatIsTooLargeDoesNoHarm)
{
    auto bytes = sample(ByteOrder::leastSignificantFirst).bytes();
    bytes[11] = 0xFF;
    EXPECT_EQ(textSetting(bytes, "Gtk/FontName"), "Cantarell 11");
    EXPECT_EQ(textSetting(bytes, "Gtk/Font"), std::nullopt);
}

TEST(XSettings, AnEmptyTextIsAText)
{
    Settings settings(ByteOrder::leastSignificantFirst);
    settings.addText("Gtk/FontName", "");
    EXPECT_EQ(textSetting(settings.bytes(), "Gtk/FontName"), "");
}

} // namespace
} // namespace quorvel::x11
