#pragma once

#include "doctor/Diagnosis.h"

namespace quorvel {

class DesktopProbe;
class KeyboardLayout;
class Settings;
struct DesktopFacts;

// The shortcuts that work from everywhere, and who holds their keys.
DiagnosisSection hotKeysSection(const Settings& settings, const DesktopFacts& facts, DesktopProbe& probe,
                                KeyboardLayout& keyboardLayout);

} // namespace quorvel
