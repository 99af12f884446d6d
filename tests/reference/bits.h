// The conversions from and to one-bit images, which Convert hands on.
#pragma once

#include "reference.h"

namespace reference {

int32_t packBits(const Arg* args);
int32_t unpackBits(const Arg* args);

} // namespace reference
