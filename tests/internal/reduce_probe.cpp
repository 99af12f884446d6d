#include "reduce_probe.h"

#include "reduce/accumulators.h"
#include "reduce/region.h"
#include "reduce/tiles.h"

namespace pxl::PXL_TARGET {

namespace {

using namespace reduce;

// ---- folds ------------------------------------------------------------------------------------------------------------------

template <class T, int Elements>
struct Sums : ExactSums<T, Elements> {
    using Exact = ExactSums<T, Elements>;
    using Exact::add, Exact::addWhere;
    using typename Exact::State;
    PXL_INLINE void add(State& s, Vec<T> a, Vec<T> b) const { add(s, SaturatedSub(a, b) | SaturatedSub(b, a)); }
    PXL_INLINE void addWhere(State& s, Mask<T> keep, Vec<T> a, Vec<T> b) const { add(s, a & keep, b & keep); }
};

template <class T, int Elements>
struct SumsOfRows : Sums<T, Elements> {
    using typename ExactSums<T, Elements>::State;
    double rows[Elements] = {};
    PXL_INLINE void endRow(States<State>&) {
        for (int c = 0; c < Elements; ++c) {
            rows[c] = 0.75 * rows[c] + static_cast<double>(this->sum[c]);
            this->sum[c] = 0;
        }
    }
};

template <int Elements>
struct FloatSums {
    using Element = float;
    struct State {
        Vec<double> lower, upper;
    };
    static constexpr ptrdiff_t capacity = unlimited;

    double lane[periodLanes<float>];

    PXL_INLINE State start() const { return {Zero<double>(), Zero<double>()}; }
    PXL_INLINE void add(State& s, Vec<float> v) const {
        s.lower = s.lower + PromoteLowerToDouble(v);
        s.upper = s.upper + PromoteUpperToDouble(v);
    }
    PXL_INLINE void addWhere(State& s, Mask<float> keep, Vec<float> v) const { add(s, IfThenElseZero(keep, v)); }
    PXL_INLINE void add(State& s, Vec<float> a, Vec<float> b) const {
        s.lower = s.lower + (PromoteLowerToDouble(a) - PromoteLowerToDouble(b));
        s.upper = s.upper + (PromoteUpperToDouble(a) - PromoteUpperToDouble(b));
    }
    PXL_INLINE void addWhere(State& s, Mask<float> keep, Vec<float> a, Vec<float> b) const {
        add(s, IfThenElseZero(keep, a), IfThenElseZero(keep, b));
    }
    PXL_INLINE void finish(const States<State>& s) {
        unrolled<periodVectors>([&](auto j) __attribute__((always_inline)) {
            StoreU(s.of[j].lower, lane + j * lanes<float>);
            StoreU(s.of[j].upper, lane + j * lanes<float> + lanes<double>);
        });
        joinLanes<Elements>(lane, [](double a, double b) { return a + b; });
    }
};

template <class T, int Elements>
struct Largest {
    using Element = T;
    struct State {
        Vec<T> largest;
    };
    static constexpr ptrdiff_t capacity = unlimited;
    static constexpr T smallest = std::is_same_v<T, float> ? static_cast<T>(-__builtin_inff()) : T{0};

    T lane[periodLanes<T>];

