#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "platform/x11/settings/PlistUserDefaults.h"
#include "support/TemporaryDirectory.h"

namespace quorvel::x11 {

inline const std::string head = "<plist version=\"1.0\"><dict>";
inline const std::string tail = "</dict></plist>";

inline PropertyValue text(std::string value)
{
    return PropertyValue{std::move(value)};
}

inline PropertyValue integer(std::int64_t value)
{
    return PropertyValue{value};
}

// A settings file, what is said about it, and the program that opens it.
class SettingsFileFixture : public testing::Test {
protected:
    PlistUserDefaults open()
    {
        return {SettingsFile(path), [this](std::string_view line) { lines.emplace_back(line); }};
    }

    static std::string contents(const std::filesystem::path& file)
    {
        std::ostringstream stream;
        stream << std::ifstream(file).rdbuf();
        return stream.str();
    }

    // In place, as some editors do.
    void write(std::string_view bytes) const
    {
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::trunc) << bytes;
    }

    std::vector<std::string> namesInDirectory() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path.parent_path())) {
            names.push_back(entry.path().filename());
        }
        std::ranges::sort(names);
        return names;
    }

    xtest::TemporaryDirectory directory;
    std::filesystem::path path = directory.path() / "config" / "quorvel" / "settings.plist";
    std::vector<std::string> lines;
};

} // namespace quorvel::x11
