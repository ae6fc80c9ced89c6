// What must hold for the reader of saved layouts, whatever the bytes are.
#pragma once

#include <cstddef>
#include <cstdint>

/// Reads the bytes and, when they are a layout, applies it; stops the program with a word when anything comes out
/// wrong. Returns whether the bytes were a layout.
bool CheckLayoutStream(const std::uint8_t* data, std::size_t size);
