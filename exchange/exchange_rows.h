// Two disjoint runs of pixels that change places, each in the order it has or, reversed, with its pixels in reverse order:
// then the beginning of one run meets the end of the other.
//
// Words of both runs are loaded before either is stored. The words at the end are loaded first of all and stored last, so that
// they may overlap those before them.
#pragma once

#include "exchange/reverse.h"
#include "frame/image.h"
#include "frame/vec/mask.h"
#include "frame/vec/memory.h"

namespace pxl::PXL_TARGET::exchange {

// 96 bytes of pixels of 3, 6 or 12.
struct Run96 {
    Vec<uint8_t> v[96 / vecBytes];
};

// A word of pixels in the order in which they are stored.
template <int Bytes, bool Reversed, class Word>
PXL_INLINE Word loadTurned(const uint8_t* p) {
    if constexpr (!Reversed && sizeof(Word) == vecBytes) {
        return LoadU(p);
    } else if constexpr (!Reversed) {
        return loadWord<Word>(p);
    } else if constexpr (sizeof(Word) == sizeof(Run96)) {
        Run96 run;
        unrolled<96 / vecBytes>([&](auto j) __attribute__((always_inline)) {
            run.v[j] = reversedVector<Bytes, j * vecBytes>(p);
        });
        return run;
    } else if constexpr (sizeof(Word) == vecBytes) {
        return LoadReversed<Bytes>(p);
    } else if constexpr (sizeof(Word) == blockBytes) {
        return ReverseBlock<Bytes>(loadWord<Block>(p));
    } else {
        return loadReversed8<Bytes>(p);
    }
}

template <class Word>
PXL_INLINE void storeTurned(const Word& word, uint8_t* p) {
    if constexpr (sizeof(Word) == sizeof(Run96))
        unrolled<96 / vecBytes>([&](auto j) __attribute__((always_inline)) { StoreU(word.v[j], p + j * vecBytes); });
    else if constexpr (sizeof(Word) == vecBytes)
        StoreU(word, p);
    else
        storeWord(word, p);
}

// A word of either run, on its way to the other. Of pixels of which fewer bytes are moved, the rest keeps its value.
template <int Bytes, int Moved, bool Reversed, class Word>
struct WordPair {
    Word toA, toB;

    PXL_INLINE WordPair(const uint8_t* a, const uint8_t* b)
        : toA(loadTurned<Bytes, Reversed, Word>(b)), toB(loadTurned<Bytes, Reversed, Word>(a)) {
        if constexpr (Moved < Bytes) {
            toA = keepingAlpha<Bytes>(toA, a);
            toB = keepingAlpha<Bytes>(toB, b);
        }
    }
    PXL_INLINE void store(uint8_t* a, uint8_t* b) const {
        storeTurned(toA, a);
        storeTurned(toB, b);
    }
};

// Runs of at least a word.
template <class Word, int Bytes, int Moved, bool Reversed>
PXL_INLINE void exchangeByWords(uint8_t* a, uint8_t* b, ptrdiff_t bytes) {
    using Pair = WordPair<Bytes, Moved, Reversed, Word>;
    constexpr ptrdiff_t word = sizeof(Word);
    const auto other = [=](ptrdiff_t x) { return Reversed ? b + bytes - word - x : b + x; };
    const Pair last(a + bytes - word, other(bytes - word));
#pragma GCC unroll 4
    for (ptrdiff_t x = 0; x + word < bytes; x += word) Pair(a + x, other(x)).store(a + x, other(x));
    last.store(a + bytes - word, other(bytes - word));
}

template <int Bytes, int Moved, bool Reversed>
PXL_INLINE void exchangeByPixels(uint8_t* a, uint8_t* b, ptrdiff_t bytes) {
    for (ptrdiff_t x = 0; x < bytes; x += Bytes) exchangePixels<Moved>(a + x, Reversed ? b + bytes - Bytes - x : b + x);
}

// Two images whose rows change places, of so many bytes each.
struct RowPairs {
    Image<uint8_t> a, b;
    ptrdiff_t bytes, rows;

