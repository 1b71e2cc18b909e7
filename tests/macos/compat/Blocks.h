#pragma once

namespace quorvel::fakes {

// Makes blocks Objective-C objects, which the GNU run-time does not; before anything else in main().
void makeBlocksObjects();

} // namespace quorvel::fakes
