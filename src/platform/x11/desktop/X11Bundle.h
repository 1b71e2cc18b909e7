#pragma once

#include <filesystem>
#include <vector>

#include "platform/Bundle.h"

namespace quorvel::x11 {

// Resources as files in a few directories, the first of which wins. Images are PNG files in several sizes, named
// "Name-SIZE.png", in the subdirectory "images". The user guide is beside them, where documents are.
class X11Bundle final : public Bundle {
public:
    explicit X11Bundle(std::vector<std::filesystem::path> directories) : directories(std::move(directories)) {}

    // $QUORVEL_RESOURCES, where set, and then ../share/quorvel as seen from the program's file; the build tree and the
    // installed program are laid out alike.
    static std::vector<std::filesystem::path> standardDirectories();

    std::expected<std::optional<std::string>, std::string> resource(std::string_view name,
                                                                    std::string_view extension) const override;
    std::optional<Image> image(std::string_view name) const override;
    std::string shortVersion() const override;
    std::string userGuideAddress() const override;

    // The file of an image in the smallest size that has at least that many pixels a side, else in the largest; empty
    // if there is no such image.
    std::filesystem::path imageFile(std::string_view name, int pixels) const;

private:
    std::filesystem::path find(const std::filesystem::path& relative) const;

    std::vector<std::filesystem::path> directories;
};

} // namespace quorvel::x11
