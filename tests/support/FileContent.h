#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace quorvel::xtest {

// The bytes of a file; none where it cannot be read.
inline std::string contentOf(const std::filesystem::path& file)
{
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

} // namespace quorvel::xtest
