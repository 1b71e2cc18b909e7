#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quorvel {

// Controls that stand for the same thing, one behind the other: those of a row, the buttons at a foot.
struct FocusableRow {
    std::string id;
    std::vector<bool> isEnabled; // by control
};

struct FocusPlace {
    std::size_t row = 0;
    std::size_t control = 0;

    bool operator==(const FocusPlace&) const = default;
};

// Where the keyboard was among controls that others replace.
class KeptPlace {
public:
    // Nowhere.
    KeptPlace() = default;
    KeptPlace(const std::vector<FocusableRow>& rows, const FocusPlace& place);

    // The same control among the others, or where that has gone or is disabled, one near it: of its row, of the rows
    // behind it, of those before it.
    std::optional<FocusPlace> among(const std::vector<FocusableRow>& rows) const;

private:
    std::vector<std::string> wanted; // rows, the first choice first
    std::size_t control = 0;
};

} // namespace quorvel
