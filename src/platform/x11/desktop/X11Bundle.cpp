#include "platform/x11/desktop/X11Bundle.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <system_error>

#include <fcntl.h>
#include <fmt/format.h>
#include <glib.h>
#include <unistd.h>

#include "platform/x11/FileDescriptor.h"
#include "platform/x11/GlibHandles.h"
#include "platform/x11/desktop/BuildFacts.h"

namespace quorvel::x11 {

namespace {

// The sizes that the build makes of every image.
constexpr std::array imageSizes = {16, 22, 24, 32, 48, 64, 128, 256};

std::string failure(const std::filesystem::path& file, int error)
{
    return fmt::format("cannot read {}: {}", file.string(), std::strerror(error));
}

std::expected<std::string, std::string> readWhole(const std::filesystem::path& file)
{
    const FileDescriptor descriptor(open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (!descriptor.isOpen()) {
        return std::unexpected(failure(file, errno));
    }
    std::string content;
    std::array<char, 16384> block{};
    while (true) {
        const auto count = read(descriptor.get(), block.data(), block.size());
        if (count == 0) {
            return content;
        }
        if (count > 0) {
            content.append(block.data(), static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            return std::unexpected(failure(file, errno));
        }
    }
}

} // namespace

std::vector<std::filesystem::path> X11Bundle::standardDirectories()
{
    std::vector<std::filesystem::path> directories;
    if (const char* const chosen = std::getenv("QUORVEL_RESOURCES"); chosen != nullptr && *chosen != '\0') {
        directories.emplace_back(chosen);
    }
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (!error) {
        directories.push_back((program.parent_path() / buildFacts::programsToResources).lexically_normal());
    }
    return directories;
}

std::expected<std::optional<std::string>, std::string> X11Bundle::resource(std::string_view name,
                                                                           std::string_view extension) const
{
    const auto file = find(fmt::format("{}.{}", name, extension));
    if (file.empty()) {
        return std::nullopt;
    }
    return readWhole(file);
}

std::optional<Image> X11Bundle::image(std::string_view name) const
{
    if (imageFile(name, 0).empty()) {
        return std::nullopt;
    }
    return Image{std::string(name), false};
}

std::string X11Bundle::shortVersion() const
{
    return std::string(buildFacts::version);
}

std::string X11Bundle::userGuideAddress() const
{
    const auto file = find(std::filesystem::path("../doc/quorvel/guide/index.html"));
    if (file.empty()) {
        return {};
    }
    const auto path = std::filesystem::absolute(file).lexically_normal();
    const GlibText address(g_filename_to_uri(path.c_str(), nullptr, nullptr));
    return address ? std::string(address.get()) : std::string();
}

std::filesystem::path X11Bundle::imageFile(std::string_view name, int pixels) const
{
    std::filesystem::path best;
    for (const int size : imageSizes) {
        auto file = find(std::filesystem::path("images") / fmt::format("{}-{}.png", name, size));
        if (!file.empty()) {
            best = std::move(file);
            if (size >= pixels) {
                break;
            }
        }
    }
    return best;
}

std::filesystem::path X11Bundle::find(const std::filesystem::path& relative) const
{
    for (const auto& directory : directories) {
        auto file = directory / relative;
        std::error_code error;
        if (std::filesystem::exists(file, error)) {
            return file;
        }
    }
    return {};
}

} // namespace quorvel::x11
