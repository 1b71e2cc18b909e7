#include "platform/x11/desktop/XSettings.h"

#include <algorithm>
#include <cstddef>

namespace quorvel::x11 {

namespace {

enum class SettingType : std::uint8_t { integer = 0, text = 1, color = 2 };

// Reads one value after the other; after the end of the data everything reads as nothing.
class SettingsReader {
public:
    explicit SettingsReader(std::span<const std::uint8_t> data) : data(data) {}

    void setLeastSignificantFirst(bool isFirst) { isLeastSignificantFirst = isFirst; }

    std::optional<std::uint32_t> number(std::size_t size)
    {
        const auto bytes = take(size);
        if (!bytes) {
            return std::nullopt;
        }
        std::uint32_t value = 0;
        for (std::size_t index = 0; index < size; ++index) {
            value = value << 8U | (*bytes)[isLeastSignificantFirst ? size - 1 - index : index];
        }
        return value;
    }

    // A text and what fills it up to a multiple of four bytes.
    std::optional<std::string> text(std::size_t length)
    {
        const auto bytes = take(length);
        if (!bytes || !take((4 - length % 4) % 4)) {
            return std::nullopt;
        }
        return std::string(bytes->begin(), bytes->end());
    }

    std::optional<std::span<const std::uint8_t>> take(std::size_t size)
    {
        if (size > data.size()) {
            return std::nullopt;
        }
        const auto taken = data.first(size);
        data = data.subspan(size);
        return taken;
    }

private:
    std::span<const std::uint8_t> data;
    bool isLeastSignificantFirst = true;
};

struct Setting {
    SettingType type = SettingType::integer;
    std::string name;
    std::string text;
};

std::optional<Setting> readSetting(SettingsReader& reader)
{
    const auto type = reader.number(1);
    const auto padding = reader.take(1);
    const auto nameLength = reader.number(2);
    if (!type || !padding || !nameLength) {
        return std::nullopt;
    }
    const auto name = reader.text(*nameLength);
    const auto serial = reader.number(4);
    if (!name || !serial) {
        return std::nullopt;
    }
    Setting setting{static_cast<SettingType>(*type), *name, {}};
    switch (setting.type) {
    case SettingType::integer:
        return reader.take(4) ? std::optional(setting) : std::nullopt;
    case SettingType::color:
        return reader.take(8) ? std::optional(setting) : std::nullopt;
    case SettingType::text:
        const auto length = reader.number(4);
        auto text = length ? reader.text(*length) : std::nullopt;
        if (!text) {
            return std::nullopt;
        }
        setting.text = std::move(*text);
        return setting;
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> textSetting(std::span<const std::uint8_t> data, std::string_view name)
{
    SettingsReader reader(data);
    const auto byteOrder = reader.number(1);
    const auto padding = reader.take(3);
    if (!byteOrder || !padding) {
        return std::nullopt;
    }
    reader.setLeastSignificantFirst(*byteOrder == 0);
    const auto serial = reader.number(4);
    const auto count = reader.number(4);
    if (!serial || !count) {
        return std::nullopt;
    }
    for (std::uint32_t index = 0; index < *count; ++index) {
        auto setting = readSetting(reader);
        if (!setting) {
            return std::nullopt;
        }
        if (setting->name == name) {
            return setting->type == SettingType::text ? std::optional(std::move(setting->text)) : std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace quorvel::x11
