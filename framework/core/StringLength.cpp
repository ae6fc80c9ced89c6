// StringLength.cpp - see StringLength.h.
#include "StringLength.h"

namespace stringlength {

namespace {

constexpr std::uint64_t escapeByte = 0xFF;
constexpr std::uint64_t wideMark = 0xFFFE;
constexpr std::uint64_t escapeWord = 0xFFFF;
constexpr std::uint64_t escapeDoubleWord = 0xFFFFFFFF;

void AppendLittleEndian(Prefix& prefix, std::uint64_t value, unsigned byteCount) {
    for (unsigned i = 0; i < byteCount; ++i)
        prefix.bytes[prefix.size++] = static_cast<std::uint8_t>(value >> (8 * i));
}

} // namespace

Prefix Encode(std::uint64_t length, CharacterWidth width) {
    Prefix prefix;
    if (width == CharacterWidth::TwoBytes) {
        AppendLittleEndian(prefix, escapeByte, 1);
        AppendLittleEndian(prefix, wideMark, 2);
    }
    if (length < escapeByte) {
        AppendLittleEndian(prefix, length, 1);
        return prefix;
    }
    AppendLittleEndian(prefix, escapeByte, 1);
    if (length < wideMark) {
        AppendLittleEndian(prefix, length, 2);
        return prefix;
    }
    AppendLittleEndian(prefix, escapeWord, 2);
    if (length < escapeDoubleWord) {
        AppendLittleEndian(prefix, length, 4);
        return prefix;
    }
    AppendLittleEndian(prefix, escapeDoubleWord, 4);
    AppendLittleEndian(prefix, length, 8);
    return prefix;
}

Decoder::State Decoder::Feed(std::uint8_t byte) {
    static constexpr unsigned fieldSizes[] = {1, 2, 4, 8};
    m_value |= static_cast<std::uint64_t>(byte) << (8 * m_bytesRead);
    ++m_bytesRead;
    return m_bytesRead < fieldSizes[static_cast<std::size_t>(m_field)] ? State::Incomplete : EndField();
}

Decoder::State Decoder::EndField() {
    switch (m_field) {
    case Field::Byte:
        if (m_value < escapeByte)
            return State::Complete;
        BeginField(Field::Word);
        return State::Incomplete;
    case Field::Word:
        if (m_value < wideMark)
            return State::Complete;
        if (m_value == escapeWord) {
            BeginField(Field::DoubleWord);
            return State::Incomplete;
        }
        if (m_width == CharacterWidth::TwoBytes)
            return State::Broken;
        m_width = CharacterWidth::TwoBytes;
        BeginField(Field::Byte);
        return State::Incomplete;
    case Field::DoubleWord:
        if (m_value < escapeDoubleWord)
            return State::Complete;
        BeginField(Field::QuadWord);
        return State::Incomplete;
    case Field::QuadWord:
        break;
    }
    return State::Complete;
}

void Decoder::BeginField(Field field) {
    m_field = field;
    m_bytesRead = 0;
    m_value = 0;
}

} // namespace stringlength
