// Benchmarks in pairs: one call of this library beside the call that a user of OpenCV would write, on the same memory.
//
// A row names its operands by OpenCV type code and gives two callables over a Frame; addPair() registers
// `<row>/pxl/<size>`, `<row>/opencv/<size>` and, where the row asks for one, the memory floor `<row>/memcpy/<size>`.
// Before the first timing of a row and size both sides run once on the same bytes and must give the same result.
// report.py pairs the names and makes the tables.
#pragma once

#include "pxli.h"

#include <benchmark/benchmark.h>
#include <opencv2/core.hpp>

#include <functional>
#include <string>
#include <vector>

namespace pxlbench {

struct Shape {
    int width;
    int height;
};

// L1/L2-resident, L2/L3-resident and the size of a video frame.
inline constexpr Shape kShapes[] = {{64, 64}, {640, 480}, {1920, 1080}};

// The plain memory traffic that a row is held against: as many bytes read and written by memcpy, or written by memset.
enum class Floor { None, Memcpy, Memset };

struct Operands {
    std::vector<int> src{}; // OpenCV type of each source image; a planar image counts once per plane
    std::vector<int> dst{};
    bool mask = false;       // an 8u mask, about half of it set, at random
    int margin = 0;          // the destination is larger than the source by this much on each side
    bool transposed = false; // the destination is height x width
    bool strided = false;    // every image is a region of a larger one: rows neither contiguous nor aligned
    Floor floor = Floor::None;
    double tolerance = 0; // allowed difference of the two results; 0 compares every element for equality
};

// The images of one row at one size. Pixels are shared by all rows and both sides (same addresses, same pages), so
// a Frame costs a few look-ups; what a destination holds at first is arbitrary.
struct Frame {
    Frame(const Operands& operands, Shape shape);

    template <class T>
    const T* in(size_t i = 0) const {
        return src[i].ptr<T>();
    }
    template <class T>
    T* out(size_t i = 0) {
        return dst[i].ptr<T>();
    }
    int inStep() const { return static_cast<int>(src[0].step); }
    int outStep() const { return static_cast<int>(dst[0].step); }
    int maskStep() const { return static_cast<int>(mask.step); }
    ImageSize outSize() const { return {dst[0].cols, dst[0].rows}; }
    int64_t pixels() const { return static_cast<int64_t>(dst[0].total()); }
    int64_t bytes() const; // of all images: what is read plus what is written

    std::vector<cv::Mat> src;
    std::vector<cv::Mat> dst;
    cv::Mat mask;
    ImageSize size; // region of the call
};

// Calls a function of the shape src, srcStep, dst, dstStep, roiSize, then the family's own arguments.
template <class S, class D, class... Rest, class... Own>
PxlStatus unary(PxlStatus (*function)(const S*, int, D*, int, ImageSize, Rest...), Frame& f, Own... own) {
    return function(f.in<S>(), f.inStep(), f.out<D>(), f.outStep(), f.size, own...);
}

// The same for a masked function.
template <class T>
PxlStatus masked(PxlStatus (*function)(const T*, int, T*, int, ImageSize, const uint8_t*, int), Frame& f) {
    return unary(function, f, static_cast<const uint8_t*>(f.mask.data), f.maskStep());
}

std::string benchmarkName(const std::string& row, const char* side, Shape shape);

// Registers the memcpy or memset that moves as many bytes as the row does.
void addFloor(const std::string& row, const Operands& operands, Shape shape);

// Runs both sides once per row and size and remembers the outcome; false, with the benchmark marked as failed,
// when the call does not succeed or the results differ. `peer` may be empty.
bool verified(benchmark::State& state, const std::string& row, const Operands& operands, Frame& frame,
              const std::function<int()>& ours, const std::function<void()>& peer);

// Number of rows that failed so far, each printed when it failed.
int failures();

template <class Call>
void timeCalls(benchmark::State& state, Frame& frame, Call call) {
    call(frame); // touches every page and warms the caches
    for (auto _ : state) {
        call(frame);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * frame.pixels());
    state.SetBytesProcessed(state.iterations() * frame.bytes());
}

template <class Ours, class Peer>
void addPair(const std::string& row, const Operands& operands, Ours ours, Peer peer) {
    for (Shape shape : kShapes) {
        auto add = [&](const char* side, auto call) {
            auto body = [=](benchmark::State& state) {
                Frame frame(operands, shape);
                if (verified(
                        state, row, operands, frame, [&] { return ours(frame); }, [&] { peer(frame); }))
                    timeCalls(state, frame, call);
            };
            benchmark::RegisterBenchmark(benchmarkName(row, side, shape).c_str(), body);
        };
        add("pxl", ours);
        add("opencv", peer);
        if (operands.floor != Floor::None) addFloor(row, operands, shape);
    }
}

// The row on contiguous images, and again as `<row>_strided` on regions of larger ones.
template <class Ours, class Peer>
void addPairAndStrided(const std::string& row, Operands operands, Ours ours, Peer peer) {
    addPair(row, operands, ours, peer);
    operands.strided = true;
    addPair(row + "_strided", operands, ours, peer);
}

// What a call costs before the pixels count: 8 x 8 regions, contiguous and strided, without a peer.
template <class Ours>
void addTiny(const std::string& row, Operands operands, Ours ours) {
    constexpr Shape shape{8, 8};
    for (bool strided : {false, true}) {
        operands.strided = strided;
        const std::string name = "tiny_" + row + (strided ? "_strided" : "");
        auto body = [=](benchmark::State& state) {
            Frame frame(operands, shape);
            if (verified(state, name, operands, frame, [&] { return ours(frame); }, {})) timeCalls(state, frame, ours);
        };
        benchmark::RegisterBenchmark(benchmarkName(name, "pxl", shape).c_str(), body);
    }
}

// A file of rows registers itself: `static const Rows rows([] { addPair(...); ... });`
struct Rows {
    explicit Rows(void (*add)()) { add(); }
};

} // namespace pxlbench
