#pragma once

#include <string>

#include "base/DrawList.h"
#include "base/Geometry.h"
#include "platform/Form.h"

namespace quorvel {

// The pieces of previews: a desktop in small, and what stands on it.

enum class PreviewGrid { hidden, shown };

// A plain desktop of `size`, with a grid of lines if wanted.
DrawList previewDesktop(const Size& size, PreviewGrid grid);

// A window with its title in the middle.
void appendSampleWindow(DrawList& list, const ViewRect& frame, const std::string& title);

// Draws `part` with its origin at `origin`.
void appendAt(DrawList& list, const ViewPoint& origin, const DrawList& part);

// A preview as a row of its own.
FormRow previewRow(PreviewControl preview);

} // namespace quorvel
