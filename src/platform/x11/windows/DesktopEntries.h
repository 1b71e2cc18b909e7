#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel::x11 {

// The names of installed applications in the user's language, after the .desktop files of some directories, the earlier
// ones before the later ones. The files are read when first needed, and again when a name is missing and a directory
// has changed meanwhile.
class DesktopEntries {
public:
    explicit DesktopEntries(std::vector<std::filesystem::path> directories) : directories(std::move(directories)) {}

    // The directories that the environment names.
    static std::vector<std::filesystem::path> standardDirectories();

    // The name of the application that a window with this instance and class name belongs to.
    std::optional<std::string> nameOf(std::string_view instance, std::string_view className);

    // Reads the files now.
    void load();

private:
    using Names = std::map<std::string, std::string, std::less<>>; // by lower-case key
    using Times = std::vector<std::filesystem::file_time_type>;

    std::optional<std::string> find(std::string_view instance, std::string_view className) const;
    void loadFile(const std::filesystem::path& file, const std::filesystem::path& directory);
    Times timesOfChange() const;

    std::vector<std::filesystem::path> directories;
    Names byWindowClass;   // StartupWMClass
    Names byIdentifier;    // the file's name
    Names byLastComponent; // "editor" of "org.example.editor"
    std::optional<Times> loadedTimes;
};

} // namespace quorvel::x11
