#pragma once

#include "support/TemporaryDirectory.h"

namespace quorvel::fakes {

// Lets GNUstep keep the settings of this process in a folder of its own, so that tests neither touch the user's nor one
// another's. It reads where once, so this comes before anything else.
class SettingsFolder {
public:
    SettingsFolder();

private:
    xtest::TemporaryDirectory folder;
};

} // namespace quorvel::fakes
