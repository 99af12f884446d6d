#include "frame/version.h"

namespace pxl {

const LibVersion* ownGetLibVersion() {
    static constexpr LibVersion version = {
        5, 3, 85, 496, {'m', 'x', 0, 0}, "pxlimx-5.3.dll", "5.3 build 85.13", "Oct  8 2007"};
    return &version;
}

} // namespace pxl
