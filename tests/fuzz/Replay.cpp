// usage: fuzz_TARGET FOLDER COUNT
//
// Runs a target without a fuzzing engine: over each input of a corpus, and over that many inputs made from these, which
// are the same each time. It tells what it tries before it does, for a target that finds something ends the process.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/fuzz/FuzzTarget.h"
#include "tests/fuzz/Mutator.h"

namespace {

using quorvel::FuzzInput;

FuzzInput contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files;
    if (std::filesystem::is_directory(folder)) {
        std::ranges::copy(std::filesystem::directory_iterator(folder), std::back_inserter(files));
    }
    std::ranges::sort(files);
    return files;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s FOLDER COUNT\n", argv[0]);
        return EXIT_FAILURE;
    }
    std::vector<FuzzInput> corpus;
    for (const auto& file : filesIn(argv[1])) {
        std::fprintf(stderr, "%s\n", file.c_str());
        corpus.push_back(contentOf(file));
        quorvel::fuzz(corpus.back());
    }
    if (corpus.empty()) {
        std::fprintf(stderr, "There is no corpus in %s\n", argv[1]);
        return EXIT_FAILURE;
    }
    quorvel::Mutator mutator(std::move(corpus));
    const long count = std::strtol(argv[2], nullptr, 10);
    for (long number = 1; number <= count; ++number) {
        std::fprintf(stderr, "%ld ", number);
        quorvel::fuzz(mutator.next());
    }
    std::fprintf(stderr, "\n");
    return EXIT_SUCCESS;
}
