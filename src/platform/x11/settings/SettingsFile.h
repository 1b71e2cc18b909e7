#pragma once

#include <cstdint>
#include <expected>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel::x11 {

// Tells two states of a file apart without reading it.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::int64_t modified = 0; // ns since the epoch
    std::int64_t changed = 0;  // ns since the epoch

    bool operator==(const FileStamp&) const = default;
};

// The settings file as bytes. Symbolic links are followed at each call, and the file that they lead to is the one that
// is replaced. Errors are texts for people, without the file's name.
class SettingsFile {
public:
    struct Contents {
        std::string bytes;
        FileStamp stamp;
    };

    explicit SettingsFile(std::filesystem::path path);

    // $XDG_CONFIG_HOME/quorvel/settings.plist, in ~/.config where the variable is unset or not absolute.
    static std::filesystem::path defaultPath();

    const std::filesystem::path& path() const { return link; }

    // The path itself and every path that a link at the former one leads to; the last one is the file's own.
    std::vector<std::filesystem::path> chain() const;

    // Nothing if there is no file.
    std::optional<FileStamp> stamp() const;
    std::expected<std::optional<Contents>, std::string> read() const;

    // Creates the directories that lead to the file.
    std::expected<void, std::string> createDirectory() const;

    // Replaces the file, or creates it in a directory that exists: after a crash at any moment it holds either the old
    // bytes or all of the new ones. Only the user may read it.
    std::expected<FileStamp, std::string> replace(std::string_view bytes) const;

    // Removes what replace() left behind in processes that were killed in the midst of it.
    void removeLeftovers() const;

    // Gives the file a free name beside its own: "settings.plist.damaged-1", "-2" and so on.
    std::expected<std::filesystem::path, std::string> moveAside() const;

private:
    std::filesystem::path link;
};

} // namespace quorvel::x11
