#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>

#include <fmt/format.h>

#include "e2e/screenshots/Album.h"

// screenshots PROGRAM FOLDER: leaves pictures of the program's windows, light and dark, in the folder.
int main(int argc, char** argv)
{
    if (argc != 3) {
        fmt::print(stderr, "usage: {} PROGRAM FOLDER\n", argv[0]);
        return EXIT_FAILURE;
    }
    try {
        const std::filesystem::path folder = argv[2];
        std::filesystem::remove_all(folder);
        for (const auto& look : {quorvel::screenshots::Look{"light", "Adwaita"}, {"dark", "Adwaita-dark"}}) {
            quorvel::screenshots::Album(look, std::filesystem::absolute(argv[1]), folder).fill();
        }
        fmt::print("pictures: {}\n", folder.string());
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        fmt::print(stderr, "{}\n", error.what());
        return EXIT_FAILURE;
    }
}
