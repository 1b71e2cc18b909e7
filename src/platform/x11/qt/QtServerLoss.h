#pragma once

namespace quorvel::x11 {

// Qt has a connection of its own, and ends the process in the moment in which it finds the server gone, after a message
// of its own, and one of Xlib's, in the midst of whatever it does. Instead of these there is to be the program's one
// line.
void sayServerLossInOneLine();

// The program has said it already.
void sayNoServerLoss();

} // namespace quorvel::x11
