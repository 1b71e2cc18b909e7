#pragma once

#include "base/Color.h"
#include "report/Condition.h"
#include "report/Results.h"

namespace quorvel::bench {

struct ChartPalette {
    struct Bars {
        Color plain;
        Color composited;
    };

    Color background;
    Color text;
    Color mutedText;
    Color grid;
    Bars quorvel;
    Bars minimal;
    Bars peer;

    static const ChartPalette& light();
    static const ChartPalette& dark();

    const Color& barOf(Role role, Compositing compositing) const;
};

} // namespace quorvel::bench
