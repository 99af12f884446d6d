// The engine of element-wise operations dst = op(a, b) between two images, or an image and one constant per channel.
//
// An operation is a callable object over vectors, Vec<Lane> op(Vec<Lane>, Vec<Lane>), with whatever it needs (shift
// counts, factors) set up once per call. It is compiled into one row function, which serves all layouts: constants are a
// short row of pixels that is read again and again, complex elements are pairs of lanes, and AC4 rows IfThenElse. The walk over
// the region is the same code for all operations.
#pragma once

#include "frame/vec/mask.h"
#include "frame/vec/memory.h"
#include "frame/vec/partial.h"
#include "frame/vec/pattern.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {

// ---- elements -------------------------------------------------------------------------------------------------------

template <class T>
struct ElementOf {
    using Lane = T;
    static constexpr int parts = 1;
};
template <>
struct ElementOf<Pxl16sc> {
    using Lane = int16_t;
    static constexpr int parts = 2;
};
template <>
struct ElementOf<Pxl32sc> {
    using Lane = int32_t;
    static constexpr int parts = 2;
};
template <>
struct ElementOf<Pxl32fc> {
    using Lane = float;
    static constexpr int parts = 2;
};
template <class T>
using LaneOf = typename ElementOf<T>::Lane;
template <class T>
inline constexpr int partsOf = ElementOf<T>::parts;

// What a family's template gets for the constants of a member: one by value, or an array of one per processed channel.
template <class T, int Channels>
using ValueArg = std::conditional_t<Channels == 1, T, const T*>;

// The address of the first of the constants.
template <int Channels, class T>
PXL_INLINE const T* valuesOf(const T& one) {
    return &one;
}
template <int Channels, class T>
PXL_INLINE const T* valuesOf(const T* many) {
    return many;
}

// ---- regions --------------------------------------------------------------------------------------------------------

// Where b stands still: a row of pixels that all hold the constants, whole vectors of them. Rows of channels alike read
// three vectors over and over, a number of bytes that every pixel of 1, 3 or 4 elements divides; AC4 rows read two. The
// fourth vector serves loads that begin in the third.
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

// The shape of a pixel.
struct Layout {
    int elements; // per pixel
    int channels; // processed ones
    int parts;    // lanes per element
    ptrdiff_t elementBytes;
    const uint8_t* alpha; // AC4: the alphaBytes; else null
    ptrdiff_t endPhase;   // AC4: the byte of a pixel where a vector begins that ends with the third element of another
};

template <class T, int Elements, int Channels>
inline constexpr Layout layoutOf{Elements,
                                 Channels,
                                 partsOf<T>,
                                 sizeof(T),
                                 Channels < Elements ? alphaBytes<sizeof(T)>.bytes : nullptr,
                                 static_cast<ptrdiff_t>((3 * sizeof(T) - vecBytes) % (4 * sizeof(T)))};

// A region and its operands: dst = op(a, b). Steps are those of the caller.
struct Region {
    const Layout& layout;
    ImageSize roi;
    const void* a;
    const void* b; // an image, or one constant per channel
    void* dst;
    int aStep, bStep, dstStep;
    const void* constants; // the bytes of a ConstantRow, or null
};

template <int Elements, int Channels, class T>
inline Region regionOf(const T* a, int aStep, const T* b, int bStep, T* dst, int dstStep, ImageSize roi) {
    return {layoutOf<T, Elements, Channels>, roi, a, b, dst, aStep, bStep, dstStep, nullptr};
}

// A region of constants; `row` must live as long as the region.
template <int Elements, int Channels, class T>
inline Region constantRegionOf(const T* src, int srcStep, const T* values, T* dst, int dstStep, ImageSize roi,
                               ConstantRow& row) {
    if constexpr (Channels < Elements) {
        T pixel[Elements] = {};
        std::memcpy(pixel, values, Channels * sizeof(T));
        row.fill<sizeof pixel>(pixel);
    } else {
        row.fill<Elements * sizeof(T)>(values);
    }
    Region region = regionOf<Elements, Channels>(src, srcStep, values, 0, dst, dstStep, roi);
    region.constants = row.bytes;
    return region;
}

// ---- rows -----------------------------------------------------------------------------------------------------------

// What a row function gets beside its row.
struct RowPlan {
    const void* op;
    bool still;           // b is a ConstantRow
    const uint8_t* alpha; // AC4, else null
    ptrdiff_t endPhase;   // AC4, in bytes
    size_t streamed = 0;  // bytes of an element where stores are to pass by the caches, else 0

    template <class L>
    PXL_INLINE ptrdiff_t endLane() const {
        return endPhase / static_cast<ptrdiff_t>(sizeof(L));
    }
    // Where b stands for the vector that begins at lane `last` and ends the row.
    template <class L>
    PXL_INLINE ptrdiff_t endOf(ptrdiff_t last) const {
        if (!still) return last;
        return alpha ? endLane<L>() : last % (3 * lanes<L>);
    }
    // Whether whole elements lead from d to the next address at which vectors can be streamed.
    PXL_INLINE bool streams(const void* d) const { return streamed && reinterpret_cast<uintptr_t>(d) % streamed == 0; }
};

