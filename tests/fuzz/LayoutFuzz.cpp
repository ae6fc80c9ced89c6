// Feeds bytes to the reader of saved layouts.
#include "../toolkit/LayoutStreamCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CheckLayoutStream(data, size);
    return 0;
}
