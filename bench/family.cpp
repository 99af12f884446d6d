#include "family.h"

#include <cmath>
#include <memory>

namespace pxlbench {

bool Row::isScaled() const {
    return !isFloat() && (family.starts_with("Add") || family.starts_with("Sub") || family.starts_with("Div") ||
                          family == "Mul" || family == "MulC");
}

double Row::scale() const { return std::ldexp(1, -numbers.scaleFactor); }

int Row::channels() const { return (layout == "C1" ? 1 : layout == "C3" ? 3 : 4) * (isComplex() ? 2 : 1); }

void addRow(const std::string& subject, const Row& row, const Peer& peer, double tolerance, bool nonzero) {
    const auto ours = std::make_shared<ExportedCall>(row.function(), row.numbers);
    Operands operands{.src = ours->sources(), .dst = {ours->destination()}};
    operands.nonzero = nonzero;
    operands.alpha = row.layout == "AC4";
    operands.tolerance = tolerance;
    const auto call = [=](Frame& f) { return (*ours)(f); };
    if (!peer) {
        operands.floor = Floor::Memcpy;
        return addAlone(row.name(subject), operands, call);
    }
    addPair(row.name(subject), operands, call, [=](Frame& f) {
        cv::Mat& d = f.dst[0];
        const cv::Mat& a = f.src.empty() ? d : f.src[0];
        peer(a, f.src.size() > 1 ? f.src[1] : d, d);
    });
}

} // namespace pxlbench
