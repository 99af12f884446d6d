#include "families.h"

namespace reference {

namespace {

struct Entry {
    std::string_view family;
    Function function;
};

constexpr Entry table[] = {
    // data exchange
    {"Copy", copy},
    {"CopyManaged", copyManaged},
    {"Dup", dup},
    {"Set", set},
    {"SwapChannels", swapChannels},
    {"Convert", convert},
    {"Scale", scale},
    {"CopyConstBorder", copyConstBorder},
    {"CopyReplicateBorder", copyReplicateBorder},
    {"CopyWrapBorder", copyWrapBorder},
    {"Mirror", mirror},
    {"Transpose", transpose},
    // arithmetic
    {"Add", add},
    {"Sub", sub},
    {"Mul", mul},
    {"Div", div},
    {"Div_Round", divRound},
    {"AddC", addC},
    {"SubC", subC},
    {"MulC", mulC},
    {"DivC", divC},
    {"MulScale", mulScale},
    {"MulCScale", mulCScale},
    // logic
    {"And", bitAnd},
    {"Or", bitOr},
    {"Xor", bitXor},
    {"AndC", bitAndC},
    {"OrC", bitOrC},
    {"XorC", bitXorC},
    {"Not", bitNot},
    {"LShiftC", lShiftC},
    {"RShiftC", rShiftC},
    // filters
    {"Filter", filter},
    {"FilterGetBufSize", filterGetBufSize},
    {"Filter32f", filter},
    {"Filter_Round16s", filter},
    {"Filter_Round32s", filter},
    {"Filter_Round32f", filter},
    {"FilterRow", filterRow},
    {"FilterRow32f", filterRow},
    {"FilterColumn", filterColumn},
    {"FilterColumn32f", filterColumn},
    {"FilterBox", filterBox},
    {"SumWindowRow", sumWindowRow},
    {"SumWindowColumn", sumWindowColumn},
};

} // namespace

Function find(std::string_view family) {
    for (const Entry& entry : table) {
        if (entry.family == family) return entry.function;
    }
    return nullptr;
}

} // namespace reference
