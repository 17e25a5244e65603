#include "core/heap_policy.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace {

// A block of a large table's size is taken from the heap, and freeing it keeps
// the heap for the next read instead of handing it back to the kernel.
TEST(HeapPolicy, LargeBlocksStayWithTheProcess) {
#if !defined(__GLIBC__) || defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the C library's own heap is not in use here";
#else
    zolt::KeepFreedHeapForReuse();
    const std::size_t mappedBefore = mallinfo2().hblkhd;
    constexpr std::size_t kBlock = 16u << 20;
    std::size_t heldHeap = 0;
    {
        auto block = std::make_unique<char[]>(kBlock);
        block[kBlock - 1] = 1;
        EXPECT_EQ(mallinfo2().hblkhd, mappedBefore);
        heldHeap = mallinfo2().arena;
        EXPECT_GE(heldHeap, kBlock);
    }
    EXPECT_EQ(mallinfo2().arena, heldHeap);
#endif
}

} // namespace
