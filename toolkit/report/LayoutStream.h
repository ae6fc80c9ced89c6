// A grid's saved layout: its form as bytes, and how it is applied to the columns a grid has now. No window needed.
//
// The stream, all numbers little-endian:
//   "KYRL", u16 version, u32 size of the rest;
//   then sections, each u16 tag, u32 size, content. A reader skips the tags that it does not know.
//   Tag 1, columns from left to right: u32 count, then per column u32 size of its record and the record: u32 units of
//     the internal name, the name in UTF-16, i32 item index, i32 width, u8 flags (bit 0: visible). Fields that a later
//     version appends to the record are skipped.
//   Tag 2, sort order, and tag 3, grouping, most significant first: u32 count, then per key u32 index of the column in
//     section 1 and u8 direction (bit 0: increasing).
//   Tag 4, resolution: u32 dots per inch for which the widths are given. Streams without it have widths for whatever
//     resolution they are read at.
//   Tag 5, view: u32 number of frozen columns, at most 2^31 - 1, u8 flags (bit 0: the group-by box is shown). Streams
//     without it leave both as they are.
#pragma once

#include "DpiLength.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace layoutstream {

/// The version that this code writes and the only one it reads. It changes when an old reader must not go on.
constexpr std::uint16_t Version = 1;
constexpr std::size_t HeaderSize = 10;
/// A larger stream is refused before memory is taken for it.
constexpr std::uint32_t MaxPayloadSize = 16U * 1024 * 1024;

/// A column to sort or group by.
struct Key {
    int column = 0; ///< index into the list of columns that goes with it
    bool increasing = true;
    bool operator==(const Key&) const = default;
};

/// A layout as it was saved.
struct ReportLayout {
    struct Column {
        std::u16string name; ///< the internal name: a column's identity
        int itemIndex = 0;   ///< tells columns of one name apart; the identity of columns without a name
        int width = 0;       ///< pixels at `dpi`
        bool visible = true;
        bool operator==(const Column&) const = default;
    };
    std::vector<Column> columns; ///< from left to right: the order is the sequence
    std::vector<Key> sortOrder;
    std::vector<Key> groupsOrder;
    int dpi = 0; ///< dots per inch, at most MaxDpi; 0: not known
    struct View {
        int frozenColumns = 0;
        bool isGroupByShown = false;
        bool operator==(const View&) const = default;
    };
    std::optional<View> view = std::nullopt; ///< none: the grid keeps what it has
    bool operator==(const ReportLayout&) const = default;
};

enum class Status {
    Ok,
    Truncated,    ///< the bytes end before the stream does
    OtherVersion, ///< a layout that another version wrote
    Broken        ///< not a layout, or one that contradicts itself
};

/// What the fixed part at the begin of a stream says.
struct Header {
    Status status = Status::Broken;
    std::uint32_t payloadSize = 0; ///< bytes that follow the header
};

struct Decoded {
    Status status = Status::Broken;
    ReportLayout layout; ///< empty unless the status is Ok
};

/// Header and payload as one stream.
std::vector<std::uint8_t> Encode(const ReportLayout& layout);

Header DecodeHeader(std::span<const std::uint8_t> bytes);
/// Reads what follows the header. Whatever the bytes are, memory is taken in proportion to them only.
Decoded DecodePayload(std::span<const std::uint8_t> payload);
/// Reads a whole stream; bytes behind its end are left alone.
Decoded Decode(std::span<const std::uint8_t> bytes);

/// A column of the grid that a layout is applied to.
struct LiveColumn {
    std::u16string name;
    int itemIndex = 0;
    int width = 0;
    int minWidth = 0;
    int maxWidth = 0;
    bool visible = true;
};

/// What to do with the live columns; every index is one of theirs.
struct Plan {
    struct Column {
        int column = 0;
        int width = 0;
        bool visible = true;
        bool operator==(const Column&) const = default;
    };
    std::vector<Column> columns; ///< from left to right, every live column exactly once
    std::vector<Key> sortOrder;  ///< no column twice
    std::vector<Key> groupsOrder;
};

/// Works out how `saved` applies to `live`. Columns are matched by name and item index, then by name alone, so that a
/// column keeps its layout when the record behind it was rearranged. Saved columns that are gone are dropped, with
/// their sort and group keys; live columns that the layout does not know keep their state and follow the others. Widths
/// are brought within each column's limits. A layout that was saved with every column hidden is restored so. But when
/// it showed columns and none of them exists any more, every column keeps its present visibility, so that a new set of
/// columns never comes up as an empty grid.
/// @param dpi  the resolution for which live columns have their widths; saved ones are scaled to it. 0: not known
Plan ApplyLayout(const ReportLayout& saved, const std::vector<LiveColumn>& live, int dpi = 0);

} // namespace layoutstream
