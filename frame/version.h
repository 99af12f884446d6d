#pragma once

#include "pxli.h"

namespace pxl {

const LibVersion* ownGetLibVersion();

} // namespace pxl
