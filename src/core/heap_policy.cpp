#include "core/heap_policy.h"

#include <cstdlib> // defines __GLIBC__ where glibc is the C library

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace zolt {

void KeepFreedHeapForReuse() {
#if defined(__GLIBC__)
    // Blocks up to 32 MiB (glibc's largest mmap threshold) come from the heap,
    // and up to 256 MiB of free heap stays with the process.
    mallopt(M_MMAP_THRESHOLD, 32 * 1024 * 1024);
    mallopt(M_TRIM_THRESHOLD, 256 * 1024 * 1024);
#endif
}

} // namespace zolt
