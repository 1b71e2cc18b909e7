#include "support/TemporaryDirectory.h"

#include <cstdlib>
#include <fstream>
#include <string>
#include <system_error>

#include "support/Patience.h"

namespace quorvel::xtest {

TemporaryDirectory::TemporaryDirectory()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "quorvel-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw HarnessError("cannot create a temporary directory at " + pattern);
    }
    location = pattern;
}

TemporaryDirectory::~TemporaryDirectory()
{
    std::error_code ignored; // a client that is still ending may write once more; that must not end the test program
    std::filesystem::remove_all(location, ignored);
}

std::filesystem::path TemporaryDirectory::write(const std::filesystem::path& relative, std::string_view text) const
{
    const auto file = location / relative;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
    return file;
}

} // namespace quorvel::xtest
