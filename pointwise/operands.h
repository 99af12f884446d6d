// The operands of a call as the engines see them: bytes, and the shape of a pixel. One walk serves all element types and
// layouts; only rows know the type of their lanes.
#pragma once

#include "frame/element.h"
#include "frame/image.h"
#include "frame/vec/mask.h"
#include "frame/vec/pattern.h"

namespace pxl::PXL_TARGET::pointwise {

// The shape of a pixel.
struct Layout {
    int elements; // per pixel
    int channels; // processed ones
    int parts;    // lanes per element
    ptrdiff_t elementBytes;
    const uint8_t* alpha; // AC4: the alphaBytes; else null
    // Where constants or alphaBytes stand for the second vector of a row, and for a vector that ends with a row of whole
    // pixels, which in AC4 rows is a third element. In bytes; 0 where they are those of the first vector.
    ptrdiff_t secondPhase, endPhase;
};

// The byte of a pixel where a vector begins that ends where a row does.
template <class T, int Elements, int Channels>
constexpr ptrdiff_t endPhaseOf() {
    constexpr int size = sizeof(T), inVector = vecBytes / size;
    return ((Channels - inVector) % Elements + Elements) % Elements * size;
}

template <class T, int Elements, int Channels>
inline constexpr Layout layoutOf{Elements,
                                 Channels,
                                 partsOf<T>,
                                 sizeof(T),
                                 Channels < Elements ? alphaBytes<sizeof(T)>.bytes : nullptr,
                                 vecBytes % (Elements * sizeof(T)) == 0 ? 0 : vecBytes,
                                 endPhaseOf<T, Elements, Channels>()};

// dst = op(a), op(a, b), or op(a, constants). Steps are kept apart from addresses, as what they were in the call: the walk
// would copy pairs of them as vectors, which wait for the stores of both.
struct Operands {
    const Layout& layout;
    ImageSize roi;
    const uint8_t *a, *b;
    uint8_t* dst;
    const uint8_t* constants; // the bytes of a ConstantRow, or null
    int aStep, bStep, dstStep;

protected:
    template <class T, int Elements, int Channels>
    Operands(Image<const T, Elements, Channels> srcA, Image<const T, Elements, Channels> srcB,
             Image<T, Elements, Channels> to, ImageSize size, const uint8_t* row)
        : layout(layoutOf<T, Elements, Channels>), roi(size), a(bytesOf(srcA).base), b(bytesOf(srcB).base),
          dst(bytesOf(to).base), constants(row), aStep(static_cast<int>(srcA.step)), bStep(static_cast<int>(srcB.step)),
          dstStep(static_cast<int>(to.step)) {}
};

struct OneSource : Operands {
    template <class T, int Elements, int Channels>
    OneSource(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> to, ImageSize size)
        : Operands(src, {nullptr, 0}, to, size, nullptr) {}
};

struct TwoSources : Operands {
    template <class T, int Elements, int Channels>
    TwoSources(Image<const T, Elements, Channels> srcA, Image<const T, Elements, Channels> srcB,
               Image<T, Elements, Channels> to, ImageSize size)
        : Operands(srcA, srcB, to, size, nullptr) {}
};

// A row of pixels that all hold the constants, whole vectors of them. Rows of channels alike read three vectors over and
// over, a number of bytes that every pixel of 1, 3 or 4 elements divides; AC4 rows read two. The fourth vector serves loads
// that begin in the third.
struct ConstantRow {
    static constexpr int vectors = 4;
    static constexpr int largestPixel = 32;
    alignas(vecBytes) uint8_t bytes[vectors * vecBytes + largestPixel];

    // A pixel of E bytes.
    template <int E>
    PXL_INLINE void fill(const void* pixel) {
        if constexpr (E <= 16) {
            const Pattern<E> pattern = patternOf<E>(pixel);
            unrolled<vectors>([&](auto j) __attribute__((always_inline)) {
                StoreU(pattern.v[j % Pattern<E>::count], bytes + j * vecBytes);
            });
        } else {
            for (int o = 0; o < vectors * vecBytes; o += E) std::memcpy(bytes + o, pixel, E);
        }
    }
};

// A source and one constant per processed channel. The constants are read once, here.
class WithConstants : public Operands {
public:
    template <class T, int Elements, int Channels>
    WithConstants(Image<const T, Elements, Channels> src, Values<T, Channels> values, Image<T, Elements, Channels> to,
                  ImageSize size)
        : Operands(src, {nullptr, 0}, to, size, row_.bytes) {
        static_assert((Channels < Elements ? 2 : 3) * vecBytes % (Elements * sizeof(T)) == 0);
        if constexpr (Channels < Elements) {
            T pixel[Elements] = {};
            std::memcpy(pixel, values.base, Channels * sizeof(T));
            row_.fill<sizeof pixel>(pixel);
        } else {
            row_.fill<Elements * sizeof(T)>(values.base);
        }
    }
    WithConstants(const WithConstants&) = delete;

private:
    ConstantRow row_;
};

} // namespace pxl::PXL_TARGET::pointwise
