#pragma once

#include <sys/types.h>

#include "soak/Sample.h"
#include "soak/SoakDesktop.h"

namespace quorvel::soak {

// Reads what a running program holds, from the system and from the server.
class ProgramFigures {
public:
    explicit ProgramFigures(SoakDesktop& desktop)
        : desktop(desktop), display(desktop.display), process(desktop.quorvel().program().id())
    {}

    // When the program is at rest: its X resources and descriptors do not change while it shows and hides the overlay.
    Sample readAtRest();

private:
    Sample read();
    std::size_t residentKibibytes() const;
    std::size_t descriptors() const;
    std::size_t visibleWindows();
    void readXResources(Sample& sample);

    SoakDesktop& desktop;
    xtest::TestDisplay& display;
    pid_t process;
};

} // namespace quorvel::soak
