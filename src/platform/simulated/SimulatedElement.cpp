#include "platform/simulated/SimulatedElement.h"

namespace quorvel {

void SimulatedElement::behave()
{
    readingErrors.clear();
    writingErrors.clear();
    actionErrors.clear();
    answers.clear();
}

} // namespace quorvel
