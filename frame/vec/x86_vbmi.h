// Vectors of 32 bytes with permutes of bytes: AVX-512 F, BW, DQ, VL and VBMI.
#pragma once

#include "frame/vec/x86_256.h"

namespace pxl::PXL_TARGET {

// Byte i of the result is byte from[i] of v.
PXL_INLINE Vec<uint8_t> TableLookupLanes(Vec<uint8_t> v, Vec<uint8_t> from) {
    // The form without a mask draws a false warning from GCC 12.
    return fromInts<uint8_t>(_mm256_maskz_permutexvar_epi8(~__mmask32{0}, ints(from), ints(v)));
}
// Byte i of the result is byte from[i] of a followed by b.
PXL_INLINE Vec<uint8_t> TwoTablesLookupLanes(Vec<uint8_t> a, Vec<uint8_t> b, Vec<uint8_t> from) {
    return fromInts<uint8_t>(_mm256_permutex2var_epi8(ints(a), ints(from), ints(b)));
}

} // namespace pxl::PXL_TARGET
