#pragma once

#include <filesystem>

#include "platform/SystemColors.h"

namespace quorvel::x11 {

// The accent colour is the one of Plasma's settings where there is one, and the usual blue of other desktops elsewhere;
// those that let people choose another keep it where only a message over D-Bus reaches it.
class X11SystemColors final : public SystemColors {
public:
    // The file with Plasma's settings, which need not exist. It is read again whenever it has changed.
    explicit X11SystemColors(std::filesystem::path plasmaSettings) : plasmaSettings(std::move(plasmaSettings)) {}

    // Where Plasma keeps that file for this user.
    static std::filesystem::path plasmaSettingsFile();

    Color accent() const override;
    Color blue() const override { return Color::bytes(53, 132, 228); }
    Color green() const override { return Color::bytes(48, 209, 88); }
    Color yellow() const override { return Color::bytes(246, 211, 45); }

private:
    std::filesystem::path plasmaSettings;
    mutable std::filesystem::file_time_type readAt{};
    mutable Color knownAccent = blue();
};

} // namespace quorvel::x11
