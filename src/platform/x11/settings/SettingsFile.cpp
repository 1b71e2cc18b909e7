#include "platform/x11/settings/SettingsFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <fmt/format.h>
#include <glib.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "platform/x11/ConfigurationDirectory.h"
#include "platform/x11/FileDescriptor.h"

namespace quorvel::x11 {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t maximumSize = std::size_t{16} << 20U;
constexpr int maximumLinks = 40;
constexpr auto notAFile = "not a regular file";

std::unexpected<std::string> failure(int error)
{
    return std::unexpected(std::generic_category().message(error));
}

std::int64_t nanoseconds(const timespec& time)
{
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

FileStamp stampOf(const struct stat& status)
{
    return {status.st_dev, status.st_ino, status.st_size, nanoseconds(status.st_mtim), nanoseconds(status.st_ctim)};
}

std::expected<std::string, std::string> readAll(const FileDescriptor& file)
{
    std::string bytes;
    char block[16384];
    for (;;) {
        const ssize_t count = ::read(file.get(), block, sizeof block);
        if (count == 0) {
            return bytes;
        }
        if (count < 0 && errno != EINTR) {
            return failure(errno);
        }
        if (count > 0) {
            bytes.append(block, static_cast<std::size_t>(count));
        }
        if (bytes.size() > maximumSize) {
            return failure(EFBIG);
        }
    }
}

std::expected<void, std::string> writeAll(const FileDescriptor& file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(file.get(), bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR) {
            return failure(errno);
        }
        if (count > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }
    return {};
}

constexpr std::string_view anySuffix = "XXXXXX";

std::string temporaryPrefix(const fs::path& target)
{
    return "." + target.filename().string() + ".unfinished-";
}

// A lock that goes with the process. File systems without locks grant none.
bool takeLock(const FileDescriptor& file)
{
    return ::flock(file.get(), LOCK_EX | LOCK_NB) == 0;
}

// A file that is not in use yet; removed unless it was given its name. Its lock tells that somebody is at work on it.
class TemporaryFile {
public:
    explicit TemporaryFile(const fs::path& target)
        : name(target.parent_path() / (temporaryPrefix(target) + std::string(anySuffix)))
    {
        file = FileDescriptor(::mkostemp(name.data(), O_CLOEXEC)); // mode 0600
        error = file.isOpen() ? 0 : errno;
        static_cast<void>(takeLock(file));
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile()
    {
        if (file.isOpen() && !isNamed) {
            ::unlink(name.c_str());
        }
    }

    std::expected<FileStamp, std::string> become(const fs::path& target, std::string_view bytes)
    {
        if (error != 0) {
            return failure(error);
        }
        if (auto written = writeAll(file, bytes); !written) {
            return std::unexpected(written.error());
        }
        if (::fsync(file.get()) != 0 || ::rename(name.c_str(), target.c_str()) != 0) {
            return failure(errno);
        }
        isNamed = true;
        struct stat status{};
        return ::fstat(file.get(), &status) == 0 ? std::expected<FileStamp, std::string>(stampOf(status))
                                                 : failure(errno);
    }

private:
    std::string name;
    FileDescriptor file;
    int error = 0;
    bool isNamed = false;
};

// Makes a name in a directory last through a power failure. File systems that cannot promise it are not an error.
void syncDirectory(const fs::path& directory)
{
    const FileDescriptor descriptor(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen()) {
        static_cast<void>(::fsync(descriptor.get()));
    }
}

// 0, or the error. EEXIST: the name is taken.
int renameToFreeName(const fs::path& from, const fs::path& to)
{
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return errno;
    }
    // A file system that cannot do it in one step; nobody else makes names of this kind.
    struct stat status{};
    if (::lstat(to.c_str(), &status) == 0) {
        return EEXIST;
    }
    return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

} // namespace

SettingsFile::SettingsFile(fs::path path) : link(std::move(path)) {}

fs::path SettingsFile::defaultPath()
{
    return configurationDirectory() / "quorvel" / "settings.plist";
}

std::vector<fs::path> SettingsFile::chain() const
{
    std::vector<fs::path> paths{link};
    std::error_code error;
    while (paths.size() <= maximumLinks && fs::is_symlink(paths.back(), error)) {
        const fs::path target = fs::read_symlink(paths.back(), error);
        if (error) {
            break;
        }
        paths.push_back(paths.back().parent_path() / target);
    }
    return paths;
}

std::optional<FileStamp> SettingsFile::stamp() const
{
    struct stat status{};
    return ::stat(link.c_str(), &status) == 0 ? std::optional(stampOf(status)) : std::nullopt;
}

std::expected<std::optional<SettingsFile::Contents>, std::string> SettingsFile::read() const
{
    const FileDescriptor file(::open(link.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.isOpen()) {
        if (errno == ENOENT) {
            return std::nullopt;
        }
        return failure(errno);
    }
    struct stat status{};
    if (::fstat(file.get(), &status) != 0) {
        return failure(errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return std::unexpected(notAFile);
    }
    auto bytes = readAll(file);
    if (!bytes) {
        return std::unexpected(bytes.error());
    }
    return Contents{std::move(*bytes), stampOf(status)};
}

std::expected<void, std::string> SettingsFile::createDirectory() const
{
    constexpr mode_t onlyTheUser = 0700;
    const std::string directory = chain().back().parent_path();
    if (g_mkdir_with_parents(directory.c_str(), onlyTheUser) != 0) {
        return failure(errno);
    }
    return {};
}

std::expected<FileStamp, std::string> SettingsFile::replace(std::string_view bytes) const
{
    const fs::path target = chain().back();
    struct stat status{};
    if (::stat(target.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        return std::unexpected(notAFile);
    }
    auto stamp = TemporaryFile(target).become(target, bytes);
    if (stamp) {
        syncDirectory(target.parent_path());
    }
    return stamp;
}

void SettingsFile::removeLeftovers() const
{
    const fs::path target = chain().back();
    const std::string prefix = temporaryPrefix(target);
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(target.parent_path(), error)) {
        const std::string name = entry.path().filename();
        if (!name.starts_with(prefix) || name.size() != prefix.size() + anySuffix.size()) {
            continue;
        }
        const FileDescriptor file(::open(entry.path().c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
        if (file.isOpen() && takeLock(file)) {
            ::unlink(entry.path().c_str());
        }
    }
}

std::expected<fs::path, std::string> SettingsFile::moveAside() const
{
    const fs::path target = chain().back();
    for (int number = 1;; ++number) {
        fs::path aside = target;
        aside += fmt::format(".damaged-{}", number);
        const int error = renameToFreeName(target, aside);
        if (error == 0) {
            return aside;
        }
        if (error != EEXIST) {
            return failure(error);
        }
    }
}

} // namespace quorvel::x11
