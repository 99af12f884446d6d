// The images behind the benchmark pairs, the comparison of the two results, and the program's entry.
#include "pair.h"

#include "pxlcore.h"

#include <opencv2/core/utility.hpp>

#include <cstring>
#include <fstream>
#include <iostream>
#include <map>
#include <tuple>

namespace pxlbench {
namespace {

int failedRows = 0;

// Whole range of the integer types but 32s, whose sums and multiples the peer does not saturate; 32f values straddle 0..255, so
// that conversions to 8u saturate at both ends.
void fillRandom(cv::Mat& image, uint64_t seed) {
    static const std::map<int, std::pair<double, double>> ranges = {
        {CV_8U, {0, 256}},         {CV_8S, {-128, 128}},  {CV_16U, {0, 65536}},
        {CV_16S, {-32768, 32768}}, {CV_32S, {-1e8, 1e8}}, {CV_32F, {-64, 320}},
    };
    const auto [low, high] = ranges.at(image.depth());
    cv::RNG(seed).fill(image, cv::RNG::UNIFORM, cv::Scalar::all(low), cv::Scalar::all(high));
}

// One line of random elements per role ('s', 'n' for a source without zeros, 'd', 'm', 'r' for what a destination holds at
// first), number and type, as long as the largest image so far; kept to the end of the program.
cv::Mat line(char role, size_t number, int depth, int elements) {
    static std::map<std::tuple<char, size_t, int>, cv::Mat> pool;
    cv::Mat& all = pool[{role, number, depth}];
    if (all.cols < elements) {
        all = cv::Mat(1, elements, depth);
        fillRandom(all, static_cast<uint64_t>(role) * 16 + number);
        if (role == 'n') all.setTo(1, all == 0);
        if (role == 'm') cv::compare(all, 127, all, cv::CMP_GT);
    }
    return all;
}

// An image that begins where the line does; in a strided one or one with a reach there are pixels around it.
cv::Mat pooled(char role, size_t number, int type, Shape shape, bool strided, int reach = 0) {
    const cv::Size around = strided ? cv::Size(32, 4) : cv::Size();
    const cv::Size size(shape.width + 2 * reach + around.width, shape.height + 2 * reach + around.height);
    const int channels = CV_MAT_CN(type), elements = size.area() * channels;
    const cv::Mat all = line(role, number, CV_MAT_DEPTH(type), elements);
    const cv::Mat whole = all.colRange(0, elements).reshape(channels, size.height);
    const cv::Point origin = strided ? cv::Point(3, 2) : cv::Point();
    return whole(cv::Rect(origin.x + reach, origin.y + reach, shape.width, shape.height));
}

Shape sourceShape(const Operands& operands, Shape shape) {
    return {operands.square ? shape.height : shape.width, shape.height};
}

Shape destinationShape(const Operands& operands, Shape shape) {
    if (operands.transposed) return {shape.height, shape.width};
    return {shape.width + 2 * operands.margin, shape.height + 2 * operands.margin};
}

// The same random bytes every time: what a destination holds before a call.
void refill(std::vector<cv::Mat>& images) {
    for (size_t i = 0; i < images.size(); ++i)
        pooled('r', i, images[i].type(), {images[i].cols, images[i].rows}, false).copyTo(images[i]);
}

// Pixels of four elements without the last one.
cv::Mat coloursOf(const cv::Mat& image) {
    const cv::Mat elements = image.reshape(1, static_cast<int>(image.total()));
    return elements.colRange(0, elements.cols / 4 * 3);
}

bool same(const cv::Mat& a, const cv::Mat& b, double tolerance) {
    if (tolerance == 0) return cv::countNonZero(a.reshape(1) != b.reshape(1)) == 0;
    const double unit = a.depth() == CV_32F ? cv::norm(b, cv::NORM_INF) : 1;
    return cv::norm(a, b, cv::NORM_INF) <= tolerance * unit;
}

// Empty when both sides give the same result from the same start, otherwise what is wrong.
std::string disagreement(const Operands& operands, Frame& frame, const std::function<int()>& ours,
                         const std::function<void()>& peer) {
    refill(frame.dst);
    if (const int status = ours()) return "status " + std::to_string(status);
    if (!peer) return "";
    std::vector<cv::Mat> results;
    std::vector<uchar*> places;
    for (const cv::Mat& image : frame.dst) {
        results.push_back(image.clone());
        places.push_back(image.data);
    }
    refill(frame.dst);
    peer();
    for (size_t i = 0; i < results.size(); ++i) {
        // A peer that allocates its result anew would be charged for that, and leave the shared images.
        if (frame.dst[i].data != places[i]) return "the peer replaced its destination";
        const bool agree = operands.alpha ? same(coloursOf(results[i]), coloursOf(frame.dst[i]), operands.tolerance)
                                          : same(results[i], frame.dst[i], operands.tolerance);
        if (!agree) return "the results differ";
    }
    return "";
}

std::string cpuModel() {
    std::ifstream file("/proc/cpuinfo");
    for (std::string line; std::getline(file, line);)
        if (line.starts_with("model name")) return line.substr(line.find(':') + 2);
    return "unknown";
}

// As a shell would take it back: an argument with a character of the filter's syntax is quoted.
std::string commandLine(int argc, char** argv) {
    std::string text;
    for (int i = 0; i < argc; ++i) {
        const std::string argument = argv[i];
        const bool plain = argument.find_first_of(" *|()[]?$^\\;&<>") == std::string::npos;
        text += (i ? " " : "") + (plain ? argument : "'" + argument + "'");
    }
    return text;
}

} // namespace

Frame::Frame(const Operands& operands, Shape named) : copied(operands.copied) {
    const Shape shape = sourceShape(operands, named);
    size = {shape.width, shape.height};
    for (int type : operands.src)
        src.push_back(pooled(operands.nonzero ? 'n' : 's', src.size(), type, shape, operands.strided, operands.reach));
    for (int type : operands.dst)
        dst.push_back(pooled('d', dst.size(), type, destinationShape(operands, shape), operands.strided));
    if (operands.mask) mask = pooled('m', 0, CV_8UC1, shape, operands.strided);
}

int64_t Frame::bytes() const {
    size_t sum = mask.total();
    for (const cv::Mat& image : src) sum += image.total() * image.elemSize();
    for (const cv::Mat& image : dst) sum += image.total() * image.elemSize() * (copied ? 2 : 1);
    return static_cast<int64_t>(sum);
}

void Team::set(int threads) {
    cv::setNumThreads(threads);
    pxlcoreSetNumThreads(threads);
}

std::span<const Shape> shapesOf(const Operands& operands) {
    return std::span(kShapes).subspan(operands.threads > 1 ? 1 : 0);
}

std::string benchmarkName(const std::string& row, const char* side, Shape shape) {
    return row + "/" + side + "/" + std::to_string(shape.width) + "x" + std::to_string(shape.height);
}

void addFloor(const std::string& row, const Operands& operands, Shape shape) {
    const bool copies = operands.floor == Floor::Memcpy;
    auto body = [=](benchmark::State& state) {
        Frame frame(operands, shape);
        const auto count = static_cast<size_t>(frame.bytes()) / (copies ? 2 : 1);
        const Shape line{static_cast<int>(count), 1};
        const cv::Mat from = pooled('s', 0, CV_8UC1, line, false);
        cv::Mat to = pooled('d', 0, CV_8UC1, line, false);
        if (copies)
            timeCalls(state, frame, [&](Frame&) { std::memcpy(to.data, from.data, count); });
        else
            timeCalls(state, frame, [&](Frame&) { std::memset(to.data, 77, count); });
    };
    benchmark::RegisterBenchmark(benchmarkName(row, copies ? "memcpy" : "memset", shape).c_str(), body);
}

bool verified(benchmark::State& state, const std::string& row, const Operands& operands, Frame& frame,
              const std::function<int()>& ours, const std::function<void()>& peer) {
    static std::map<std::string, std::string> outcomes;
    const std::string key = benchmarkName(row, "check", {frame.size.width, frame.size.height});
    auto known = outcomes.find(key);
    if (known == outcomes.end()) {
        known = outcomes.emplace(key, disagreement(operands, frame, ours, peer)).first;
        if (!known->second.empty()) {
            ++failedRows;
            std::cerr << key << ": " << known->second << "\n";
        }
    }
    if (!known->second.empty()) state.SkipWithError(known->second.c_str());
    return known->second.empty();
}

int failures() { return failedRows; }

} // namespace pxlbench

int main(int argc, char** argv) {
    benchmark::AddCustomContext("cpu", pxlbench::cpuModel());
    benchmark::AddCustomContext("compiler", "g++ " __VERSION__);
    benchmark::AddCustomContext("opencv", CV_VERSION);
    benchmark::AddCustomContext("command", pxlbench::commandLine(argc, argv));
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return pxlbench::failures() ? 1 : 0;
}
