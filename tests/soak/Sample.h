#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

namespace quorvel::soak {

// What a program holds at one moment.
struct Sample {
    std::size_t residentKibibytes = 0;
    std::map<std::string, std::uint32_t> xResources{}; // by the server's names of their kinds, such as "WINDOW"
    std::uint64_t pixmapBytes = 0;                     // in the server
    std::size_t descriptors = 0;
    std::size_t grabs = 0;          // of keyboard and pointer
    std::size_t visibleWindows = 0; // those of the program on the screen
};

// Of the X resources, those of a kind.
inline std::uint32_t countOf(const Sample& sample, const std::string& kind)
{
    const auto found = sample.xResources.find(kind);
    return found == sample.xResources.end() ? 0 : found->second;
}

} // namespace quorvel::soak
