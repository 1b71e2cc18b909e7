#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace quorvel::x11 {

// Every call by which this program changes files goes through here: mkostemp, write, fsync, rename. So a test knows in
// which order they come, and can let the process die, as by kill -9, in the moment of any of them.
namespace fileCalls {

// The calls from now on are numbered from 0.
void record();
const std::vector<std::string>& recorded();

// Kills the process in the moment of that call: before it, and in the midst of a write, when the fraction of its bytes
// has been written.
void dieAt(std::size_t call, double writtenFraction);

} // namespace fileCalls

} // namespace quorvel::x11
