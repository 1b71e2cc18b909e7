#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/Form.h"

namespace quorvel {

// Whether the widgets of the one form can show the other: the same rows with the same kinds of controls and the same
// buttons, whatever their values.
bool hasSameShape(const Form& one, const Form& other);

// Whether the one alert asks what the other one does, whatever has been typed into its field.
bool isSameQuestion(const PaneAlert& one, const PaneAlert& other);

bool hasPreview(const FormGroup& group);

enum class Columns { one, several };

// The groups without previews, as indexes, column by column: one column, or, if there may be several, two of about the
// same height where one would be long.
std::vector<std::vector<std::size_t>> groupColumns(const Form& form, Columns columns);

// Whether the sheet or the alert over the form has a button, or the alert a text field, of that id.
bool hasOverlayControl(const Form& form, std::string_view id);

} // namespace quorvel
