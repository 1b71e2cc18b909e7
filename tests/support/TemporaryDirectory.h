#pragma once

#include <filesystem>
#include <string_view>

namespace quorvel::xtest {

// A fresh directory, removed with all it holds on destruction.
class TemporaryDirectory {
public:
    TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    ~TemporaryDirectory();

    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::filesystem::path& path() const { return location; }

    // Writes a file at the path relative to this directory, with the folders above it.
    std::filesystem::path write(const std::filesystem::path& relative, std::string_view text) const;

private:
    std::filesystem::path location;
};

} // namespace quorvel::xtest
