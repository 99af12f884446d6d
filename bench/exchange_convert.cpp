// Conversion and scaling between element types; the peer of both is Mat::convertTo. Pixels with alpha and bits it has none for.
#include "pair.h"

using namespace pxlbench;

namespace {

template <class S, class D, class... Rest>
using Conversion = PxlStatus (*)(const S*, int, D*, int, ImageSize, Rest...);

template <class S, class D>
Operands converted(int channels) {
    return {.src = {typeOf<S>(channels)}, .dst = {typeOf<D>(channels)}, .floor = Floor::Memcpy};
}

template <class... S, class... D>
void addConversions(Conversion<S, D>... functions) {
    (addPairAndStrided(
         rowName<S, D>("convert", "C1"), converted<S, D>(1), [=](Frame& f) { return unary(functions, f); },
         [](Frame& f) { f.src[0].convertTo(f.dst[0], typeOf<D>(1)); }),
     ...);
}
template <class... S, class... D>
void addRoundings(Conversion<S, D, PxlRoundMode>... functions) {
    (addPairAndStrided(
         rowName<S, D>("convert", "C1"), converted<S, D>(1),
         [=](Frame& f) { return unary(functions, f, PXL_ROUND_NEAR_EVEN); },
         [](Frame& f) { f.src[0].convertTo(f.dst[0], typeOf<D>(1)); }),
     ...);
}

// What convertTo does not do: the other ways to round, and alpha kept.
template <class... S, class... D>
void addOtherRoundings(const std::string& mode, PxlRoundMode rounding, Conversion<S, D, PxlRoundMode>... functions) {
    (addAlone(rowName<S, D>("convert", "C1_" + mode), converted<S, D>(1),
              [=](Frame& f) { return unary(functions, f, rounding); }),
     ...);
}
template <class... S, class... D>
void addColourConversions(Conversion<S, D>... functions) {
    (addAlone(rowName<S, D>("convert", "AC4"), converted<S, D>(4), [=](Frame& f) { return unary(functions, f); }), ...);
}
template <class... S, class... D>
void addColourRoundings(Conversion<S, D, PxlRoundMode>... functions) {
    (addAlone(rowName<S, D>("convert", "AC4"), converted<S, D>(4),
              [=](Frame& f) { return unary(functions, f, PXL_ROUND_NEAR_EVEN); }),
     ...);
}

// The linear map by which the peer does the same. The two sides order their float operations differently, so results may
// differ by one rounding.
template <class S, class D, class... Rest, class... Own>
void addScale(Conversion<S, D, Rest...> function, double slope, double origin, double tolerance, Own... own) {
    Operands operands = converted<S, D>(1);
    operands.tolerance = tolerance;
    addPairAndStrided(
        rowName<S, D>("scale", "C1"), operands, [=](Frame& f) { return unary(function, f, own...); },
        [=](Frame& f) { f.src[0].convertTo(f.dst[0], typeOf<D>(1), slope, origin); });
}

template <class S, class D, class... Rest, class... Own>
void addColourScale(Conversion<S, D, Rest...> function, Own... own) {
    addAlone(rowName<S, D>("scale", "AC4"), converted<S, D>(4), [=](Frame& f) { return unary(function, f, own...); });
}

void addScales() {
    addScale(pxliScale_8u16u_C1R, 257, 0, 0);
    addScale(pxliScale_8u16s_C1R, 257, -32768, 0);
    addScale(pxliScale_8u32s_C1R, 16843009, -2147483648.0, 256); // the peer's products are floats
    addScale(pxliScale_16u8u_C1R, 1. / 257, 0, 1, 2);
    addScale(pxliScale_16s8u_C1R, 1. / 257, 32768. / 257, 1, 2);
    addScale(pxliScale_32s8u_C1R, 1. / 16843009, 2147483648. / 16843009, 1, 2);
    addScale(pxliScale_8u32f_C1R, 2. / 255, -1, 1e-6, -1.0F, 1.0F);
    addScale(pxliScale_32f8u_C1R, 255. / 320, 32 * 255. / 320, 1, -32.0F, 288.0F);
    addColourScale(pxliScale_8u16u_AC4R);
    addColourScale(pxliScale_8u16s_AC4R);
    addColourScale(pxliScale_8u32s_AC4R);
    addColourScale(pxliScale_16u8u_AC4R, 2);
    addColourScale(pxliScale_16s8u_AC4R, 2);
    addColourScale(pxliScale_32s8u_AC4R, 2);
    addColourScale(pxliScale_8u32f_AC4R, -1.0F, 1.0F);
    addColourScale(pxliScale_32f8u_AC4R, -32.0F, 288.0F);
}

// Packed bits are an eighth of the bytes beside them and left out of the floor: a memset of as many bytes as are unpacked.
void addBits() {
    for (int offset : {0, 3})
        addAlone("convert_1u8u_C1_from" + std::to_string(offset), {.dst = {CV_8UC1}, .floor = Floor::Memset},
                 [=](Frame& f) {
                     static const std::vector<uint8_t> bits(1080 * (1920 / 8 + 1), 0x5A);
                     return pxliConvert_1u8u_C1R(bits.data(), f.size.width / 8 + 1, offset, f.out<uint8_t>(),
                                                 f.outStep(), f.size);
                 });
    addAlone("convert_8u1u_C1", {.src = {CV_8UC1}, .dst = {CV_8UC1}}, [](Frame& f) {
        return pxliConvert_8u1u_C1R(f.in<uint8_t>(), f.inStep(), f.out<uint8_t>(), f.outStep(), 0, f.size, 128);
    });
}

const Rows rows([] {
    addConversions(pxliConvert_8u16u_C1R, pxliConvert_8u16s_C1R, pxliConvert_8u32s_C1R, pxliConvert_8s32s_C1R,
                   pxliConvert_16u32s_C1R, pxliConvert_16s32s_C1R, pxliConvert_8u32f_C1R, pxliConvert_8s32f_C1R,
                   pxliConvert_16u32f_C1R, pxliConvert_16s32f_C1R, pxliConvert_16u8u_C1R, pxliConvert_16s8u_C1R,
                   pxliConvert_32s8u_C1R, pxliConvert_32s8s_C1R);
    addRoundings(pxliConvert_32f8u_C1R, pxliConvert_32f8s_C1R, pxliConvert_32f16u_C1R, pxliConvert_32f16s_C1R);
    addOtherRoundings("zero", PXL_ROUND_ZERO, pxliConvert_32f8u_C1R, pxliConvert_32f8s_C1R, pxliConvert_32f16u_C1R,
                      pxliConvert_32f16s_C1R);
    addOtherRoundings("away", PXL_ROUND_HALF_AWAY, pxliConvert_32f8u_C1R, pxliConvert_32f8s_C1R, pxliConvert_32f16u_C1R,
                      pxliConvert_32f16s_C1R);
    addColourConversions(pxliConvert_8u16u_AC4R, pxliConvert_8u16s_AC4R, pxliConvert_8u32s_AC4R, pxliConvert_8s32s_AC4R,
                         pxliConvert_16u32s_AC4R, pxliConvert_16s32s_AC4R, pxliConvert_8u32f_AC4R,
                         pxliConvert_8s32f_AC4R, pxliConvert_16u32f_AC4R, pxliConvert_16s32f_AC4R,
                         pxliConvert_16u8u_AC4R, pxliConvert_16s8u_AC4R, pxliConvert_32s8u_AC4R,
                         pxliConvert_32s8s_AC4R);
    addColourRoundings(pxliConvert_32f8u_AC4R, pxliConvert_32f8s_AC4R, pxliConvert_32f16u_AC4R,
                       pxliConvert_32f16s_AC4R);
    addScales();
    addBits();
});

} // namespace
