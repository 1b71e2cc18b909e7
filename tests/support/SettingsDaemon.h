#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/XClient.h"

namespace quorvel::xtest {

// A settings daemon as desktops have one: it publishes settings, all of them texts here, on the X server.
class SettingsDaemon {
public:
    using Settings = std::vector<std::pair<std::string, std::string>>; // names and values

    SettingsDaemon(XClient& client, const Settings& settings);
    SettingsDaemon(const SettingsDaemon&) = delete;
    ~SettingsDaemon();

    SettingsDaemon& operator=(const SettingsDaemon&) = delete;

    void publish(const Settings& settings);

private:
    XClient& client;
    xcb_window_t window;
};

} // namespace quorvel::xtest
