// The instruction set that exported functions run on: decided once, when the library is loaded.
#pragma once

#include "target_list.h"

namespace pxl {

// The best that the processor offers. A function that has no code of its own for it runs on the best one that it has below.
// Set before any exported function can be called; constant afterwards.
#pragma GCC visibility push(hidden)
extern Target target;
#pragma GCC visibility pop

} // namespace pxl
