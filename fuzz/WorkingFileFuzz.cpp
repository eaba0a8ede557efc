// A working file of any bytes. What is read can be written again and reads the same.

#include "companion/BmpFile.h"

#include <cstdint>
#include <cstdlib>

using namespace vypx;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::optional<Picture> picture = DecodeBmp(std::span(data, size));
    if (picture && DecodeBmp(EncodeBmp24(*picture)) != picture)
        std::abort();
    return 0;
}
