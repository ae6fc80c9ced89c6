// StringLength.h - the length prefix of texts in archives: how it is written and read.
//
// A prefix is a mark FF FE FF when the characters are 16 bits wide, then the number of characters: one byte below 255;
// FF and a word below 0xFFFE; FF FFFF and a double word below 0xFFFFFFFF; FF FFFF FFFFFFFF and a quad word.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace stringlength {

enum class CharacterWidth { OneByte, TwoBytes };

/// The bytes of one prefix.
struct Prefix {
    std::array<std::uint8_t, 20> bytes{};
    std::size_t size = 0;
};

Prefix Encode(std::uint64_t length, CharacterWidth width);

/// Reads a prefix byte by byte.
class Decoder {
public:
    enum class State {
        Incomplete, ///< needs more bytes
        Complete,   ///< Length and Width are known
        Broken      ///< the mark stands twice
    };

    /// Takes the next byte. After Complete or Broken nothing more may be fed.
    State Feed(std::uint8_t byte);

    std::uint64_t Length() const { return m_value; }
    CharacterWidth Width() const { return m_width; }

private:
    enum class Field { Byte, Word, DoubleWord, QuadWord };

    State EndField();
    void BeginField(Field field);

    Field m_field = Field::Byte;
    unsigned m_bytesRead = 0;
    std::uint64_t m_value = 0;
    CharacterWidth m_width = CharacterWidth::OneByte;
};

} // namespace stringlength
