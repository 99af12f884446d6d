// Which instruction set the exported functions run on: decided once, when the library is loaded.
#pragma once

namespace pxl {

// Set before any exported function can be called; constant afterwards.
extern bool useAvx2;

} // namespace pxl
