#include "frame/target.h"

namespace pxl {

Target target = knownTargets[0].target;

namespace {

__attribute__((constructor)) void chooseTarget() {
    __builtin_cpu_init(); // constructors may run before the compiler runtime's own
    for (const KnownTarget& known : knownTargets)
        if (known.isOffered()) target = known.target;
}

} // namespace

} // namespace pxl
