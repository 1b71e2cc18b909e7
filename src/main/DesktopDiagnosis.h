#pragma once

namespace quorvel {

enum class StartMode;

// Prints what this desktop offers and what stands in the way, for people or, as `mode` says, as JSON. Answers whether
// everything is there that the program needs. Changes nothing, neither on the display nor in the settings.
bool diagnoseDesktop(StartMode mode);

} // namespace quorvel