// v, but what d holds in the fourth elements of AC4 pixels.
template <class L>
PXL_INLINE Vec<L> keepAlpha(const uint8_t* alpha, Vec<L> d, Vec<L> v) {
    return IfThenElse(LoadU(reinterpret_cast<const MaskLane<L>*>(alpha)), d, v);
}

// The last vector of a row, or the ends of a row that is shorter than a vector.
template <class L, class Op>
PXL_INLINE Vec<L> endOfRow(ptrdiff_t n, const L* a, const L* b, const L* d, const RowPlan& plan, const Op& op) {
    const ptrdiff_t last = n - lanes<L>;
    const bool whole = last >= 0;
    const ptrdiff_t o = plan.endOf<L>(last);
    const Vec<L> result = op(whole ? LoadU(a + last) : LoadEnds(a, n), whole ? LoadU(b + o) : LoadEnds(b, n));
    if (!plan.alpha) return result;
    const auto keep = reinterpret_cast<const MaskLane<L>*>(plan.alpha);
    return IfThenElse(whole ? LoadU(keep + plan.endLane<L>()) : LoadEnds(keep, n),
                      whole ? LoadU(d + last) : LoadEnds(d, n), result);
}

// The beginning of a row whose stores pass by the caches, as many whole vectors as come before `last`; returns where it
// stops and moves b there. The first vector, of which the next may overlap a part, is stored as it stands.
template <class L, class Op>
PXL_INLINE ptrdiff_t streamRow(ptrdiff_t last, const L* a, const L*& b, bool still, L* d, const Op& op) {
    constexpr ptrdiff_t step = lanes<L>, run = 3 * step;
    StoreU(op(LoadU(a), LoadU(b)), d);
    const auto head = static_cast<ptrdiff_t>(-reinterpret_cast<uintptr_t>(d) % vecBytes / sizeof(L));
    ptrdiff_t x = head, o = head;
    for (; x < last; x += step) {
        Streamed::store(op(LoadU(a + x), LoadU(b + o)), d + x);
        o += step;
        if (still && o >= run) o -= run;
    }
    b += o;
    return x;
}

// n lanes d[i] = op(a[i], b[i]); of AC4 pixels the lanes up to the last third element, and fourth elements are stored
// again as they were. The vector at the end overlaps the one before it; it is computed before anything is stored, so d
// may be a or b.
template <class L, class Op>
void elementRow(ptrdiff_t n, const void* from, const void* with, void* to, const RowPlan& plan) {
    constexpr ptrdiff_t step = lanes<L>, run = 3 * step;
    const L* a = static_cast<const L*>(from);
    const L* b = static_cast<const L*>(with);
    L* d = static_cast<L*>(to);
    const Op op = *static_cast<const Op*>(plan.op);

    const Vec<L> end = endOfRow<L>(n, a, b, d, plan, op);
    if (n < step) return StoreEnds(end, d, n);
    const ptrdiff_t last = n - step;
    ptrdiff_t x = 0;
    if (plan.alpha) {
        // Pixels may be two vectors long, so masks and constants repeat after two.
        const ptrdiff_t within = plan.still ? step : -1;
        for (; x < last; x += step) {
            const Vec<L> result = op(LoadU(a + x), LoadU(b + (x & within)));
            StoreU(keepAlpha(plan.alpha + (x & step) * sizeof(L), LoadU(d + x), result), d + x);
        }
    }
    if (plan.streams(d)) x = streamRow(last, a, b, plan.still, d, op);
    const ptrdiff_t advance = plan.still ? 0 : run;
    for (; x + run <= last; x += run, b += advance) {
        // Computed where they stand, they keep loads and stores in ascending order, which the caches reward.
        const Vec<L> first = op(LoadU(a + x), LoadU(b));
        ComputeHere(first);
        const Vec<L> second = op(LoadU(a + x + step), LoadU(b + step));
        ComputeHere(second);
        const Vec<L> third = op(LoadU(a + x + 2 * step), LoadU(b + 2 * step));
        StoreU(first, d + x);
        ComputeHere(third);
        StoreU(second, d + x + step);
        StoreU(third, d + x + 2 * step);
    }
    for (; x < last; x += step, b += step) StoreU(op(LoadU(a + x), LoadU(b)), d + x);
    StoreU(end, d + last);
}

using RowFunction = void (*)(ptrdiff_t n, const void* a, const void* b, void* d, const RowPlan& plan);

// ---- the walk -------------------------------------------------------------------------------------------------------

