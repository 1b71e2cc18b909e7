#pragma once

#include <filesystem>
#include <vector>

#include "platform/LoginItem.h"

namespace quorvel::x11 {

// Where a session looks for what it starts, and what it shall start.
struct AutostartPlaces {
    // Those of the environment: autostart in $XDG_CONFIG_HOME and in each of $XDG_CONFIG_DIRS.
    static AutostartPlaces standard(std::filesystem::path program);

    std::filesystem::path userDirectory;
    std::vector<std::filesystem::path> systemDirectories;
    std::filesystem::path program;
};

// An entry "quorvel.desktop" among those that a session starts. The user's entry goes before one of the system. An
// entry counts as enabled when this session would start it: it is not hidden or switched off by the session's settings,
// it is meant for this desktop, and its program is there. One whose program is gone is "not found".
class X11LoginItem final : public LoginItem {
public:
    explicit X11LoginItem(AutostartPlaces places);

    LoginItemStatus status() const override;

    // Writes the user's entry; what a person added to it stays.
    std::expected<void, std::string> registerItem() override;

    // Removes the user's entry, or hides one of the system by an entry of the user's.
    std::expected<void, std::string> unregisterItem() override;

private:
    std::filesystem::path userEntry() const;
    std::filesystem::path systemEntry() const;

    AutostartPlaces places;
};

} // namespace quorvel::x11
