#include "drawing_fuzz.h"
#include "interchange/from_to_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return zolt::fuzz::FuzzDrawing(zolt::interchange::ReadFromToList, data, size);
}
