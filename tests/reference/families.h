// One function per family. Each takes the C arguments in the order of the family's prototype.
#pragma once

#include "reference.h"

namespace reference {

int32_t copy(const Member& member, const Arg* args);
int32_t copyManaged(const Member& member, const Arg* args);
int32_t dup(const Member& member, const Arg* args);
int32_t set(const Member& member, const Arg* args);
int32_t swapChannels(const Member& member, const Arg* args);

int32_t convert(const Member& member, const Arg* args); // hands the bit images to the two below
int32_t packBits(const Arg* args);
int32_t unpackBits(const Arg* args);
int32_t scale(const Member& member, const Arg* args);

int32_t copyConstBorder(const Member& member, const Arg* args);
int32_t copyReplicateBorder(const Member& member, const Arg* args);
int32_t copyWrapBorder(const Member& member, const Arg* args);

int32_t mirror(const Member& member, const Arg* args);
int32_t transpose(const Member& member, const Arg* args);

int32_t add(const Member& member, const Arg* args);
int32_t sub(const Member& member, const Arg* args);
int32_t mul(const Member& member, const Arg* args);
int32_t div(const Member& member, const Arg* args);
int32_t divRound(const Member& member, const Arg* args);

int32_t addC(const Member& member, const Arg* args);
int32_t subC(const Member& member, const Arg* args);
int32_t mulC(const Member& member, const Arg* args);
int32_t divC(const Member& member, const Arg* args);

int32_t mulScale(const Member& member, const Arg* args);
int32_t mulCScale(const Member& member, const Arg* args);

int32_t bitAnd(const Member& member, const Arg* args);
int32_t bitOr(const Member& member, const Arg* args);
int32_t bitXor(const Member& member, const Arg* args);
int32_t bitAndC(const Member& member, const Arg* args);
int32_t bitOrC(const Member& member, const Arg* args);
int32_t bitXorC(const Member& member, const Arg* args);
int32_t bitNot(const Member& member, const Arg* args);

int32_t lShiftC(const Member& member, const Arg* args);
int32_t rShiftC(const Member& member, const Arg* args);

int32_t filter(const Member& member, const Arg* args);
int32_t filterRow(const Member& member, const Arg* args);
int32_t filterColumn(const Member& member, const Arg* args);
int32_t filterGetBufSize(const Member& member, const Arg* args);

int32_t filterBox(const Member& member, const Arg* args);
int32_t sumWindowRow(const Member& member, const Arg* args);
int32_t sumWindowColumn(const Member& member, const Arg* args);

} // namespace reference
