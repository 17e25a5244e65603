// The image reader over arbitrary bytes: it must never crash, and what it
// accepts must write out to bytes that read back and write the same again.
#include "compile/program_image.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto read = zolt::compile::ReadImage(std::span(data, size));
    if (!read.image)
        return 0;
    const auto once = zolt::compile::WriteImage(*read.image);
    const auto again = zolt::compile::ReadImage(once);
    if (!again.image || zolt::compile::WriteImage(*again.image) != once)
        std::abort();
    return 0;
}
