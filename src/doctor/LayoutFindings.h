#pragma once

#include <vector>

#include "doctor/Diagnosis.h"

namespace quorvel {

class Bundle;
class Settings;

// The catalogue of layouts, and whether it has what the settings select.
std::vector<Finding> layoutFindings(const Settings& settings, const Bundle& bundle);

} // namespace quorvel
