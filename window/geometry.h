// Windows over an image: every pixel of a region has one, all of the same size, at the same place around their pixel.
//
// Rows are seen as elements, which are treated alike whatever the layout: the sample beside another one in a window
// stands a pixel's elements beside it. Row y of the results needs the source rows y ... y + height - 1, counted from the
// first row of the first window, and of each the elements 0 ... columns - 1, counted from its first column. AC4 rows end
// with the third element of their last pixel: no more of them may be read.
#pragma once

#include "frame/image.h"
#include "frame/vec/vec.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::window {

template <class T>
PXL_INLINE T* byBytes(T* p, ptrdiff_t bytes) {
    using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + bytes);
}

// The same image for families whose steps count whole elements, rounded down.
template <class Rows>
inline Rows wholeSteps(Rows image) {
    image.step &= -static_cast<ptrdiff_t>(sizeof *image.base);
    return image;
}

// A window in pixels: its size, and how much of it lies left of its pixel and above it. That is less than nothing, or
// more than the window, where a family takes any anchor.
struct Shape {
    int width, height;
    ptrdiff_t left, above;
};

// A mask lies over the image as it is written down; the anchor is the place of the pixel.
inline Shape maskShape(ImageSize mask, ImagePoint anchor) { return {mask.width, mask.height, anchor.x, anchor.y}; }

// A kernel is mirrored: it is walked backwards while its window is walked forwards, so the anchor counts from its end.
inline Shape kernelShape(ImageSize kernel, ImagePoint anchor) {
    return {kernel.width, kernel.height, ptrdiff_t{kernel.width} - 1 - anchor.x,
            ptrdiff_t{kernel.height} - 1 - anchor.y};
}

template <class T>
struct Windows {
    const T* first;       // the first sample of the window of the region's first pixel
    ptrdiff_t step;       // bytes from row to row
    ptrdiff_t pixelBytes; // from column to column of a window
    int width, height;    // of a window, in pixels
    ptrdiff_t above;      // rows of a window above its pixel
    ImageSize region;     // pixels with a window
    ptrdiff_t outputs;    // elements of a row of results
    ptrdiff_t processed;  // the same without the alpha of the last pixel
    ptrdiff_t columns;    // elements of a source row that windows reach

    Windows(Image<const T, anyElements> src, bool hasAlpha, ImageSize roi, Shape shape)
        : first(src.at(-shape.left, -shape.above)), step(src.step), pixelBytes(src.pixelBytes), width(shape.width),
          height(shape.height), above(shape.above), region(roi), outputs(roi.width * elements()),
          processed(outputs - hasAlpha), columns(processed + (width - 1) * elements()) {}

    ptrdiff_t elements() const { return pixelBytes / static_cast<ptrdiff_t>(sizeof(T)); }

    // The first sample of the first window of row y.
    const T* row(ptrdiff_t y) const { return byBytes(first, y * step); }

    // Bytes from the first sample of a window to column i, row j of it.
    ptrdiff_t offset(ptrdiff_t i, ptrdiff_t j) const { return j * step + i * pixelBytes; }
};

} // namespace pxl::PXL_TARGET::window