    template <class Row>
    PXL_INLINE void each(Row&& row) {
        for (; rows > 0; --rows, a.base += a.step, b.base += b.step) row(a.base, b.base);
    }
};

// Pixels at the ends of runs that may have nothing behind them to load: they change places by themselves.
template <int Bytes, int Moved, bool Reversed>
PXL_INLINE void exchangeEnds(uint8_t* a, uint8_t* b, ptrdiff_t bytes) {
    const ptrdiff_t last = bytes - Bytes;
    exchangePixels<Moved>(a + last, Reversed ? b : b + last);
    if (Reversed && last > 0) exchangePixels<Moved>(a, b + last);
}

// The choice of the words stands outside the loop over the rows, since short rows take no longer than it does.
template <int Bytes, int Moved, bool Reversed>
PXL_INLINE void exchangeRuns(RowPairs pairs) {
    constexpr bool alpha = Moved < Bytes;
    constexpr ptrdiff_t first = alpha && Reversed ? Bytes : 0;
    const ptrdiff_t all = pairs.bytes, bytes = all - first - (alpha ? Bytes : 0);
    const auto each = [&](auto exchange) __attribute__((always_inline)) {
        pairs.each([=](uint8_t * a, uint8_t * b) __attribute__((always_inline)) {
            if constexpr (alpha) exchangeEnds<Bytes, Moved, Reversed>(a, b, all);
            exchange(a + first, b + first);
        });
    };
    const auto byWords = [&]<class Word>(Word) __attribute__((always_inline)) {
        each([=](uint8_t * a, uint8_t * b)
                 __attribute__((always_inline)) { exchangeByWords<Word, Bytes, Moved, Reversed>(a, b, bytes); });
    };
    if (bytes >= vecBytes) return byWords(Vec<uint8_t>());
    if constexpr (vecBytes > 16)
        if (bytes >= 16) return byWords(Block());
    if constexpr (Bytes < 8 && !alpha)
        if (bytes >= 8) return byWords(uint64_t());
    each([=](uint8_t* a, uint8_t* b) { exchangeByPixels<Bytes, Moved, Reversed>(a, b, bytes); });
}

// Pixels of 3, 6 and 12 bytes without shuffles of bytes: one row is held while the other moves.
template <int Bytes>
void exchangeHeld(uint8_t* a, uint8_t* b, ptrdiff_t bytes) {
    constexpr ptrdiff_t chunk = 480; // whole pixels of every size
    uint8_t held[chunk];
    for (ptrdiff_t n; bytes > 0; bytes -= n, a += n) {
        n = bytes < chunk ? bytes : chunk;
        uint8_t* const other = b + bytes - n;
        std::memcpy(held, a, static_cast<size_t>(n));
        reverseRowOfThrees<Bytes>(other, a, n);
        reverseRowOfThrees<Bytes>(held, other, n);
    }
}
template <int Bytes>
PXL_INLINE void exchangeReversedThrees(RowPairs pairs) {
    const ptrdiff_t bytes = pairs.bytes;
    if (bytes < 96)
        return pairs.each([=](uint8_t* a, uint8_t* b) { exchangeByPixels<Bytes, Bytes, true>(a, b, bytes); });
    pairs.each([=](uint8_t* a, uint8_t* b) {
        if constexpr (hasByteShuffle)
            exchangeByWords<Run96, Bytes, Bytes, true>(a, b, bytes);
        else
            exchangeHeld<Bytes>(a, b, bytes);
    });
}

template <int Bytes, int Moved>
void exchangeRows(RowPairs pairs, bool reversed) {
    if constexpr (Moved < Bytes)
        reversed ? exchangeRuns<Bytes, Moved, true>(pairs) : exchangeRuns<Bytes, Moved, false>(pairs);
    else if (!reversed)
        exchangeRuns<1, 1, false>(pairs);
    else if constexpr (Bytes % 3 == 0)
        exchangeReversedThrees<Bytes>(pairs);
    else
        exchangeRuns<Bytes, Moved, true>(pairs);
}

} // namespace pxl::PXL_TARGET::exchange
