// Rows of families that have the same members: every type in every layout, with every kind of scale factor.
#pragma once

#include "exported.h"

#include <span>

namespace pxlbench {

// The peer's call: d from a, or from a and b, which is d in the rows in place.
using Peer = std::function<void(const cv::Mat& a, const cv::Mat& b, cv::Mat& d)>;

inline constexpr int kScaleFactors[] = {0, 1, 8, -1}; // as it is, to the right twice, to the left
inline constexpr int kNoScaleFactor[] = {0};

// A function, and what its row is called.
struct Row {
    std::string family, type, layout;
    Numbers numbers{};
    std::string suffix{};
    bool inPlace = false;

    std::string name(const std::string& subject) const { return subject + "_" + type + "_" + layout + suffix; }
    std::string function() const {
        return family + "_" + type + "_" + layout + (inPlace ? "IR" : "R") + (isScaled() ? "Sfs" : "");
    }
    bool isComplex() const { return type.ends_with("c"); }
    bool isFloat() const { return type.starts_with("32f"); }
    bool isScaled() const; // whether the function takes a scale factor
    double scale() const;  // 2^-scaleFactor
    int channels() const;  // of the peer's image, of which complex elements are two
};

// Registers the row; without a peer it is held against memcpy.
void addRow(const std::string& subject, const Row& row, const Peer& peer, double tolerance = 0, bool nonzero = false);

// body(row) for each member without the in-place ones: complex types have no C4.
template <class Body>
void forMembers(const std::string& family, std::span<const char* const> types, std::span<const int> scaleFactors,
                const Numbers& numbers, Body body) {
    for (const char* type : types)
        for (const char* layout : {"C1", "C3", "C4", "AC4"}) {
            Row row{family, type, layout, numbers};
            if (row.isComplex() && row.layout == "C4") continue;
            for (int scaleFactor : row.isScaled() ? scaleFactors : kNoScaleFactor) {
                row.numbers.scaleFactor = scaleFactor;
                row.suffix = scaleFactor ? "_sf" + std::to_string(scaleFactor) : "";
                body(row);
            }
        }
}

} // namespace pxlbench
