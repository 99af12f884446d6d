// Convolution in double precision, always on the calling thread. No buffer is needed, and the query says so.
#include "filter/sums.h"

namespace pxl::PXL_TARGET {
namespace {

PxlStatus ownFilter64f(const double* src, int srcStep, double* dst, int dstStep, ImageSize roi, const double* kernel,
                       ImageSize size, ImagePoint anchor, uint8_t* /*buffer*/) {
    const Filtering<double, double> f{src, srcStep, dst, dstStep, roi, kernel, size, anchor, 1, false};
    const PxlStatus status = checkFilter(f);
    const SumItself itself;
    if (status == PXL_OK) SumRows<PlainSums<double, double>, SumItself>(f, itself)(0, roi.height);
    return status;
}

PxlStatus ownFilterBufSize64f(ImageSize size, int roiWidth, int* result) {
    if (!result) return PXL_E_NULL_PTR;
    if (isEmpty(size) || roiWidth < 1) return PXL_E_SIZE;
    *result = 0;
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/filter/filter_64f.inc"
