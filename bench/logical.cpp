// Bitwise operations and shifts. OpenCV has no shift to the left that drops bits.
#include "family.h"

#include <cctype>
#include <cmath>

using namespace pxlbench;

namespace {

const char* const kTypes[] = {"8u", "16u", "32s"};
const char* const kShiftedRight[] = {"8u", "8s", "16u", "16s", "32s"};
constexpr std::array<int, 8> kBits = {10, 128, 250, 77}, kCounts = {3, 1, 5, 2};

std::string nameOf(std::string family) {
    family[0] = static_cast<char>(std::tolower(family[0]));
    return "logical_" + family;
}

void addBitwise() {
    using Function = void (*)(cv::InputArray, cv::InputArray, cv::OutputArray, cv::InputArray);
    const cv::Scalar bits(kBits[0], kBits[1], kBits[2], kBits[3]);
    const std::pair<const char*, Function> families[] = {
        {"And", cv::bitwise_and}, {"Or", cv::bitwise_or}, {"Xor", cv::bitwise_xor}};
    for (const auto& [family, function] : families) {
        const Peer images = [=](const cv::Mat& a, const cv::Mat& b, cv::Mat& d) { function(a, b, d, cv::noArray()); };
        const Peer constants = [=](const cv::Mat& a, const cv::Mat&, cv::Mat& d) {
            function(a, bits, d, cv::noArray());
        };
        forMembers(family, kTypes, kNoScaleFactor, {}, [&](Row row) { addRow(nameOf(row.family), row, images); });
        forMembers(family + std::string("C"), kTypes, kNoScaleFactor, {.constants = kBits},
                   [&](const Row& row) { addRow(nameOf(row.family), row, constants); });
        addRow(nameOf(family), {family, "32s", "C3", {}, "_inplace", true}, images);
    }
    const char* const bytes[] = {"8u"};
    forMembers("Not", bytes, kNoScaleFactor, {}, [](const Row& row) {
        addRow("logical_not", row, [](const cv::Mat& a, const cv::Mat&, cv::Mat& d) { cv::bitwise_not(a, d); });
    });
}

// Half of a step less than the quotient is rounded to what lies below it.
Peer shiftedRight(const Row& row) {
    const int channels = row.channels();
    cv::Mat matrix = cv::Mat::zeros(channels, channels + 1, CV_64F);
    for (int c = 0; c < channels; ++c) {
        const double step = std::ldexp(1, -row.numbers.constants[static_cast<size_t>(c)]);
        matrix.at<double>(c, c) = step;
        matrix.at<double>(c, channels) = (step - 1) / 2;
    }
    if (channels > 1) return [=](const cv::Mat& a, const cv::Mat&, cv::Mat& d) { cv::transform(a, d, matrix); };
    return [slope = matrix.at<double>(0, 0), offset = matrix.at<double>(0, 1)](
               const cv::Mat& a, const cv::Mat&, cv::Mat& d) { a.convertTo(d, -1, slope, offset); };
}

void addShifts() {
    const Numbers counts{.constants = kCounts};
    forMembers("LShiftC", kTypes, kNoScaleFactor, counts, [](const Row& row) { addRow("shift_left", row, {}); });
    forMembers("RShiftC", kShiftedRight, kNoScaleFactor, counts,
               [](const Row& row) { addRow("shift_right", row, shiftedRight(row)); });
    // Counts that leave the image as it is, or nothing of it; and counts alike.
    for (int count : {0, 3, 8})
        for (const char* layout : {"C1", "C3"}) {
            const Row row{"RShiftC", "8u", layout, {.constants = {count, count, count}}, "_by" + std::to_string(count)};
            addRow("shift_right", row, shiftedRight(row));
        }
}

const Rows rows([] {
    addBitwise();
    addShifts();
});

} // namespace
