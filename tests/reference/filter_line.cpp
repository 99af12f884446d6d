// Filters with a kernel of one row or one column.
#include "filter.h"

namespace reference {

namespace {

// What the two directions have in common; the length and the anchor are still to be set.
FilterCall lineCall(const Member& member, const Arg* args) {
    return {.images = args, .kernel = args + 5, .divisor = hasIntegerKernel(member) ? args + 8 : nullptr};
}

int32_t filterRow(const Member& member, const Arg* args) {
    FilterCall call = lineCall(member, args);
    call.kernelWidth = args[6].num;
    call.anchorX = args[7].num;
    return runFilter(member, call);
}

int32_t filterColumn(const Member& member, const Arg* args) {
    FilterCall call = lineCall(member, args);
    call.kernelHeight = args[6].num;
    call.anchorY = args[7].num;
    return runFilter(member, call);
}

const Registered filterRowFamily("FilterRow", filterRow);
const Registered filterRow32fFamily("FilterRow32f", filterRow);
const Registered filterColumnFamily("FilterColumn", filterColumn);
const Registered filterColumn32fFamily("FilterColumn32f", filterColumn);

} // namespace

} // namespace reference
