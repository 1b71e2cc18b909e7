#pragma once

#include <string>
#include <vector>

#include "support/PixelRect.h"

namespace quorvel::tour {

// What moved where: the table at the end of the tour.
class Report {
public:
    struct Row {
        std::string key;
        std::string effect;
        std::string expected;
        std::string actual;
        bool passed = false;
    };

    void add(Row row) { rows.push_back(std::move(row)); }
    bool allPassed() const;
    std::string table() const;

private:
    std::vector<Row> rows;
};

std::string describe(const xtest::PixelRect& rect);

} // namespace quorvel::tour
