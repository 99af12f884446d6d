// The engine of reductions: regions folded into a result per channel.
//
// The engine promises: rows come from first to last, a row in blocks of 96 bytes (reduce/region.h walks, here is one row).
// 96 bytes are whole pixels of every layout and whole registers of every width, so element i of a row always meets lane
// i % (96 / sizeof(element)) of the accumulators: lanes never mix channels, and sums of floats have the same bits on every
// target. Nothing outside a row is read, a last fourth element of AC4 neither.
//
// A fold is a class of the family:
//     using Element = T;
//     struct State;                           accumulators beside one register of elements
//     State start() const;                    those of no element
//     void add(State&, Vec<T>... v) const;    a register of each source
//     void addWhere(State&, Mask<T> keep, Vec<T>... v) const;    the same, but lanes outside `keep` do not count
//     static constexpr ptrdiff_t capacity;    additions until a state must be spilled, or `unlimited`
//     void spill(States<State>&);             limited ones: moves what the states hold into the fold, and restarts them
//     void endRow(States<State>&);            where rows have results: takes one (spilled before) and restarts the states
//     void finish(const States<State>&);      takes the states after the last row (spilled before)
// All are forced in line, since the states live in registers. A fold without endRow may see a region as one long row.
#pragma once

#include <cstdint>

#include "frame/vec/partial.h"

namespace pxl::PXL_TARGET::reduce {

inline constexpr int periodBytes = 96;
inline constexpr int periodVectors = periodBytes / vecBytes;
template <class T>
inline constexpr int periodLanes = periodBytes / static_cast<int>(sizeof(T));
static_assert(periodBytes % vecBytes == 0);

inline constexpr ptrdiff_t unlimited = PTRDIFF_MAX;

// Register j of a block has its own accumulators.
template <class State>
struct States {
    State of[periodVectors];

    template <class Fold>
    PXL_INLINE void restart(const Fold& fold) {
        unrolled<periodVectors>([&](auto j) __attribute__((always_inline)) { of[j] = fold.start(); });
    }
};

template <class Fold>
using StatesOf = States<typename Fold::State>;

// What is left of a fold's capacity.
template <class Fold>
struct Room {
    ptrdiff_t blocks = Fold::capacity;

    PXL_INLINE ptrdiff_t atMost(ptrdiff_t wanted) const {
        return Fold::capacity == unlimited || wanted < blocks ? wanted : blocks;
    }
    PXL_INLINE void use(ptrdiff_t used, Fold& fold, StatesOf<Fold>& s) {
        if constexpr (Fold::capacity != unlimited) {
            blocks -= used;
            if (blocks == 0) renew(fold, s);
        }
    }
    PXL_INLINE void renew(Fold& fold, StatesOf<Fold>& s) {
        if constexpr (Fold::capacity != unlimited) {
            fold.spill(s);
            blocks = Fold::capacity;
        }
    }
};

struct FirstLanes {
    alignas(vecBytes) uint8_t bytes[2 * vecBytes];
    constexpr FirstLanes() : bytes{} {
        for (int k = 0; k < vecBytes; ++k) bytes[k] = 0xFF;
    }
};
inline constexpr FirstLanes firstLanes;

// All ones in the first n lanes, 0 <= n <= lanes<T>.
template <class T>
PXL_INLINE Mask<T> FirstN(ptrdiff_t n) {
    const uint8_t* from = firstLanes.bytes + vecBytes - n * static_cast<ptrdiff_t>(sizeof(T));
    return LoadU(reinterpret_cast<const MaskLane<T>*>(from));
}

// The first n lanes, 0 < n < lanes<T>, zeros behind them. By words: through memory, a row of 8 pixels takes twice as long.
template <class T>
PXL_INLINE Vec<T> LoadRest(const T* p, ptrdiff_t n) {
    return LoadN<lanes<T>>(p, n);
}

template <class Fold, class... T>
PXL_INLINE void addBlock(const Fold& fold, StatesOf<Fold>& s, const T*... p) {
    unrolled<periodVectors>([&](auto j)
                                __attribute__((always_inline)) { fold.add(s.of[j], LoadU(p + j * lanes<T>)...); });
}

// 0 < n < a block of lanes.
template <class Fold, class... T>
PXL_INLINE void addPartOfBlock(const Fold& fold, StatesOf<Fold>& s, ptrdiff_t n, const T*... p) {
    constexpr ptrdiff_t step = lanes<typename Fold::Element>;
    const ptrdiff_t whole = static_cast<size_t>(n) / step, rest = static_cast<size_t>(n) % step;
    unrolled<periodVectors - 1>([&](auto j) __attribute__((always_inline)) {
        if (j < whole) fold.add(s.of[j], LoadU(p + j * step)...);
    });
    if (rest == 0) return;
    const auto addLast = [&](Vec<T>... last) __attribute__((always_inline)) {
        unrolled<periodVectors>([&](auto j) __attribute__((always_inline)) {
            if (j == whole) fold.addWhere(s.of[j], FirstN<typename Fold::Element>(rest), last...);
        });
    };
    addLast(LoadRest(p + whole * step, rest)...);
}

// A row of n elements from each source.
template <class Fold, class... T>
PXL_INLINE void addRow(Fold& fold, StatesOf<Fold>& s, Room<Fold>& room, ptrdiff_t n, const T*... p) {
    constexpr ptrdiff_t step = periodLanes<typename Fold::Element>;
    while (n >= step) {
        const ptrdiff_t blocks = room.atMost(n / step);
        for (ptrdiff_t i = 0; i < blocks; ++i) {
            addBlock(fold, s, p...);
            (..., (p += step));
        }
        n -= blocks * step;
        room.use(blocks, fold, s);
    }
    if (n == 0) return;
    addPartOfBlock(fold, s, n, p...);
    room.use(1, fold, s);
}

} // namespace pxl::PXL_TARGET::reduce
