#pragma once

#include "platform/SystemColors.h"

namespace quorvel {

class SimulatedSystemColors final : public SystemColors {
public:
    Color accent() const override { return accentColor; }
    Color blue() const override { return Color::bytes(0, 122, 255); }
    Color green() const override { return Color::bytes(48, 209, 88); }
    Color yellow() const override { return Color::bytes(255, 204, 0); }

    Color accentColor = Color::bytes(0, 122, 255);
};

} // namespace quorvel
