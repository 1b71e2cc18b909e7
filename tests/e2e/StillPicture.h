#pragma once

#include "support/Screenshot.h"
#include "support/XClient.h"

namespace quorvel::e2e {

// The pixels once nothing has been painted for a moment: programs paint when they like. The client watches painting.
xtest::Screenshot stillPicture(xtest::XClient& client, const xtest::PixelRect& part);

} // namespace quorvel::e2e
