#pragma once

#include <memory>
#include <vector>

#include "support/ChildProcess.h"

namespace quorvel::bench {

// One process for each core that does nothing but compute, for as long as the object lives.
class BusyCores {
public:
    BusyCores();

    static unsigned count();

private:
    std::vector<std::unique_ptr<xtest::ChildProcess>> processes;
};

} // namespace quorvel::bench
