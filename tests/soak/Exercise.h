#pragma once

#include <memory>
#include <string>

#include "report/Series.h"
#include "soak/SoakDesktop.h"

namespace quorvel::soak {

using bench::Milliseconds;

// Something that a person does again and again. After each cycle the program is at rest.
class Exercise {
public:
    virtual ~Exercise() = default;

    // Such as "placements".
    virtual std::string name() const = 0;

    // What cycle() times.
    virtual std::string latency() const = 0;

    // What a cycle leaves in memory by intent.
    virtual int keptBytes() const { return 0; }

    virtual Milliseconds cycle() = 0;
};

// Shows the layout overlay, steps to the next layout and hides it.
std::unique_ptr<Exercise> overlayExercise(SoakDesktop& desktop);

// Puts the frontmost window into the next of four tiles.
std::unique_ptr<Exercise> placementExercise(SoakDesktop& desktop);

// Shows the focus switcher and its two lists, and goes to another window.
std::unique_ptr<Exercise> switcherExercise(SoakDesktop& desktop);

// Opens the preferences, walks through their tabs and closes them.
std::unique_ptr<Exercise> preferencesExercise(SoakDesktop& desktop);

} // namespace quorvel::soak
