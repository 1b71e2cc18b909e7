#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

namespace quorvel {

using FuzzInput = std::vector<std::uint8_t>;

// Makes inputs of those of a corpus: the same ones in the same order each time, with whichever standard library.
class Mutator {
public:
    explicit Mutator(std::vector<FuzzInput> newCorpus) : corpus(std::move(newCorpus))
    {
        corpus.emplace_back(); // there may be nothing else
    }

    FuzzInput next()
    {
        constexpr std::size_t mostChanges = 4;
        auto input = corpus[below(corpus.size())];
        for (auto changes = 1 + below(mostChanges); changes > 0; --changes) {
            change(input);
        }
        return input;
    }

private:
    std::size_t below(std::size_t limit) { return random() % limit; }

    void change(FuzzInput& input)
    {
        const auto place = input.begin() + static_cast<std::ptrdiff_t>(below(input.size() + 1));
        const bool isAtEnd = place == input.end();
        switch (below(5)) {
        case 0:
            input.insert(place, static_cast<std::uint8_t>(random()));
            break;
        case 1:
            isAtEnd ? input.clear() : static_cast<void>(input.erase(place));
            break;
        case 2:
            if (!isAtEnd) {
                *place = static_cast<std::uint8_t>(random());
            }
            break;
        case 3:
            if (!isAtEnd) {
                *place ^= static_cast<std::uint8_t>(1U << below(8));
            }
            break;
        default: // the end of another one
            const auto& other = corpus[below(corpus.size())];
            input.erase(place, input.end());
            input.insert(input.end(), other.begin() + static_cast<std::ptrdiff_t>(below(other.size() + 1)),
                         other.end());
            break;
        }
    }

    std::vector<FuzzInput> corpus;
    std::mt19937 random;
};

} // namespace quorvel
