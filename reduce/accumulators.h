// What folds count and add in: exact sums of integers, and the lanes of a block joined into channels.
#pragma once

#include "frame/vec/vec.h"
#include "reduce/fold.h"

namespace pxl::PXL_TARGET::reduce {

// ---- lanes of a block into channels -----------------------------------------------------------------------------------------

// Joins the lanes of a block, lane k being of channel k % Elements, in an order that is the same everywhere: lane k with
// lane k + Count / 2 while halves are whole pixels, then thirds, until one pixel is left.
template <int Elements, class T, class Join, int Count>
PXL_INLINE void joinLanes(T (&lane)[Count], Join&& join) {
    constexpr int parts = Count / 2 % Elements == 0 && Count % 2 == 0 ? 2 : 3;
    if constexpr (Count > Elements) {
        constexpr int rest = Count / parts;
        static_assert(rest % Elements == 0);
        T joined[rest];
        for (int k = 0; k < rest; ++k) {
            joined[k] = join(lane[k], lane[k + rest]);
            if constexpr (parts == 3) joined[k] = join(joined[k], lane[k + 2 * rest]);
        }
        joinLanes<Elements>(joined, join);
        for (int c = 0; c < Elements; ++c) lane[c] = joined[c];
    }
}

// ---- exact sums -------------------------------------------------------------------------------------------------------------

// Calls take(First, v) for the lanes of v in vectors of 64-bit lanes: lane i of one is lane First + i * (64 bits / T).
template <int First = 0, int Stride = 1, class T, class Take>
PXL_INLINE void widenTo64(Vec<T> v, Take&& take) {
    if constexpr (sizeof(T) == 8) {
        take(std::integral_constant<int, First>{}, v);
    } else {
        using Wide = typename UnsignedOf<2 * sizeof(T)>::type;
        constexpr int bits = 8 * sizeof(T);
        const Vec<Wide> pairs = BitCast<Wide>(v);
        widenTo64<First, 2 * Stride>(pairs & Set<Wide>(static_cast<T>(~T{})), take);
        widenTo64<First + Stride, 2 * Stride>(ShiftRight<bits>(pairs), take);
    }
}

// A fold: the sum of unsigned elements per channel, exact. Pairs of elements are added as lanes of twice their width, modulo
// that width, and their upper elements once more; so both sums can be told apart as long as neither passes that width.
template <class T, int Elements>
class ExactSums {
public:
    static_assert(std::is_unsigned_v<T> && sizeof(T) <= 2);
    using Element = T;
    using Pair = typename UnsignedOf<2 * sizeof(T)>::type;
    struct State {
        Vec<Pair> all, upper;
    };
    static constexpr int bits = 8 * sizeof(T);
    static constexpr ptrdiff_t capacity = static_cast<Pair>(~Pair{}) / static_cast<T>(~T{});

    uint64_t sum[Elements] = {};

    PXL_INLINE State start() const { return {Zero<Pair>(), Zero<Pair>()}; }
    PXL_INLINE void add(State& s, Vec<T> v) const {
        const Vec<Pair> pairs = BitCast<Pair>(Held(v));
        s.all = s.all + pairs;
        s.upper = s.upper + ShiftRight<bits>(pairs);
    }
    PXL_INLINE void addWhere(State& s, Mask<T> keep, Vec<T> v) const { add(s, v & keep); }

    // Vectors of 64-bit lanes whose first lanes are of the same channel are added up, and then the lanes.
    PXL_INLINE void spill(States<State>& s) {
        Vec<uint64_t> total[Elements];
        unrolled<Elements>([&](auto c) __attribute__((always_inline)) { total[c] = Zero<uint64_t>(); });
        unrolled<periodVectors>([&](auto j) __attribute__((always_inline)) {
            const auto take = [&](auto first, Vec<uint64_t> v) __attribute__((always_inline)) {
                constexpr int channel = (j * lanes<T> + first) % Elements;
                total[channel] = total[channel] + v;
            };
            widenTo64<0, 2>(s.of[j].all - ShiftLeft<bits>(s.of[j].upper), take);
            widenTo64<1, 2>(s.of[j].upper, take);
        });
        s.restart(*this);
        unrolled<Elements>([&](auto c) __attribute__((always_inline)) {
            uint64_t lane[lanes<uint64_t>];
            StoreU(total[c], lane);
            unrolled<lanes<uint64_t>>([&](auto i) __attribute__((always_inline)) {
                sum[(c + i * (8 / sizeof(T))) % Elements] += lane[i];
            });
        });
    }
    PXL_INLINE void finish(const States<State>&) {}
};

} // namespace pxl::PXL_TARGET::reduce
