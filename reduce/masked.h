// Reductions of the pixels whose element of an 8u mask is not zero.
#pragma once

#include "exchange/pixel_masks.h"
#include "reduce/region.h"

namespace pxl::PXL_TARGET::reduce {

// As many pixels as a block has bytes, so that their elements fill whole blocks.
inline constexpr ptrdiff_t maskPixels = periodBytes;

// The bytes of their elements, all ones where the pixel counts.
template <int PixelBytes>
struct ChosenBytes {
    alignas(vecBytes) uint8_t bytes[maskPixels * PixelBytes];

    PXL_INLINE void choose(const uint8_t* mask) {
        using Pixels = BlockMask<PixelBytes>;
        constexpr int vectors = Pixels::pixels * PixelBytes / vecBytes;
        for (ptrdiff_t x = 0; x < maskPixels; x += Pixels::pixels) {
            const Pixels unchosen(mask + x);
            unrolled<vectors>([&](auto j) __attribute__((always_inline)) {
                StoreU(~unchosen.template vector<j>(), bytes + x * PixelBytes + j * vecBytes);
            });
        }
    }
};

// Adds the first n elements of a block, or all of it, where their chosen bytes are set.
template <class Fold, class... T>
PXL_INLINE void addChosen(const Fold& fold, StatesOf<Fold>& s, ptrdiff_t n, const uint8_t* chosen, const T*... p) {
    using Element = typename Fold::Element;
    constexpr ptrdiff_t step = lanes<Element>;
    const ptrdiff_t whole = static_cast<size_t>(n) / step, rest = static_cast<size_t>(n) % step;
    const auto keep = [=](ptrdiff_t j) __attribute__((always_inline)) {
        return LoadU(reinterpret_cast<const MaskLane<Element>*>(chosen + j * vecBytes));
    };
    unrolled<periodVectors>([&](auto j) __attribute__((always_inline)) {
        if (j < whole) fold.addWhere(s.of[j], keep(j), LoadU(p + j * step)...);
    });
    if (whole >= periodVectors || rest == 0) return;
    const auto addLast = [&](Vec<T>... last) __attribute__((always_inline)) {
        const Mask<Element> first = keep(whole) & FirstN<Element>(rest);
        unrolled<periodVectors>([&](auto j) __attribute__((always_inline)) {
            if (j == whole) fold.addWhere(s.of[j], first, last...);
        });
    };
    addLast(LoadRest(p + whole * step, rest)...);
}

// A row of pixels of `Elements` elements; the last one ends `unread` elements early.
template <int Elements, class Fold, class... T>
PXL_INLINE void addMaskedRow(Fold& fold, StatesOf<Fold>& s, Room<Fold>& room, ptrdiff_t pixels, ptrdiff_t unread,
                             const uint8_t* mask, const T*... p) {
    using Element = typename Fold::Element;
    constexpr ptrdiff_t step = periodLanes<Element>;
    ChosenBytes<Elements * sizeof(Element)> chosen;
    for (; pixels > 0; pixels -= maskPixels, mask += maskPixels) {
        ptrdiff_t n = maskPixels * Elements;
        if (pixels > maskPixels) {
            chosen.choose(mask);
        } else {
            chosen.choose(Few<uint8_t, maskPixels + vecBytes>(mask, static_cast<size_t>(pixels)).data);
            n = pixels * Elements - unread;
        }
        for (const uint8_t* bytes = chosen.bytes; n > 0; n -= step, bytes += periodBytes) {
            addChosen(fold, s, n, bytes, p...);
            room.use(1, fold, s);
            (..., (p += step));
        }
    }
}

// As foldRegion, for pixels of `Elements` elements.
template <int Elements, class Fold, class... T>
[[gnu::noinline, gnu::flatten]] void foldMasked(Fold& fold, ImageSize roi, int channels, Operand<const uint8_t> mask,
                                                Operand<T>... sources) {
    const auto add = [&](auto& s, auto& room, ptrdiff_t pixels, auto... p) __attribute__((always_inline)) {
        addMaskedRow<Elements>(fold, s, room, pixels, Elements - channels, p...);
    };
    walkFold(fold, roi, add, mask, sources...);
}

} // namespace pxl::PXL_TARGET::reduce
