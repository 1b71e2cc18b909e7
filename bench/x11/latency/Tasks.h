#pragma once

#include <vector>

#include "latency/Contest.h"

namespace quorvel::bench {

// From a hot key to painted frames, letters or a list.
std::vector<Task> overlayTasks();

// From a key to the window in its place, after a jump or a step.
std::vector<Task> placementTasks();

// From a letter, a chosen line or a binding to another active window.
std::vector<Task> activationTasks();

} // namespace quorvel::bench
