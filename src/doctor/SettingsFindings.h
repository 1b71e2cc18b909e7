#pragma once

#include "doctor/Diagnosis.h"

namespace quorvel {

class Bundle;
struct StoredSettings;

// The stored settings and the catalogue of layouts that they refer to.
DiagnosisSection settingsSection(const StoredSettings& stored, const Bundle& bundle);

} // namespace quorvel
