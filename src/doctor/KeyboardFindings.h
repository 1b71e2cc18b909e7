#pragma once

#include "doctor/Diagnosis.h"

namespace quorvel {

class KeyboardLayout;
class Settings;
struct KeyboardFacts;

// The keyboard's layout, and what labels it can choose.
DiagnosisSection keyboardSection(const Settings& settings, const KeyboardFacts& facts, KeyboardLayout& keyboardLayout);

} // namespace quorvel