// The bytes of an element where the region is too large to stay in the caches, with all its images. In place, what is
// stored has been read before, and AC4 rows are read too.
inline size_t streamedElement(const Region& r, int images) {
    const Layout& l = r.layout;
    const ptrdiff_t bytes = l.elements * l.elementBytes * images * r.roi.width * r.roi.height;
    return bytes < streamedBytes || l.alpha || r.dst == r.a || r.dst == r.b ? 0 : static_cast<size_t>(l.elementBytes);
}

// Walks rows of images. Channels alike are walked as elements, AC4 as pixels, which are done element by element where
// the walker asks for single ones.
[[gnu::noinline, gnu::flatten]] inline void walkImages(const Region& r, RowFunction row, const void* op) {
    const Layout& l = r.layout;
    const RowPlan plan{op, false, l.alpha, l.endPhase}, plain{op, false, nullptr, 0, streamedElement(r, 3)};
    const ptrdiff_t e = l.elementBytes, parts = l.parts;
    const auto elements = [=, &plain](ptrdiff_t n, const char* a, const char* b, char* d) {
        row(n * parts, a, b, d, plain);
    };
    const auto pixels = [=, &plan](ptrdiff_t n, const char* a, const char* b, char* d) {
        if (n > 1) return row((4 * n - 1) * parts, a, b, d, plan);
        for (ptrdiff_t o = 0; o < 3 * e; o += e) elements(1, a + o, b + o, d + o);
    };
    const ptrdiff_t unit = l.alpha ? 4 : 1,
                    width = l.alpha ? r.roi.width : r.roi.width * static_cast<ptrdiff_t>(l.elements);
    const Operand<const char> a{static_cast<const char*>(r.a), r.aStep, unit * e};
    const Operand<const char> b{static_cast<const char*>(r.b), r.bStep, unit * e};
    const Operand<char> d{static_cast<char*>(r.dst), r.dstStep, unit * e};
    if (l.alpha)
        walkRows(width, r.roi.height, pixels, a, b, d);
    else
        walkRows(width, r.roi.height, elements, a, b, d);
    finishStreamed(plain.streamed);
}

// Walks rows of an image and constants by pixels, single ones element by element too.
[[gnu::noinline, gnu::flatten]] inline void walkConstants(const Region& r, RowFunction row, const void* op) {
    const Layout& l = r.layout;
    const ptrdiff_t e = l.elementBytes, pixel = l.elements * e;
    const ptrdiff_t unit = l.elements * l.parts, skipped = (l.elements - l.channels) * l.parts; // lanes
    const RowPlan plan{op, true, l.alpha, l.endPhase, streamedElement(r, 2)}, alike{op, false, nullptr, 0};
    const auto kernel = [=, &r, &l, &plan, &alike](ptrdiff_t n, const char* s, char* d) {
        if (n > 1) return row(n * unit - skipped, s, r.constants, d, plan);
        const char* values = static_cast<const char*>(r.b);
        for (ptrdiff_t o = 0; o < l.channels * e; o += e) row(l.parts, s + o, values + o, d + o, alike);
    };
    walkRows(r.roi.width, r.roi.height, kernel, Operand<const char>{static_cast<const char*>(r.a), r.aStep, pixel},
             Operand<char>{static_cast<char*>(r.dst), r.dstStep, pixel});
    finishStreamed(plan.streamed);
}

// Fourth elements of n bytes of AC4 pixels stay, the others become 0.
inline void zeroColours(ptrdiff_t n, uint8_t* d, const uint8_t* alpha, ptrdiff_t endPhase) {
    if (n < vecBytes) return StoreEnds(LoadEnds(d, n) & LoadEnds(alpha, n), d, n);
    const ptrdiff_t last = n - vecBytes;
    const Vec<uint8_t> end = LoadU(d + last) & LoadU(alpha + endPhase);
    for (ptrdiff_t x = 0; x < last; x += vecBytes) StoreU(LoadU(d + x) & LoadU(alpha + x % (2 * vecBytes)), d + x);
    StoreU(end, d + last);
}

// dst = 0
[[gnu::noinline]] inline void setZero(const Region& r) {
    const Layout& l = r.layout;
    const ptrdiff_t pixel = l.elements * l.elementBytes;
    const auto row = [&](ptrdiff_t n, uint8_t* d) {
        if (l.alpha)
            zeroColours(n * pixel - l.elementBytes, d, l.alpha, l.endPhase);
        else
            std::memset(d, 0, static_cast<size_t>(n * pixel));
    };
    walkRows(r.roi.width, r.roi.height, row, Operand<uint8_t>{static_cast<uint8_t*>(r.dst), r.dstStep, pixel});
}

// dst = op(a, b) over the region, in lanes of type L.
template <class L, class Op>
inline void run(const Region& region, const Op& op) {
    if (region.constants)
        walkConstants(region, elementRow<L, Op>, &op);
    else
        walkImages(region, elementRow<L, Op>, &op);
}

} // namespace pxl::PXL_TARGET