    PXL_INLINE State start() const { return {Set<T>(smallest)}; }
    // A NaN never replaces.
    PXL_INLINE void add(State& s, Vec<T> v) const { s.largest = Max(v, s.largest); }
    PXL_INLINE void addWhere(State& s, Mask<T> keep, Vec<T> v) const { add(s, IfThenElse(keep, v, Set<T>(smallest))); }
    PXL_INLINE void finish(const States<State>& s) {
        unrolled<periodVectors>([&](auto j)
                                    __attribute__((always_inline)) { StoreU(s.of[j].largest, lane + j * lanes<T>); });
        joinLanes<Elements>(lane, [](T a, T b) { return a > b ? a : b; });
    }
};

// ---- calls ------------------------------------------------------------------------------------------------------------------

template <class T>
Image<const T, anyElements> operandOf(const void* base, int step, int elements) {
    return {static_cast<const T*>(base), step, elements * static_cast<ptrdiff_t>(sizeof(T))};
}

template <int Elements, class Fold>
void run(const ReduceOperands& o, Fold& fold) {
    using T = typename Fold::Element;
    const auto a = operandOf<T>(o.src, o.srcStep, Elements), b = operandOf<T>(o.other, o.otherStep, Elements);
    if (o.other) return foldRegion(fold, o.roi, o.channels, a, b);
    foldRegion(fold, o.roi, o.channels, a);
}

// Calls body(constant) with the number of elements per pixel.
template <class Body>
void withElements(const ReduceOperands& o, Body&& body) {
    if (o.elements == 1) body(std::integral_constant<int, 1>{});
    if (o.elements == 3) body(std::integral_constant<int, 3>{});
    if (o.elements == 4) body(std::integral_constant<int, 4>{});
}

template <class T>
void exactSums(const ReduceOperands& o, uint64_t* sum) {
    withElements(o, [&](auto elements) {
        Sums<T, elements> fold;
        run<elements>(o, fold);
        for (int c = 0; c < o.channels; ++c) sum[c] = fold.sum[c];
    });
}

void sumsOfRows(const ReduceOperands& o, double* sum) {
    withElements(o, [&](auto elements) {
        SumsOfRows<uint16_t, elements> fold;
        foldRegion(fold, o.roi, o.channels, operandOf<uint16_t>(o.src, o.srcStep, elements));
        for (int c = 0; c < o.channels; ++c) sum[c] = fold.rows[c];
    });
}

void floatSums(const ReduceOperands& o, double* sum) {
    withElements(o, [&](auto elements) {
        FloatSums<elements> fold;
        run<elements>(o, fold);
        for (int c = 0; c < o.channels; ++c) sum[c] = fold.lane[c];
    });
}

template <class T>
void largest(const ReduceOperands& o, T* value, ImagePoint* at) {
    withElements(o, [&](auto elements) {
        const Image<const T, anyElements> image = operandOf<T>(o.src, o.srcStep, elements);
        Tile winner[elements];
        for (int c = 0; c < o.channels; ++c) {
            value[c] = load1(image.base + c);
            winner[c] = {{0, 0}, {1, 1}};
        }
        forEachTile(o.roi, image.pixelBytes, [&](const Tile& tile) {
            Largest<T, elements> fold;
            foldRegion(fold, tile.size, o.channels, tileOf(image, tile));
            for (int c = 0; c < o.channels; ++c)
                if (fold.lane[c] > value[c]) {
                    value[c] = fold.lane[c];
                    winner[c] = tile;
                }
        });
        for (int c = 0; c < o.channels; ++c) {
            Image<const T, anyElements> channel = tileOf(image, winner[c]);
            channel.base += c;
            at[c] = winner[c].at;
            if (value[c] != value[c]) continue; // a NaN first pixel stays
            const ImagePoint found = findFirst<elements>(channel, winner[c].size, value[c]);
            value[c] = load1(channel.at(found.x, found.y)); // of two zeros the one that stands there
            at[c].x += found.x;
            at[c].y += found.y;
        }
    });
}

#define PXL_NAME_OF(target) #target
#define PXL_TARGET_NAME(target) PXL_NAME_OF(target)

ReduceProbe probe = {PXL_TARGET_NAME(PXL_TARGET),
                     nullptr,
                     exactSums<uint8_t>,
                     exactSums<uint16_t>,
                     sumsOfRows,
                     floatSums,
                     largest<uint8_t>,
                     largest<float>};

__attribute__((constructor)) void link() {
    probe.next = reduceProbes;
    reduceProbes = &probe;
}

} // namespace

} // namespace pxl::PXL_TARGET
