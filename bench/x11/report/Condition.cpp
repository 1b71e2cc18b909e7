#include "report/Condition.h"

namespace quorvel::bench {

std::string nameOf(const Condition& condition)
{
    const std::string load = condition.load == Load::idle ? "idle" : "loaded";
    return condition.compositing == Compositing::on ? load + "-picom" : load;
}

} // namespace quorvel::bench
