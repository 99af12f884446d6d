// Arithmetic between two images, and between an image and constants. Sub and Div take the operand on the right of the sign first.
#include "family.h"

#include <opencv2/imgproc.hpp>

using namespace pxlbench;

namespace {

const char* const kTypes[] = {"8u", "16u", "16s", "32f", "16sc", "32sc", "32fc"};
const char* const kUnsigned[] = {"8u", "16u"};
const char* const kInteger[] = {"8u", "16u", "16s"};

// What differs by a rounding: products and quotients of floats, which the peer multiplies in another order, and quotients of
// integers that are all but a tie.
double toleranceOf(const Row& row) { return row.isFloat() ? 1e-6 : 1; }

// ---- two images -----------------------------------------------------------------------------------------------------

// a * scaleOfA + b * scaleOfB, rounded to the nearest even and saturated.
Peer weighted(double scaleOfA, double scaleOfB) {
    return [=](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::addWeighted(a, scaleOfA, b, scaleOfB, 0, d); };
}

Peer sum(const Row& row) {
    if (row.numbers.scaleFactor) return weighted(row.scale(), row.scale());
    return [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::add(a, b, d); };
}

Peer difference(const Row& row) {
    if (row.numbers.scaleFactor) return weighted(-row.scale(), row.scale());
    return [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::subtract(b, a, d); };
}

// The peer multiplies in single precision, which is exact up to 24 bits; larger products saturate here.
Peer product(const Row& row, double scale) {
    if (!row.isComplex()) return [=](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::multiply(a, b, d, scale); };
    if (!row.isFloat()) return {};
    return [](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) {
        cv::Mat pairs = d.reshape(2);
        cv::mulSpectrums(a.reshape(2), b.reshape(2), pairs, 0);
    };
}

Peer quotient(const Row& row) {
    if (row.isComplex()) return {};
    return [scale = row.scale()](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { cv::divide(b, a, d, scale); };
}

// In place, where results are never stored past the caches.
void addInPlace(const std::string& subject, Row row, const Peer& peer) {
    row.inPlace = true;
    row.suffix = "_inplace";
    addRow(subject, row, peer);
}

void addTwoImages() {
    forMembers("Add", kTypes, kScaleFactors, {}, [](const Row& row) { addRow("add", row, sum(row)); });
    forMembers("Sub", kTypes, kScaleFactors, {}, [](const Row& row) { addRow("sub", row, difference(row)); });
    forMembers("Mul", kTypes, kScaleFactors, {}, [](const Row& row) {
        // The peer's results of 2^31 and more come to 0.
        const bool overflows = row.type == "16u" && row.scale() > 1;
        addRow("mul", row, product(row, row.scale()), overflows ? 65535 : row.isFloat() ? toleranceOf(row) : 0);
    });
    forMembers("Div", kTypes, kScaleFactors, {}, [](const Row& row) {
        addRow("div", row, quotient(row), row.type == "8u" ? 0 : toleranceOf(row), true);
    });
    forMembers("MulScale", kUnsigned, kNoScaleFactor, {}, [](const Row& row) {
        addRow("mulscale", row, product(row, row.type == "8u" ? 1. / 255 : 1. / 65535), 1);
    });
    for (const Row& row : {Row{"Add", "16s", "C4"}, Row{"Add", "32f", "C3"}}) addInPlace("add", row, sum(row));
    for (const Row& row : {Row{"Sub", "16s", "C4"}, Row{"Sub", "32f", "C3"}}) addInPlace("sub", row, difference(row));
    for (const Row& row : {Row{"Mul", "16s", "C4"}}) addInPlace("mul", row, product(row, 1));
}

// Ties away from zero differ from the peer's; what is truncated has no peer.
void addRoundedQuotients() {
    const std::pair<PxlRoundMode, const char*> modes[] = {
        {PXL_ROUND_NEAR_EVEN, "_even"}, {PXL_ROUND_HALF_AWAY, "_away"}, {PXL_ROUND_ZERO, "_zero"}};
    for (const auto& [mode, suffix] : modes)
        forMembers("Div_Round", kInteger, kScaleFactors, {.roundMode = mode}, [&](Row row) {
            row.suffix += suffix;
            addRow("divround", row, mode == PXL_ROUND_ZERO ? Peer() : quotient(row), 1, true);
        });
}

// ---- an image and constants -----------------------------------------------------------------------------------------

constexpr std::array<int, 8> kTerms = {10, 128, 250, 77, 5, 200, 31, 66}, kFactors = {3, 2, 5, 7, 2, 9, 4, 3};

cv::Scalar scalarOf(const Numbers& numbers) {
    const auto& c = numbers.constants;
    return {double(c[0]), double(c[1]), double(c[2]), double(c[3])};
}

// The products of two-channel pixels with a complex number.
Peer turned(double real, double imaginary) {
    const cv::Mat matrix = (cv::Mat_<double>(2, 2) << real, -imaginary, imaginary, real);
    return [=](const cv::Mat& a, const cv::Mat&, cv::Mat& d) { cv::transform(a, d, matrix); };
}

// Channel c times slope, plus offsets[c].
Peer shifted(int channels, double slope, const cv::Scalar& offsets) {
    if (channels == 1)
        return [=](const cv::Mat& a, const cv::Mat&, cv::Mat& d) { a.convertTo(d, -1, slope, offsets[0]); };
    cv::Mat matrix = cv::Mat::zeros(channels, channels + 1, CV_64F);
    for (int c = 0; c < channels; ++c) {
        matrix.at<double>(c, c) = slope;
        matrix.at<double>(c, channels) = offsets[c];
    }
    return [=](const cv::Mat& a, const cv::Mat&, cv::Mat& d) { cv::transform(a, d, matrix); };
}

// The peer's scalars have four numbers.
Peer sumC(const Row& row, int sign) {
    const cv::Scalar terms = scalarOf(row.numbers) * sign;
    if (row.channels() > 4) return {};
    if (row.numbers.scaleFactor) return shifted(row.channels(), row.scale(), terms * row.scale());
    return [=](const cv::Mat& a, const cv::Mat&, cv::Mat& d) { cv::add(a, terms, d); };
}

Peer productC(const Row& row, double scale) {
    const cv::Scalar factors = scalarOf(row.numbers);
    if (row.channels() > 4) return {};
    if (row.isComplex()) return turned(factors[0] * scale, factors[1] * scale);
    if (row.channels() == 1) return shifted(1, factors[0] * scale, {});
    return [=](const cv::Mat& a, const cv::Mat&, cv::Mat& d) { cv::multiply(a, factors, d, scale); };
}

Peer quotientC(const Row& row) {
    const cv::Scalar divisors = scalarOf(row.numbers);
    const double scale = row.scale(), square = divisors[0] * divisors[0] + divisors[1] * divisors[1];
    if (row.channels() > 4) return {};
    if (row.isComplex()) return turned(divisors[0] / square * scale, -divisors[1] / square * scale);
    if (row.channels() == 1) return shifted(1, scale / divisors[0], {});
    return [=](const cv::Mat& a, const cv::Mat&, cv::Mat& d) { cv::divide(a, divisors, d, scale); };
}

void addConstants() {
    const Numbers terms{.constants = kTerms}, factors{.constants = kFactors};
    forMembers("AddC", kTypes, kScaleFactors, terms, [](const Row& row) { addRow("addc", row, sumC(row, 1)); });
    forMembers("SubC", kTypes, kScaleFactors, terms, [](const Row& row) { addRow("subc", row, sumC(row, -1)); });
    forMembers("MulC", kTypes, kScaleFactors, factors, [](const Row& row) {
        addRow("mulc", row, productC(row, row.scale()), row.isFloat() ? toleranceOf(row) : 0);
    });
    forMembers("DivC", kTypes, kScaleFactors, factors,
               [](const Row& row) { addRow("divc", row, quotientC(row), toleranceOf(row)); });
    forMembers("MulCScale", kUnsigned, kNoScaleFactor, factors, [](const Row& row) {
        addRow("mulcscale", row, productC(row, row.type == "8u" ? 1. / 255 : 1. / 65535), 1);
    });
    for (const Row& row : {Row{"AddC", "32f", "C4", terms}}) addInPlace("addc", row, sumC(row, 1));
    for (const Row& row : {Row{"SubC", "32f", "C4", terms}}) addInPlace("subc", row, sumC(row, -1));
}

// ---- scale factors with ways of their own ---------------------------------------------------------------------------

// Nothing but 0 or the largest values, the upper halves of products, and a constant that changes nothing.
void addShortcuts() {
    const auto add = [](const char* subject, Row row, int scaleFactor, auto peer) {
        row.numbers.scaleFactor = scaleFactor;
        row.suffix = "_sf" + std::to_string(scaleFactor) + row.suffix;
        addRow(subject, row, peer(row), 0, row.family == "Div");
    };
    const Numbers terms{.constants = kTerms};
    for (const char* layout : {"C1", "AC4"}) {
        add("add", {"Add", "8u", layout}, -8, sum);
        add("add", {"Add", "8u", layout}, 10, sum);
        add("addc", {"AddC", "8u", layout, terms}, 10, [](const Row& row) { return sumC(row, 1); });
        add("addc", {"AddC", "8u", layout, {}, "_zero"}, 0, [](const Row& row) { return sumC(row, 1); });
        add("addc", {"AddC", "8u", layout, terms}, -8, [](const Row& row) { return sumC(row, 1); });
        add("mul", {"Mul", "16u", layout}, 20, [](const Row&) { return Peer(); });
    }
    add("div", {"Div", "8u", "C1"}, -16, quotient);
    add("div", {"Div", "8u", "C1"}, 9, quotient);
}

const Rows rows([] {
    addTwoImages();
    addRoundedQuotients();
    addConstants();
    addShortcuts();
});

} // namespace
