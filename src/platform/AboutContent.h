#pragma once

#include <string>

namespace quorvel {

// What the About window shows, top to bottom. The window is as large as that needs, can be closed but not resized, and
// moves with the pointer wherever it is grabbed.
struct AboutContent {
    std::string windowTitle;
    std::string imageName; // a bundle image
    std::string name;
    std::string version; // a whole line

    bool operator==(const AboutContent&) const = default;
};

} // namespace quorvel
