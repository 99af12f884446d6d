// What the generated exports stand on: the public declarations with default visibility, and the way to the chosen target.
#pragma once

#pragma GCC visibility push(default)
#include "pxli.h"
#pragma GCC visibility pop

#include "frame/memory.h"
#include "frame/target.h"
#include "frame/version.h"

#ifdef PXL_WITH_AVX2
#define PXL_ON_TARGET(name) (pxl::useAvx2 ? pxl::avx2::name : pxl::sse2::name)
#else
#define PXL_ON_TARGET(name) pxl::sse2::name
#endif
