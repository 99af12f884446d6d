// The threshold that separates the levels of an image best: the one with the largest variance between the two classes (Otsu, A
// threshold selection method from gray-level histograms, 1979).
#include "frame/checks.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::threshold {
namespace {

// Counts of the 256 levels. Neighbouring pixels go to tables of their own, since a level that comes twice in a row would wait for
// its own count.
class Counts {
public:
    void add(ptrdiff_t n, const uint8_t* s) {
        constexpr ptrdiff_t most = ptrdiff_t{1} << 30; // pixels that the tables surely hold
        for (ptrdiff_t rest = n, some; rest > 0; rest -= some, s += some) {
            some = rest < most ? rest : most;
            if (inTables_ + some > most) fold();
            addSome(some, s);
            inTables_ += some;
        }
    }
    // All counts so far.
    const int64_t (&fold())[256] {
        for (int level = 0; level < 256; ++level) {
            uint32_t sum = 0;
            for (auto& table : tables_) {
                sum += table[level];
                table[level] = 0;
            }
            counts_[level] += sum;
        }
        inTables_ = 0;
        return counts_;
    }

private:
    static constexpr int tables = 4;
    uint32_t tables_[tables][256] = {};
    int64_t counts_[256] = {};
    ptrdiff_t inTables_ = 0;

    void addSome(ptrdiff_t n, const uint8_t* s) {
        ptrdiff_t x = 0;
        for (; x + 8 <= n; x += 8) {
            uint64_t eight;
            std::memcpy(&eight, s + x, sizeof eight);
#pragma GCC unroll 8
            for (int i = 0; i < 8; ++i) ++tables_[i % tables][eight >> 8 * i & 0xFF];
        }
        for (; x < n; ++x) ++tables_[0][s[x]];
    }
};

// The order of the operations is part of the definition. Both sums are exact, as integers and in double precision.
int bestLevel(const int64_t (&counts)[256]) {
    constexpr double least = 1.1920928955078125e-7, most = 0.9999998807907104; // 2^-23 and 1 - 2^-23
    int64_t pixels = 0, twice = 0;
    for (int i = 0; i < 256; ++i) {
        pixels += counts[i];
        twice += (2 * i + 1) * counts[i];
    }
    const double share = 1 / static_cast<double>(pixels), mean = static_cast<double>(twice) * 0.5 * share;
    double w0 = 0, m0 = 0, best = 0;
    int bestIndex = 0;
    for (int i = 0; i < 256; ++i) {
        const double p = share * static_cast<double>(counts[i]);
        m0 = m0 * w0;
        w0 = w0 + p;
        const double w1 = 1 - w0;
        if ((w0 < w1 ? w0 : w1) < least || (w0 < w1 ? w1 : w0) > most) continue;
        m0 = (m0 + p * (i + 0.5)) / w0;
        const double m1 = (mean - w0 * m0) / w1;
        const double variance = w1 * w0 * (m0 - m1) * (m0 - m1);
        if (variance > best) {
            best = variance;
            bestIndex = i;
        }
    }
    return bestIndex;
}

PxlStatus ComputeThresholdOtsu(Image<const uint8_t> src, ImageSize roi, uint8_t* threshold) {
    if (const PxlStatus status =
            check(refuse(!src.base || !threshold, PXL_E_NULL_PTR), size(roi), refuse(src.step < roi.width, PXL_E_STEP)))
        return status;
    Counts counts;
    walk(
        roi, [&](ptrdiff_t n, const uint8_t* s) { counts.add(n, s); }, src);
    *threshold = static_cast<uint8_t>(bestLevel(counts.fold()));
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET::threshold

#include "members/threshold/otsu.inc"
