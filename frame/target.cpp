#include "frame/target.h"

namespace pxl {

bool useAvx2 = false;

namespace {

__attribute__((constructor)) void chooseTarget() {
    __builtin_cpu_init(); // constructors may run before the compiler runtime's own
    useAvx2 = __builtin_cpu_supports("avx2");
}

} // namespace

} // namespace pxl
