#pragma once

#include <filesystem>
#include <memory>

#include "platform/Updater.h"
#include "platform/x11/desktop/WebClient.h"
#include "platform/x11/settings/PlistUserDefaults.h"
#include "system/FeedUpdater.h"

namespace quorvel::contract {

// Updates by a feed, as the program for X11 desktops puts them together. Nobody answers at the feed's address.
class ContractUpdater final : public Updater {
public:
    struct Ports {
        MainQueue& mainQueue;
        Alerts& alerts;
        Workspace& workspace;
        Dates& dates;
    };

    ContractUpdater(const Ports& ports, const std::filesystem::path& file)
        : store(x11::SettingsFile(file), [](std::string_view) {}),
          webClient(x11::WebClient::standardFile(), ports.mainQueue),
          updater({webClient, ports.mainQueue, store, ports.alerts, ports.workspace, ports.dates,
                   "http://127.0.0.1:1/appcast.xml", "1.0", "linux"})
    {}

    std::unique_ptr<UpdaterController> createController() override { return updater.createController(); }

private:
    x11::PlistUserDefaults store;
    x11::WebClient webClient;
    FeedUpdater updater;
};

} // namespace quorvel::contract
