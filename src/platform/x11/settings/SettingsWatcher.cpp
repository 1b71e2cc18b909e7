#include "platform/x11/settings/SettingsWatcher.h"

#include <cstring>
#include <utility>

#include <sys/inotify.h>

namespace quorvel::x11 {

namespace {

// What happens to a watched directory as a whole.
constexpr std::uint32_t selfEvents = IN_DELETE_SELF | IN_MOVE_SELF;

} // namespace

SettingsWatcher::SettingsWatcher(SettingsFile file, std::function<void()> onChange)
    : file(std::move(file)), onChange(std::move(onChange)), inotify(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
{
    if (inotify.isOpen()) {
        watchDirectories();
        watchForInput(inotify.get());
    }
}

// Besides the directory that holds the file the one that holds that directory, or the nearest one that exists: the
// directory itself may be put in place anew.
void SettingsWatcher::watchDirectories()
{
    constexpr std::uint32_t mask = IN_CLOSE_WRITE | IN_MOVED_TO | IN_CREATE | selfEvents | IN_ONLYDIR;
    std::map<int, std::set<std::string>> current;
    for (const auto& path : file.chain()) {
        for (auto entry = path; entry.has_relative_path(); entry = entry.parent_path()) {
            const int watch = ::inotify_add_watch(inotify.get(), entry.parent_path().c_str(), mask);
            if (watch >= 0) {
                current[watch].insert(entry.filename().string());
            }
            if (watch >= 0 && entry != path) {
                break;
            }
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
    if (directory == names.end()) {
        return false;
    }
    if ((mask & (selfEvents | IN_IGNORED)) != 0) {
        return true;
    }
    if (!directory->second.contains(name)) {
        return false;
    }
    // A file that was just created is empty or half written, so only its closing counts; a link is complete at once.
    const bool isComplete = (mask & (IN_CLOSE_WRITE | IN_MOVED_TO | IN_ISDIR)) != 0;
    return isComplete || file.chain().size() > 1;
}

} // namespace quorvel::x11
