#include "platform/x11/settings/SettingsWatcher.h"

#include <cstring>
#include <utility>

#include <sys/inotify.h>

namespace quorvel::x11 {

SettingsWatcher::SettingsWatcher(SettingsFile file, std::function<void()> onChange)
    : file(std::move(file)), onChange(std::move(onChange)), inotify(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
{
    if (inotify.isOpen()) {
        watchDirectories();
        watchForInput(inotify.get());
    }
}

void SettingsWatcher::watchDirectories()
{
    // A file that was just created is empty or half written, so only its closing counts; a link is complete at once.
    constexpr std::uint32_t mask = IN_CLOSE_WRITE | IN_MOVED_TO | IN_CREATE | IN_ONLYDIR;
    std::map<int, std::set<std::string>> current;
    for (const auto& path : file.chain()) {
        const int watch = ::inotify_add_watch(inotify.get(), path.parent_path().c_str(), mask);
        if (watch >= 0) {
            current[watch].insert(path.filename().string());
        }
    }
    for (const auto& [watch, unused] : names) {
        if (!current.contains(watch)) {
            ::inotify_rm_watch(inotify.get(), watch);
        }
    }
    names = std::move(current);
}

void SettingsWatcher::dispatch()
{
    if (readEvents()) {
        watchDirectories(); // a link may lead elsewhere now
        onChange();
    }
}

bool SettingsWatcher::readEvents()
{
    bool isChanged = false;
    alignas(inotify_event) char buffer[4096];
    for (;;) {
        const ssize_t size = ::read(inotify.get(), buffer, sizeof buffer);
        if (size <= 0) {
            return isChanged;
        }
        for (ssize_t offset = 0; offset < size;) {
            inotify_event event{};
            std::memcpy(&event, buffer + offset, sizeof event);
            const char* const name = buffer + offset + sizeof event;
            isChanged = isChanged || concernsUs(event.wd, event.mask, event.len > 0 ? name : "");
            offset += static_cast<ssize_t>(sizeof event + event.len);
        }
    }
}

bool SettingsWatcher::concernsUs(int watch, std::uint32_t mask, const std::string& name) const
{
    if ((mask & IN_Q_OVERFLOW) != 0) {
        return true;
    }
    const auto directory = names.find(watch);
    if (directory == names.end() || !directory->second.contains(name)) {
        return false;
    }
    const bool isComplete = (mask & (IN_CLOSE_WRITE | IN_MOVED_TO)) != 0;
    return isComplete || file.chain().size() > 1;
}

} // namespace quorvel::x11
