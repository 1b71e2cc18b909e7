#pragma once

#include <string>
#include <vector>

#include "settings/SettingsCheck.h"

namespace quorvel {

// What is stored for the program, read by somebody who must not touch it.
struct StoredSettings {
    enum class State { absent, readable, damaged, unreadable };

    State state = State::absent;
    std::string place;   // for a person
    std::string problem; // what is wrong with damaged or unreadable settings, a few words
    std::vector<SettingsEntry> entries;
    bool isPrivate = true;  // nobody else may read them
    bool isWritable = true; // changes can be stored
};

} // namespace quorvel
