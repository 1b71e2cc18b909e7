#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>

#include "platform/x11/FileDescriptor.h"
#include "platform/x11/LoopSource.h"
#include "platform/x11/settings/SettingsFile.h"

namespace quorvel::x11 {

// Tells when another program may have written the settings file, be it in place, by putting a new file or a new
// directory there, or by changing a link that leads to it. Without inotify it never does.
class SettingsWatcher final : public LoopSource {
public:
    // The handler runs from the main loop.
    SettingsWatcher(SettingsFile file, std::function<void()> onChange);

private:
    bool hasWork() override { return false; }
    void dispatch() override;
    void watchDirectories();
    bool readEvents();
    bool concernsUs(int watch, std::uint32_t mask, const std::string& name) const;

    SettingsFile file;
    std::function<void()> onChange;
    FileDescriptor inotify;
    std::map<int, std::set<std::string>> names; // of interest, by the watch of the directory that holds them
};

} // namespace quorvel::x11
