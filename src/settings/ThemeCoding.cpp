#include "settings/ThemeCoding.h"

#include <cmath>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "base/JsonDecoding.h"
#include "base/LogText.h"
#include "settings/ThemeKind.h"

namespace quorvel {

namespace {

using jsonDecoding::Decoded;
using jsonDecoding::Json;
using OrderedJson = nlohmann::ordered_json; // keeps the order of the record's fields

template <class Value>
Decoded<Value> valueOf(const Json& object, std::string_view key)
{
    if constexpr (std::is_same_v<Value, bool>) {
        return jsonDecoding::boolean(object, key);
    } else if constexpr (std::is_same_v<Value, std::int64_t>) {
        return jsonDecoding::integer(object, key);
    } else if constexpr (std::is_same_v<Value, double>) {
        return jsonDecoding::number(object, key);
    } else if constexpr (std::is_same_v<Value, std::string>) {
        return jsonDecoding::text(object, key);
    } else if constexpr (std::is_same_v<Value, Date>) {
        const auto seconds = jsonDecoding::number(object, key);
        return seconds ? Decoded<Date>(Date{*seconds}) : std::unexpected(seconds.error());
    } else {
        static_assert(std::is_same_v<Value, Uuid>);
        const auto text = jsonDecoding::text(object, key);
        if (!text) {
            return std::unexpected(text.error());
        }
        const auto uuid = Uuid::fromText(*text);
        return uuid ? Decoded<Uuid>(*uuid) : std::unexpected("." + std::string(key) + " is not a UUID");
    }
}

// Reads the members of one object until the first that is missing or of a wrong type.
class ObjectReader {
public:
    explicit ObjectReader(const Json& object) : object(object) {}

    template <class Value>
    void read(std::string_view key, Value& target)
    {
        if (!error.empty()) {
            return;
        }
        if (auto value = valueOf<Value>(object, key)) {
            target = *std::move(value);
        } else {
            error = std::move(value.error());
        }
    }

    template <class Value>
    void readIfPresent(std::string_view key, std::optional<Value>& target)
    {
        const auto found = object.find(key);
        if (error.empty() && found != object.end() && !found->is_null()) {
            read(key, target.emplace());
        }
    }

    const std::string& problem() const { return error; }

private:
    const Json& object;
    std::string error; // empty while there was none
};

template <class Record>
Decoded<Record> theme(const Json& json)
{
    ObjectReader reader(json);
    Record record;
    reader.read("id", record.id);
    reader.read("name", record.name);
    forEachThemeField<Record>([&](const auto& field) { reader.read(field.name, record.*field.member); });
    reader.read("createdAt", record.createdAt);
    reader.read("updatedAt", record.updatedAt);
    reader.readIfPresent("notes", record.notes);
    if (!reader.problem().empty()) {
        return std::unexpected(reader.problem());
    }
    return record;
}

template <class Record>
Decoded<std::vector<Record>> themes(const Json& json)
{
    return jsonDecoding::elements<Record>(json, theme<Record>);
}

// Writes the members of one object, and notes a number that cannot be written.
class ObjectWriter {
public:
    template <class Value>
    void write(std::string_view key, const Value& value)
    {
        object[std::string(key)] = value;
    }

    void write(std::string_view key, const Uuid& uuid) { write(key, uuid.text()); }
    void write(std::string_view key, const Date& date) { write(key, date.secondsSince2001); }

    // A whole number goes without a fraction.
    void write(std::string_view key, double value)
    {
        constexpr double exactIntegers = 0x1p53;
        if (!std::isfinite(value)) {
            error = std::string(key) + " is not finite: " + logText(value);
        } else if (std::trunc(value) == value && std::abs(value) <= exactIntegers) {
            write(key, static_cast<std::int64_t>(value));
        } else {
            object[std::string(key)] = value;
        }
    }

    std::expected<OrderedJson, std::string> result() const
    {
        return error.empty() ? std::expected<OrderedJson, std::string>(object) : std::unexpected(error);
    }

private:
    OrderedJson object = OrderedJson::object();
    std::string error;
};

template <class Record>
std::expected<OrderedJson, std::string> object(const Record& record)
{
    ObjectWriter writer;
    writer.write("id", record.id);
    writer.write("name", record.name);
    forEachThemeField<Record>([&](const auto& field) { writer.write(field.name, record.*field.member); });
    writer.write("createdAt", record.createdAt);
    writer.write("updatedAt", record.updatedAt);
    if (record.notes) {
        writer.write("notes", *record.notes);
    }
    return writer.result();
}

} // namespace

template <class Record>
std::expected<std::vector<Record>, std::string> decodeThemes(std::string_view json)
{
    return jsonDecoding::document<std::vector<Record>>(json, themes<Record>);
}

template <class Record>
std::expected<std::string, std::string> encodeThemes(const std::vector<Record>& themes)
{
    auto array = OrderedJson::array();
    for (const auto& record : themes) {
        auto element = object(record);
        if (!element) {
            return std::unexpected(std::move(element.error()));
        }
        array.push_back(*std::move(element));
    }
    return array.dump(-1, ' ', false, OrderedJson::error_handler_t::replace);
}

template std::expected<std::vector<Theme>, std::string> decodeThemes(std::string_view);
template std::expected<std::vector<SwitcherTheme>, std::string> decodeThemes(std::string_view);
template std::expected<std::vector<MoveResizeTheme>, std::string> decodeThemes(std::string_view);
template std::expected<std::string, std::string> encodeThemes(const std::vector<Theme>&);
template std::expected<std::string, std::string> encodeThemes(const std::vector<SwitcherTheme>&);
template std::expected<std::string, std::string> encodeThemes(const std::vector<MoveResizeTheme>&);

} // namespace quorvel
