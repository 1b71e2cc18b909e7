#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>

#include <fmt/format.h>

#include "e2e/tour/Tour.h"

// tour PROGRAM PICTURE_FOLDER: performs the guided tour, prints what moved where and leaves pictures in the folder.
// Exits with 0 only if every step did what it should.
int main(int argc, char** argv)
{
    if (argc != 3) {
        fmt::print(stderr, "usage: {} PROGRAM PICTURE_FOLDER\n", argv[0]);
        return EXIT_FAILURE;
    }
    try {
        const std::filesystem::path pictures = argv[2];
        std::filesystem::remove_all(pictures);
        quorvel::tour::Tour tour(std::filesystem::absolute(argv[1]), pictures);
        tour.perform();
        fmt::print("{}\npictures: {}\n", tour.report().table(), pictures.string());
        return tour.report().allPassed() ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& error) {
        fmt::print(stderr, "the tour could not begin: {}\n", error.what());
        return EXIT_FAILURE;
    }
}
