#pragma once

#include <expected>
#include <string>
#include <string_view>

#include "layouts/LayoutSummary.h"
#include "layouts/LayoutsModel.h"

namespace quorvel {

// Reads a catalogue from JSON. Every key is required and must have its type; an integer counts as a number, unknown
// keys are ignored. The error is a text fit for a log line that tells where the fault lies, such as
// "layouts[2].windows[0].top_right_y is not a number".
std::expected<LayoutsModel, std::string> decodeLayoutsModel(std::string_view json);

// The same rules for one summary.
std::expected<LayoutSummary, std::string> decodeLayoutSummary(std::string_view json);
std::string encodeLayoutSummary(const LayoutSummary& summary);

} // namespace quorvel
