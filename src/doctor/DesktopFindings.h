#pragma once

#include <string_view>

#include "doctor/Diagnosis.h"
#include "platform/DesktopProbe.h"

namespace quorvel {

DiagnosisSection sessionSection(std::string_view sessionType, const DesktopFacts& facts);

// Where there is no desktop to work on.
DiagnosisSection missingSessionSection(std::string_view sessionType, std::string_view reason);

DiagnosisSection windowManagerSection(const DesktopFacts& facts);
DiagnosisSection monitorsSection(const DesktopFacts& facts);

// What the program needs besides windows: a tray, a toolkit, fonts.
DiagnosisSection partsSection(const DesktopFacts& facts);

} // namespace quorvel
