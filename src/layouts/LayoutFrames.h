#pragma once

#include <optional>
#include <vector>

#include "base/Geometry.h"
#include "layouts/WindowModel.h"
#include "platform/PropertyValue.h"

namespace quorvel {

// Reading frames for pictures of layouts, tolerantly: a catalogue may hold corners or an origin and a size, under the
// names in common use, in fractions or in pixels, and still gives a picture.

// The frame as a record, its fields under their names in the catalogue file.
PropertyDictionary windowRecord(const WindowModel& window);

// The rectangle that a record describes, in the record's own unit; nothing if it describes none.
//
// Read in this order: the four corner fields of a WindowModel; x, y, width and height in a nested record "frame",
// "rect" or "bounds"; the same four in the record itself. x may be called "x", "minX" or "left", y "y", "minY" or
// "top", width "width" or "w", height "height" or "h".
std::optional<UnitRect> frameFromRecord(const PropertyDictionary& record);

// The rectangles as they are if all lie inside the unit square; otherwise moved so that their bounding box begins at
// the origin, and shrunk so that it is at most one wide and one high. Never stretched.
std::vector<UnitRect> normalizedFrames(std::vector<UnitRect> frames);

} // namespace quorvel
