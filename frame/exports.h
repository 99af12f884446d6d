// What the generated exports stand on: the public declarations with default visibility, and the target that was chosen.
#pragma once

#pragma GCC visibility push(default)
#include "pxli.h"
#pragma GCC visibility pop

#include "frame/memory.h"
#include "frame/target.h"
#include "frame/version.h"
