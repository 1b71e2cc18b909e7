#pragma once

namespace quorvel {

struct StoredSettings;

namespace x11 {
class SettingsFile;
}

// Reads a settings file and touches nothing, whatever its state.
StoredSettings readStoredSettings(const x11::SettingsFile& file);

} // namespace quorvel
