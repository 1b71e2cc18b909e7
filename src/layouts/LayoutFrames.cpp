#include "layouts/LayoutFrames.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>

namespace quorvel {

namespace {

using Names = std::initializer_list<std::string_view>;

const PropertyValue* firstMember(const PropertyDictionary& record, Names names)
{
    for (const auto name : names) {
        if (const auto found = record.find(std::string(name)); found != record.end()) {
            return &found->second;
        }
    }
    return nullptr;
}

std::optional<double> number(const PropertyDictionary& record, Names names)
{
    const auto* member = firstMember(record, names);
    if (member == nullptr) {
        return std::nullopt;
    }
    if (const auto* real = std::get_if<double>(&member->value)) {
        return *real;
    }
    if (const auto* integer = std::get_if<std::int64_t>(&member->value)) {
        return static_cast<double>(*integer);
    }
    return std::nullopt;
}

std::optional<UnitRect> frameFromCorners(const PropertyDictionary& record)
{
    WindowModel window;
    for (const auto& [name, field] : windowModelFields) {
        const auto value = number(record, {name});
        if (!value) {
            return std::nullopt;
        }
        window.*field = *value;
    }
    return UnitRect{window.bottom_left_x, window.bottom_left_y,
                    std::max(window.top_right_x - window.bottom_left_x, 0.0),
                    std::max(window.top_right_y - window.bottom_left_y, 0.0)};
}

// Sizes are never negative (see Geometry.h), so one that is counts as none, as where corners are in the wrong order.
std::optional<UnitRect> frameFromOriginAndSize(const PropertyDictionary& record)
{
    const auto x = number(record, {"x", "minX", "left"});
    const auto y = number(record, {"y", "minY", "top"});
    const auto width = number(record, {"width", "w"});
    const auto height = number(record, {"height", "h"});
    if (!x || !y || !width || !height) {
        return std::nullopt;
    }
    return UnitRect{*x, *y, std::max(*width, 0.0), std::max(*height, 0.0)};
}

std::optional<UnitRect> frameFromNestedRecord(const PropertyDictionary& record)
{
    const auto* member = firstMember(record, {"frame", "rect", "bounds"});
    const auto* nested = member == nullptr ? nullptr : std::get_if<PropertyDictionary>(&member->value);
    return nested == nullptr ? std::nullopt : frameFromOriginAndSize(*nested);
}

bool liesInUnitSquare(const UnitRect& frame)
{
    return UnitRect{0.0, 0.0, 1.0, 1.0}.contains(frame);
}

} // namespace

PropertyDictionary windowRecord(const WindowModel& window)
{
    PropertyDictionary record;
    for (const auto& [name, field] : windowModelFields) {
        record.emplace(name, PropertyValue{window.*field});
    }
    return record;
}

std::optional<UnitRect> frameFromRecord(const PropertyDictionary& record)
{
    if (const auto frame = frameFromCorners(record)) {
        return frame;
    }
    if (const auto frame = frameFromNestedRecord(record)) {
        return frame;
    }
    return frameFromOriginAndSize(record);
}

std::vector<UnitRect> normalizedFrames(std::vector<UnitRect> frames)
{
    if (std::ranges::all_of(frames, liesInUnitSquare)) {
        return frames;
    }
    auto box = UnitRect::null();
    for (const auto& frame : frames) {
        box = box.unitedWith(frame);
    }
    const double horizontalScale = std::max(box.width, 1.0);
    const double verticalScale = std::max(box.height, 1.0);
    for (auto& frame : frames) {
        frame = {(frame.x - box.x) / horizontalScale, (frame.y - box.y) / verticalScale, frame.width / horizontalScale,
                 frame.height / verticalScale};
    }
    return frames;
}

} // namespace quorvel
