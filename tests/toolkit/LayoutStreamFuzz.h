// The entry through which a fuzzer, or the mutation test, feeds bytes to the reader of saved layouts.
#pragma once

#include <cstddef>
#include <cstdint>

/// Reads the bytes and, when they are a layout, applies it; stops the program when anything comes out wrong. The name
/// is the one that libFuzzer calls. Returns 1 when the bytes were a layout (a fuzzer looks only for negative values).
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
