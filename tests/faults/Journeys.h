#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel {

class FaultSession;

// Something that a person does from the beginning to the end, with what it led to as a text: the same each time it is
// done on a furnished desktop. A journey goes on whatever fails on the way: the person does what can be done.
struct Journey {
    std::string_view name;
    std::function<std::string(FaultSession&)> go;
};

// For the names of tests.
inline std::ostream& operator<<(std::ostream& out, const Journey& journey)
{
    return out << journey.name;
}

// Every journey of a person through the program.
std::vector<Journey> journeys();

} // namespace quorvel
