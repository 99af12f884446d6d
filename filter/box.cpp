// The box filter: dst(x, y) = mean of the samples (x - anchor.x + i, y - anchor.y + j) of the mask.
//
// Sums of integers are exact, so they may be formed in any order: sums of columns and of windows have 31 bits, or where the
// mask needs more, those of windows 53 and at last both. How a sum becomes a mean differs on purpose: 8u and 16s
// truncate, 16u rounds halves up. A 1x1 mask copies. Steps count whole elements.
#include "filter/box_squares.h"
#include "filter/box_tall.h"
#include "window/checks.h"
#include "window/workers.h"

namespace pxl::PXL_TARGET::filter {
namespace {

// ---- the worker of a call ------------------------------------------------------------------------------------------

template <int Elements>
BoxFactor factorFor(ImageSize mask, int32_t area) {
    if (Elements == 3 && mask.width == 3 && mask.height == 3) return {29128, 18};
    return BoxFactor(area);
}

// 16u, and 16s of four channels, have other means than 16s of one or three.
template <class T, int Channels>
inline constexpr bool addsInDouble = std::is_same_v<T, uint16_t> || (std::is_same_v<T, int16_t> && Channels == 4);

// Calls run(worker) with the worker for sums of more than 31 bits.
template <int Elements, bool InDouble, class T, class Run>
[[gnu::noinline]] PxlStatus withWideWorker(const window::Windows<T>& windows, float reciprocal, const Run& run) {
    using Mean = std::conditional_t<InDouble, BoxMeanDouble<T>, BoxMeanFloat<T>>;
    if (windows.height <= boxPositiveArea<T>)
        return run(BoxSquares<T, Elements, Mean, WideSums>(windows, Mean(reciprocal)));
    return run(BoxTall<T, Elements, Mean>(windows, Mean(reciprocal)));
}

// The same for any type and mask. The area in the means is a product of 32 bits, whatever the mask.
template <int Elements, bool InDouble, class T, class Run>
PxlStatus withWorker(const window::Windows<T>& windows, const Run& run) {
    const ImageSize mask{windows.width, windows.height};
    const int64_t pixels = int64_t{mask.width} * mask.height;
    const int32_t area = static_cast<int32_t>(static_cast<uint32_t>(pixels));
    const float reciprocal = 1.0f / static_cast<float>(area);
    const auto squares = [&](const auto& mean) {
        return run(BoxSquares<T, Elements, std::decay_t<decltype(mean)>>(windows, mean));
    };
    if constexpr (std::is_same_v<T, float>) {
        return squares(BoxMean32f(reciprocal));
    } else {
        if constexpr (std::is_same_v<T, uint8_t>)
            if (area <= boxIntegerArea) {
                const BoxFactor factor = factorFor<Elements>(mask, area);
                if (pixels <= boxNarrowArea) return squares(BoxMeanNarrow(factor));
                return squares(BoxMeanInteger(factor));
            }
        if (pixels > boxPositiveArea<T>) return withWideWorker<Elements, InDouble>(windows, reciprocal, run);
        using Mean = std::conditional_t<InDouble, BoxMeanExact<T>, BoxMeanFloat<T>>;
        return squares(Mean(reciprocal));
    }
}

// ---- calls, once for layouts that differ in their alpha only -------------------------------------------------------

template <class T>
struct BoxOperands {
    Image<const T, anyElements> src;
    window::Destination<T> dst;
    ImageSize roi, mask;
    ImagePoint anchor;

    PxlStatus status() const {
        return check(null(src, dst.base), steps(src, dst), size(roi), window::mask(mask), window::anchor(anchor, mask));
    }
    window::Windows<T> windows() const {
        return {window::wholeSteps(src), dst.keepsAlpha, roi, window::maskShape(mask, anchor)};
    }
    bool isOnePixel() const { return mask.width == 1 && mask.height == 1; }
};

// 16u never runs in parallel, four channels always try to.
template <int Elements, class T>
bool isWorthForking(const BoxOperands<T>& o) {
    if (std::is_same_v<T, uint16_t>) return false;
    const bool fourChannels = Elements == 4 && !o.dst.keepsAlpha;
    return fourChannels || int64_t{o.roi.width} * o.roi.height > 4096;
}

template <int Elements, bool InDouble, class T>
[[gnu::noinline]] PxlStatus filterBox(const BoxOperands<T>& o) {
    if (const PxlStatus status = o.status()) return status;
    const window::Windows<T> windows = o.windows();
    const window::Destination<T> dst = window::wholeSteps(o.dst);
    if (o.isOnePixel()) {
        const auto copy = [&](const T* s, window::DestinationRow<T> d) { window::copyRow(s, d, windows.processed); };
        window::forEachRow(windows, dst, 0, o.roi.height, copy);
        return PXL_OK;
    }
    return withWorker<Elements, InDouble>(windows, [&](const auto& worker) {
        return window::runByTeam(worker, windows, dst, isWorthForking<Elements>(o));
    });
}

template <int Elements, bool InDouble, class T>
[[gnu::noinline]] PxlStatus filterBoxInPlace(const BoxOperands<T>& o) {
    if (const PxlStatus status = o.status()) return status;
    if (o.isOnePixel()) return PXL_OK;
    const window::Windows<T> windows = o.windows();
    const window::Destination<T> image = window::wholeSteps(o.dst);
    return withWorker<Elements, InDouble>(
        windows, [&](const auto& worker) { return window::runInPlace(worker, windows, image); });
}

// ---- members -------------------------------------------------------------------------------------------------------

template <class T, int Elements, int Channels>
PxlStatus FilterBox(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi,
                    ImageSize mask, ImagePoint anchor) {
    return filterBox<Elements, addsInDouble<T, Channels>, T>({src, dst, roi, mask, anchor});
}

template <class T, int Elements, int Channels>
PxlStatus FilterBoxInPlace(Image<T, Elements, Channels> srcDst, ImageSize roi, ImageSize mask, ImagePoint anchor) {
    const Image<const T, Elements, Channels> src{srcDst.base, srcDst.step};
    return filterBoxInPlace<Elements, addsInDouble<T, Channels>, T>({src, srcDst, roi, mask, anchor});
}

} // namespace
} // namespace pxl::PXL_TARGET::filter

#include "members/filter/box.inc"
