#pragma once

// GNUstep asks for this header of another run-time library.
#include <Block.h>
