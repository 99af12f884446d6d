// Benchmarks in pairs: one call of this library beside the call that a user of OpenCV would write, on the same memory.
//
// A row names its operands by OpenCV type code and gives two callables over a Frame; addPair() registers
// `<row>/pxl/<size>`, `<row>/opencv/<size>` and, where the row asks for one, the memory floor `<row>/memcpy/<size>`.
// What OpenCV has no call for is registered by addAlone(). Both sides use one thread unless the operands say otherwise.
// Before the first timing of a row and size both sides run once on the same bytes and must give the same result.
// report.py pairs the names and makes the tables.
#pragma once

#include "pxli.h"

#include <benchmark/benchmark.h>
#include <opencv2/core.hpp>

#include <functional>
#include <span>
#include <string>
#include <type_traits>
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
    bool nonzero = false;    // no element of a source is 0
    bool alpha = false;      // the last of four elements is not compared: the peer writes it
    int reach = 0;           // so many more pixels lie on each side of a source, for both sides to read
    int margin = 0;          // the destination is larger than the source by this much on each side
    bool transposed = false; // the destination is height x width
    bool square = false;     // as many columns as rows
    bool copied = false;     // in place: every byte of the destination is read and written
    bool strided = false;    // every image is a region of a larger one: rows neither contiguous nor aligned
    Floor floor = Floor::None;
    int threads = 1; // team size of both sides
    // Allowed difference of the two results, for floats relative to the largest of them; 0 compares every element for
    // equality.
    double tolerance = 0;
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
    int inStep(size_t i = 0) const { return static_cast<int>(src[i].step); }
    int outStep() const { return static_cast<int>(dst[0].step); }
    int maskStep() const { return static_cast<int>(mask.step); }
    ImageSize outSize() const { return {dst[0].cols, dst[0].rows}; }
    int64_t pixels() const { return static_cast<int64_t>(dst[0].total()); }
    int64_t bytes() const; // of all images: what is read plus what is written, without the reach

    std::vector<cv::Mat> src;
    std::vector<cv::Mat> dst;
    cv::Mat mask;
    ImageSize size; // region of the call
    bool copied = false;
};

// The names of element types in rows, and in functions.
template <class T>
const char* codeOf() {
    constexpr bool isSigned = std::is_signed_v<T>;
    if constexpr (std::is_floating_point_v<T>) return "32f";
    if constexpr (sizeof(T) == 1) return isSigned ? "8s" : "8u";
    if constexpr (sizeof(T) == 2) return isSigned ? "16s" : "16u";
    return "32s";
}
template <class T>
int typeOf(int channels) {
    return CV_MAKETYPE(cv::traits::Depth<T>::value, channels);
}
template <class... T>
std::string rowName(const std::string& family, const std::string& layout) {
    return (family + "_" + ... + codeOf<T>()) + "_" + layout;
}

// Calls a function of the shape src, srcStep, dst, dstStep, roiSize, then the family's own arguments.
template <class S, class D, class... Rest, class... Own>
PxlStatus unary(PxlStatus (*function)(const S*, int, D*, int, ImageSize, Rest...), Frame& f, Own... own) {
    return function(f.in<S>(), f.inStep(), f.out<D>(), f.outStep(), f.size, own...);
}

// The same in place.
template <class T, class... Rest, class... Own>
PxlStatus inPlace(PxlStatus (*function)(T*, int, ImageSize, Rest...), Frame& f, Own... own) {
    return function(f.out<T>(), f.outStep(), f.size, own...);
}

// The same for a masked function.
template <class T>
PxlStatus masked(PxlStatus (*function)(const T*, int, T*, int, ImageSize, const uint8_t*, int), Frame& f) {
    return unary(function, f, static_cast<const uint8_t*>(f.mask.data), f.maskStep());
}

// The same for two sources.
template <class S, class D, class... Rest, class... Own>
PxlStatus binary(PxlStatus (*function)(const S*, int, const S*, int, D*, int, ImageSize, Rest...), Frame& f,
                 Own... own) {
    return function(f.in<S>(0), f.inStep(0), f.in<S>(1), f.inStep(1), f.out<D>(), f.outStep(), f.size, own...);
}

// The same for a source and a constant, which is an array where there are several channels.
template <class S, class Value, class D, class... Rest, class... Own>
PxlStatus withConstant(PxlStatus (*function)(const S*, int, Value, D*, int, ImageSize, Rest...), Frame& f,
                       std::type_identity_t<Value> value, Own... own) {
    return function(f.in<S>(), f.inStep(), value, f.out<D>(), f.outStep(), f.size, own...);
}

// While it lives, both libraries use this many threads; otherwise one.
class Team {
public:
    explicit Team(int threads) { set(threads); }
    ~Team() { set(1); }
    Team(const Team&) = delete;
    Team& operator=(const Team&) = delete;

private:
    static void set(int threads);
};

// The sizes of a row: the smallest is not worth a second thread.
std::span<const Shape> shapesOf(const Operands& operands);

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

// Registers one side of a row at one size; check(state, frame) tells whether it may be timed.
template <class Check, class Call>
void addSide(const std::string& row, const char* side, const Operands& operands, Shape shape, Check check, Call call) {
    auto body = [=](benchmark::State& state) {
        const Team team(operands.threads);
        Frame frame(operands, shape);
        if (check(state, frame)) timeCalls(state, frame, call);
    };
    auto* added = benchmark::RegisterBenchmark(benchmarkName(row, side, shape).c_str(), body);
    // The processor time of the calling thread misses what its team does.
    if (operands.threads > 1) added->UseRealTime();
}

template <class Ours, class Peer>
void addPair(const std::string& row, const Operands& operands, Ours ours, Peer peer) {
    auto check = [=](benchmark::State& state, Frame& frame) {
        return verified(
            state, row, operands, frame, [&] { return ours(frame); }, [&] { peer(frame); });
    };
    for (Shape shape : shapesOf(operands)) {
        addSide(row, "pxl", operands, shape, check, ours);
        addSide(row, "opencv", operands, shape, check, peer);
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

// The row on one thread, and again as `<row>_2threads`.
template <class Ours, class Peer>
void addPairAndTwoThreads(const std::string& row, Operands operands, Ours ours, Peer peer) {
    addPair(row, operands, ours, peer);
    operands.threads = 2;
    addPair(row + "_2threads", operands, ours, peer);
}

// Our side of a row at one size, without a peer.
template <class Ours>
void addOurs(const std::string& row, const Operands& operands, Shape shape, Ours ours) {
    auto check = [=](benchmark::State& state, Frame& frame) {
        return verified(state, row, operands, frame, [&] { return ours(frame); }, {});
    };
    addSide(row, "pxl", operands, shape, check, ours);
}

// A row that OpenCV has no call for: it is held against its memory floor only, and checked for its status only.
template <class Ours>
void addAlone(const std::string& row, const Operands& operands, Ours ours) {
    for (Shape shape : shapesOf(operands)) {
        addOurs(row, operands, shape, ours);
        if (operands.floor != Floor::None) addFloor(row, operands, shape);
    }
}

// What a call costs before the pixels count: 8 x 8 regions, contiguous and strided, without a peer.
template <class Ours>
void addTiny(const std::string& row, Operands operands, Ours ours) {
    for (bool strided : {false, true}) {
        operands.strided = strided;
        addOurs("tiny_" + row + (strided ? "_strided" : ""), operands, {8, 8}, ours);
    }
}

// A file of rows registers itself: `static const Rows rows([] { addPair(...); ... });`
struct Rows {
    explicit Rows(void (*add)()) { add(); }
};

} // namespace pxlbench
