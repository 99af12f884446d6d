// Convolution in double precision, always on the calling thread. No buffer is needed, and the query says so.
#include "filter/linear.h"

namespace pxl::PXL_TARGET::filter {
namespace {

PxlStatus Filter64f(Image<const double> src, Image<double> dst, ImageSize roi, const double* kernel,
                    ImageSize kernelSize, ImagePoint anchor, uint8_t* /*buffer*/) {
    const Operands<double, double> operands{src, dst, roi, kernel, kernelSize, anchor};
    if (const PxlStatus status = checkLinear(operands)) return status;
    const Filtering<double, double> f(operands);
    const SumItself itself;
    SumRows<PlainSums<double, double>, SumItself>(f, itself)(0, roi.height);
    return PXL_OK;
}

PxlStatus FilterBufSize64f(ImageSize kernelSize, int roiWidth, int* result) {
    if (const PxlStatus status = check(null(result), size(kernelSize), refuse(roiWidth < 1, PXL_E_SIZE))) return status;
    *result = 0;
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET::filter

#include "members/filter/filter_64f.inc"
