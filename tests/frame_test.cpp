// The version record, image memory, the internal allocator and the companion library.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#include "failing_malloc.h"
#include "frame/memory.h"
#include "pxlcore.h"
#include "pxli.h"

namespace {

bool isAligned(const void* p) { return reinterpret_cast<uintptr_t>(p) % 32 == 0; }

TEST(Version, IsOneConstantRecord) {
    const LibVersion* v = pxliGetLibVersion();
    EXPECT_EQ(v, pxliGetLibVersion());
    EXPECT_EQ(v->major, 5);
    EXPECT_EQ(v->minor, 3);
    EXPECT_EQ(v->major, PXL_VERSION_MAJOR);
    EXPECT_EQ(v->minor, PXL_VERSION_MINOR);
    EXPECT_EQ(v->buildMajor, 85);
    EXPECT_EQ(v->buildNumber, 496);
    EXPECT_EQ(std::memcmp(v->cpuCode, "mx\0\0", 4), 0);
    EXPECT_STREQ(v->libraryName, "pxlimx-5.3.dll");
    EXPECT_STREQ(v->versionText, "5.3 build 85.13");
    EXPECT_STREQ(v->buildDate, "Oct  8 2007");
}

template <class T>
void checkAllocator(T* (*allocate)(int, int, int*), int pixelBytes) {
    for (const int width : {1, 3, 31, 32, 33, 100}) {
        int step = -1;
        T* image = allocate(width, 7, &step);
        ASSERT_NE(image, nullptr);
        EXPECT_TRUE(isAligned(image));
        EXPECT_EQ(step, (width * pixelBytes + 31) / 32 * 32);
        std::memset(static_cast<void*>(image), 0x5A, static_cast<size_t>(step) * 7);
        pxliFree(image);
    }
    int step = 77;
    EXPECT_EQ(allocate(0, 10, &step), nullptr);
    EXPECT_EQ(step, 0);
    EXPECT_EQ(allocate(10, -1, &step), nullptr);
    EXPECT_EQ(allocate(10, 10, nullptr), nullptr);
}

TEST(ImageMemory, EveryTypeAndLayout) {
#define CHECK_LAYOUTS(type, bytes)                                                                                     \
    checkAllocator(pxliMalloc_##type##_C1, bytes);                                                                     \
    checkAllocator(pxliMalloc_##type##_C2, 2 * bytes);                                                                 \
    checkAllocator(pxliMalloc_##type##_C3, 3 * bytes);                                                                 \
    checkAllocator(pxliMalloc_##type##_C4, 4 * bytes);                                                                 \
    checkAllocator(pxliMalloc_##type##_AC4, 4 * bytes)
    CHECK_LAYOUTS(8u, 1);
    CHECK_LAYOUTS(16u, 2);
    CHECK_LAYOUTS(16s, 2);
    CHECK_LAYOUTS(32s, 4);
    CHECK_LAYOUTS(32f, 4);
    CHECK_LAYOUTS(32sc, 8);
    CHECK_LAYOUTS(32fc, 8);
#undef CHECK_LAYOUTS
}

TEST(ImageMemory, SizesThatWrap) {
    int step = 0;
    EXPECT_EQ(pxliMalloc_8u_C1(65536, 32768, &step), nullptr); // 2^31 wraps to a negative size
    EXPECT_EQ(step, 65536);
    EXPECT_EQ(pxliMalloc_8u_C1(65536, 65536, &step), nullptr); // 2^32 wraps to 0
    EXPECT_EQ(step, 65536);
    EXPECT_EQ(pxliMalloc_32fc_C4(0x7FFFFFFF, 1, &step), nullptr); // the step itself is stored as its low 32 bits
    EXPECT_EQ(step, -32);
}

// Sizes that wrap to a positive number give all that was asked for, or nothing.
TEST(ImageMemory, WrappedSizesAreNotTooSmall) {
    int step = 0;
    if (uint8_t* image = pxliMalloc_8u_C1(65536, 65537, &step)) {
        for (ptrdiff_t y = 0; y < 65537; y += 256) // few enough pages, up to the very last byte
            image[y * step] = image[y * step + 65535] = 1;
        pxliFree(image);
    }
    EXPECT_EQ(step, 65536);
    if (Pxl32fc* row = pxliMalloc_32fc_C4(0x08000001, 1, &step)) {
        row[size_t{0x08000001} * 4 - 1] = {1, 2};
        pxliFree(row);
    }
    EXPECT_EQ(step, 32); // of 2^32 + 32
}

TEST(ImageMemory, SizesBeyond64Bits) {
    int step = 0;
    EXPECT_EQ(pxliMalloc_32fc_C4(0x78000001, 0x40000001, &step), nullptr);
    EXPECT_EQ(step, 32);
    EXPECT_EQ(pxl::ownMallocLarge(INT64_MAX), nullptr);
}

// 3 rows of 3 GiB: the 32-bit product is positive, but the stored step would lead out of any block.
TEST(ImageMemory, NoRowsBeforeTheBlock) {
    int step = 0;
    EXPECT_EQ(pxliMalloc_32fc_C4(0x06000000, 3, &step), nullptr);
    EXPECT_EQ(step, -0x40000000);
}

TEST(ImageMemory, NoMemoryLeavesTheStep) {
    int step = 0;
    const FailingMalloc fail(1);
    EXPECT_EQ(pxliMalloc_8u_C1(33, 4, &step), nullptr);
    EXPECT_EQ(step, 64);
}

TEST(InternalAllocator, CountsAndAlignment) {
    using Allocate = void* (*)(int32_t);
    for (const Allocate allocate :
         {Allocate{pxl::ownMalloc}, Allocate{pxl::ownMalloc2}, Allocate{pxl::ownMalloc4}, Allocate{pxl::ownMalloc8}}) {
        EXPECT_EQ(allocate(0), nullptr);
        EXPECT_EQ(allocate(-5), nullptr);
        for (const int count : {1, 31, 32, 1000}) {
            void* block = allocate(count);
            ASSERT_NE(block, nullptr);
            EXPECT_TRUE(isAligned(block));
            pxl::ownFree(block);
        }
    }
    void* large = pxl::ownMalloc8(0x10000001); // 2 GiB and more are counted in 64 bits
    ASSERT_NE(large, nullptr);
    static_cast<char*>(large)[int64_t{0x10000001} * 8 - 1] = 1;
    pxliFree(large);
    pxliFree(nullptr);
}

TEST(Core, TeamSizeAndTexts) {
    const int before = pxlcoreGetNumThreads();
    EXPECT_GE(before, 1);
    EXPECT_EQ(pxlcoreSetNumThreads(3), PXL_OK);
    EXPECT_EQ(threads_omp_of_n_pxl, 3);
    for (const int refused : {0, -1, INT32_MIN, PXLCORE_MAX_THREADS + 1, INT32_MAX}) {
        EXPECT_EQ(pxlcoreSetNumThreads(refused), PXL_E_BAD_ARG);
        EXPECT_EQ(pxlcoreGetNumThreads(), 3);
    }
    EXPECT_EQ(pxlcoreSetNumThreads(PXLCORE_MAX_THREADS), PXL_OK);
    EXPECT_EQ(pxlcoreGetNumThreads(), 1024);
    EXPECT_EQ(pxlcoreSetNumThreads(before), PXL_OK);
    EXPECT_STREQ(pxlcoreGetStatusText(PXL_OK), "success");
    EXPECT_STRNE(pxlcoreGetStatusText(PXL_E_CHANNEL_ORDER), pxlcoreGetStatusText(-77777));
    EXPECT_STREQ(pxlcoreGetStatusText(1080), "unknown warning");
}

} // namespace
