#pragma once

#include "base/DrawList.h"

namespace quorvel {

// False for numbers that settings can hold and no screen can show.
bool canBeDrawn(const DrawCommand& command);

} // namespace quorvel
