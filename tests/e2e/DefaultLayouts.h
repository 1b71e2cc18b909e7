#pragma once

#include "support/UnitFrame.h"

namespace quorvel::e2e {

using xtest::UnitFrame;
using xtest::UnitFrames;

// The layouts that a fresh start selects, in their order, which is also that of their digits from 1 on.
inline const UnitFrames fullScreen = {{0, 0, 1, 1}};
inline const UnitFrames centered = {{0.125, 0.1, 0.875, 0.9}};
inline const UnitFrames sideBySide = {{0, 0, 0.5, 1}, {0.5, 0, 1, 1}};
inline const UnitFrames stacked = {{0, 0.5, 1, 1}, {0, 0, 1, 0.5}};
inline const UnitFrames threeSideBySide = {{0, 0, 1.0 / 3, 1}, {1.0 / 3, 0, 2.0 / 3, 1}, {2.0 / 3, 0, 1, 1}};
inline const UnitFrames fourTiles = {{0, 0.5, 0.5, 1}, {0.5, 0.5, 1, 1}, {0, 0, 0.5, 0.5}, {0.5, 0, 1, 0.5}};

} // namespace quorvel::e2e
