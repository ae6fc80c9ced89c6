// A grid's saved layout: its form as bytes, and how it is applied to the columns a grid has now.
#include "LayoutStream.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <unordered_map>

namespace layoutstream {

namespace {

constexpr std::array<std::uint8_t, 4> Magic = {'K', 'Y', 'R', 'L'};

enum Tag : std::uint16_t { TagColumns = 1, TagSortOrder = 2, TagGroupsOrder = 3, TagDpi = 4, TagView = 5 };

constexpr std::uint8_t FlagVisible = 1;
constexpr std::uint8_t FlagIncreasing = 1;
constexpr std::uint8_t FlagGroupByShown = 1;

// --- Writing ---------------------------------------------------------------------------------------------------------

class Writer {
public:
    void U8(std::uint8_t value) { m_bytes.push_back(value); }
    void U16(std::uint16_t value) { Number(value, 2); }
    void U32(std::uint32_t value) { Number(value, 4); }
    void I32(int value) { U32(static_cast<std::uint32_t>(value)); }
    void Text(const std::u16string& text) {
        U32(static_cast<std::uint32_t>(text.size()));
        for (const char16_t unit : text)
            U16(unit);
    }
    /// Writes the size of `content` and then `content` itself.
    void Sized(const Writer& content) {
        U32(static_cast<std::uint32_t>(content.m_bytes.size()));
        m_bytes.insert(m_bytes.end(), content.m_bytes.begin(), content.m_bytes.end());
    }
    void Section(Tag tag, const Writer& content) {
        U16(tag);
        Sized(content);
    }
    std::vector<std::uint8_t> Take() { return std::move(m_bytes); }

private:
    void Number(std::uint32_t value, int bytes) {
        for (int i = 0; i < bytes; ++i)
            m_bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    }

    std::vector<std::uint8_t> m_bytes;
};

Writer WriteColumns(const std::vector<ReportLayout::Column>& columns) {
    Writer section;
    section.U32(static_cast<std::uint32_t>(columns.size()));
    for (const ReportLayout::Column& column : columns) {
        Writer record;
        record.Text(column.name);
        record.I32(column.itemIndex);
        record.I32(column.width);
        record.U8(column.visible ? FlagVisible : 0);
        section.Sized(record);
    }
    return section;
}

Writer WriteKeys(const std::vector<Key>& keys) {
    Writer section;
    section.U32(static_cast<std::uint32_t>(keys.size()));
    for (const Key& key : keys) {
        section.I32(key.column);
        section.U8(key.increasing ? FlagIncreasing : 0);
    }
    return section;
}

// --- Reading ---------------------------------------------------------------------------------------------------------

/// Reads forward through bytes. The first read beyond the end fails, and so do all that follow; they give zeros.
class Reader {
public:
    explicit Reader(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    bool HasFailed() const { return m_failed; }
    std::size_t Remaining() const { return m_bytes.size(); }

    std::span<const std::uint8_t> Bytes(std::size_t count) {
        if (m_failed || count > m_bytes.size()) {
            m_failed = true;
            m_bytes = {};
            return {};
        }
        const auto result = m_bytes.first(count);
        m_bytes = m_bytes.subspan(count);
        return result;
    }
    std::uint8_t U8() { return static_cast<std::uint8_t>(Number(1)); }
    std::uint16_t U16() { return static_cast<std::uint16_t>(Number(2)); }
    std::uint32_t U32() { return Number(4); }
    int I32() { return static_cast<int>(U32()); }
    std::u16string Text() {
        const std::uint32_t units = U32();
        if (units > Remaining() / 2) {
            Bytes(Remaining() + 1);
            return {};
        }
        std::u16string text(units, u'\0');
        for (char16_t& unit : text)
            unit = static_cast<char16_t>(U16());
        return text;
    }
    Reader Sized() { return Reader(Bytes(U32())); }

private:
    std::uint32_t Number(std::size_t size) {
        std::uint32_t value = 0;
        const auto bytes = Bytes(size);
        for (std::size_t i = 0; i < bytes.size(); ++i)
            value |= static_cast<std::uint32_t>(bytes[i]) << (8 * i);
        return value;
    }

    std::span<const std::uint8_t> m_bytes;
    bool m_failed = false;
};

std::optional<std::vector<ReportLayout::Column>> ReadColumns(Reader section) {
    constexpr std::size_t smallestRecord = 4 + 4 + 4 + 4 + 1; // with its size and an empty name
    const std::uint32_t count = section.U32();
    if (section.HasFailed() || count > section.Remaining() / smallestRecord)
        return std::nullopt;
    std::vector<ReportLayout::Column> columns(count);
    for (ReportLayout::Column& column : columns) {
        Reader record = section.Sized();
        column.name = record.Text();
        column.itemIndex = record.I32();
        column.width = record.I32();
        column.visible = (record.U8() & FlagVisible) != 0;
        if (section.HasFailed() || record.HasFailed())
            return std::nullopt;
    }
    return columns;
}

std::optional<std::vector<Key>> ReadKeys(Reader section) {
    constexpr std::size_t keySize = 4 + 1;
    const std::uint32_t count = section.U32();
    if (section.HasFailed() || count > section.Remaining() / keySize)
        return std::nullopt;
    std::vector<Key> keys(count);
    for (Key& key : keys) {
        key.column = section.I32();
        key.increasing = (section.U8() & FlagIncreasing) != 0;
    }
    return keys;
}

bool KeysMeanColumns(const std::vector<Key>& keys, std::size_t columnCount) {
    return std::all_of(keys.begin(), keys.end(), [columnCount](const Key& key) {
        return key.column >= 0 && static_cast<std::size_t>(key.column) < columnCount;
    });
}

// --- Applying --------------------------------------------------------------------------------------------------------

/// For every saved column the live column that it means, or -1.
class Matcher {
public:
    Matcher(const ReportLayout& saved, const std::vector<LiveColumn>& live)
        : m_live(live), m_taken(live.size(), false), m_liveOfSaved(saved.columns.size(), -1) {
        for (int i = 0; i < static_cast<int>(live.size()); ++i)
            m_liveByName[live[i].name].push_back(i);
        Match(saved, Rule::NameAndItem);
        Match(saved, Rule::NameAlone);
    }

    int LiveOf(int savedColumn) const { return m_liveOfSaved[savedColumn]; }
    bool IsTaken(int liveColumn) const { return m_taken[liveColumn]; }

private:
    enum class Rule { NameAndItem, NameAlone };

    void Match(const ReportLayout& saved, Rule rule) {
        for (std::size_t i = 0; i < saved.columns.size(); ++i) {
            const ReportLayout::Column& column = saved.columns[i];
            // The item index is all the identity that a column without a name has.
            if (m_liveOfSaved[i] >= 0 || (rule == Rule::NameAlone && column.name.empty()))
                continue;
            const auto candidates = m_liveByName.find(column.name);
            if (candidates == m_liveByName.end())
                continue;
            for (const int candidate : candidates->second) {
                if (m_taken[candidate] ||
                    (rule == Rule::NameAndItem && m_live[candidate].itemIndex != column.itemIndex))
                    continue;
                m_taken[candidate] = true;
                m_liveOfSaved[i] = candidate;
                break;
            }
        }
    }

    const std::vector<LiveColumn>& m_live;
    std::vector<bool> m_taken;
    std::vector<int> m_liveOfSaved;
    std::unordered_map<std::u16string, std::vector<int>> m_liveByName;
};

int ClampWidth(int width, const LiveColumn& column) {
    return std::max(std::min(width, column.maxWidth), column.minWidth);
}

std::vector<Key> TranslateKeys(const std::vector<Key>& saved, const Matcher& matcher, std::size_t liveCount) {
    std::vector<Key> keys;
    std::vector<bool> used(liveCount, false);
    for (const Key& key : saved) {
        const int column = matcher.LiveOf(key.column);
        if (column < 0 || used[column])
            continue;
        used[column] = true;
        keys.push_back({column, key.increasing});
    }
    return keys;
}

} // namespace

std::vector<std::uint8_t> Encode(const ReportLayout& layout) {
    Writer payload;
    payload.Section(TagColumns, WriteColumns(layout.columns));
    payload.Section(TagSortOrder, WriteKeys(layout.sortOrder));
    payload.Section(TagGroupsOrder, WriteKeys(layout.groupsOrder));
    if (layout.dpi > 0) {
        Writer dpi;
        dpi.I32(layout.dpi);
        payload.Section(TagDpi, dpi);
    }
    if (layout.view) {
        Writer view;
        view.I32(layout.view->frozenColumns);
        view.U8(layout.view->isGroupByShown ? FlagGroupByShown : 0);
        payload.Section(TagView, view);
    }

    Writer stream;
    for (const std::uint8_t byte : Magic)
        stream.U8(byte);
    stream.U16(Version);
    stream.Sized(payload);
    return stream.Take();
}

Header DecodeHeader(std::span<const std::uint8_t> bytes) {
    const std::size_t common = std::min(bytes.size(), Magic.size());
    if (!std::equal(bytes.begin(), bytes.begin() + common, Magic.begin()))
        return {Status::Broken};
    if (bytes.size() < HeaderSize)
        return {Status::Truncated};
    Reader reader(bytes.subspan(Magic.size()));
    if (reader.U16() != Version)
        return {Status::OtherVersion};
    const std::uint32_t payloadSize = reader.U32();
    if (payloadSize > MaxPayloadSize)
        return {Status::Broken};
    return {Status::Ok, payloadSize};
}

Decoded DecodePayload(std::span<const std::uint8_t> payload) {
    ReportLayout layout;
    bool hasColumns = false;
    Reader reader(payload);
    while (reader.Remaining() > 0) {
        const std::uint16_t tag = reader.U16();
        Reader section = reader.Sized();
        if (reader.HasFailed())
            return {Status::Broken, {}};
        if (tag == TagColumns) {
            auto columns = ReadColumns(section);
            if (!columns)
                return {Status::Broken, {}};
            layout.columns = std::move(*columns);
            hasColumns = true;
        } else if (tag == TagSortOrder || tag == TagGroupsOrder) {
            auto keys = ReadKeys(section);
            if (!keys)
                return {Status::Broken, {}};
            (tag == TagSortOrder ? layout.sortOrder : layout.groupsOrder) = std::move(*keys);
        } else if (tag == TagDpi) {
            layout.dpi = section.I32();
            if (section.HasFailed() || layout.dpi < 1 || layout.dpi > MaxDpi)
                return {Status::Broken, {}};
        } else if (tag == TagView) {
            ReportLayout::View view;
            view.frozenColumns = section.I32();
            view.isGroupByShown = (section.U8() & FlagGroupByShown) != 0;
            if (section.HasFailed() || view.frozenColumns < 0)
                return {Status::Broken, {}};
            layout.view = view;
        }
    }
    if (!hasColumns || !KeysMeanColumns(layout.sortOrder, layout.columns.size()) ||
        !KeysMeanColumns(layout.groupsOrder, layout.columns.size()))
        return {Status::Broken, {}};
    return {Status::Ok, std::move(layout)};
}

Decoded Decode(std::span<const std::uint8_t> bytes) {
    const Header header = DecodeHeader(bytes);
    if (header.status != Status::Ok)
        return {header.status, {}};
    if (bytes.size() - HeaderSize < header.payloadSize)
        return {Status::Truncated, {}};
    return DecodePayload(bytes.subspan(HeaderSize, header.payloadSize));
}

Plan ApplyLayout(const ReportLayout& saved, const std::vector<LiveColumn>& live, int dpi) {
    const Matcher matcher(saved, live);
    const auto isVisible = [](const auto& column) { return column.visible; };
    const bool showedColumns = std::any_of(saved.columns.begin(), saved.columns.end(), isVisible);

    Plan plan;
    plan.columns.reserve(live.size());
    for (int i = 0; i < static_cast<int>(saved.columns.size()); ++i) {
        const int column = matcher.LiveOf(i);
        if (column >= 0)
            plan.columns.push_back({column,
                                    ClampWidth(DpiLength{saved.columns[i].width, saved.dpi}.At(dpi), live[column]),
                                    saved.columns[i].visible});
    }
    for (int i = 0; i < static_cast<int>(live.size()); ++i)
        if (!matcher.IsTaken(i))
            plan.columns.push_back({i, ClampWidth(live[i].width, live[i]), live[i].visible});
    if (showedColumns && std::none_of(plan.columns.begin(), plan.columns.end(), isVisible))
        for (Plan::Column& column : plan.columns)
            column.visible = live[column.column].visible;

    plan.sortOrder = TranslateKeys(saved.sortOrder, matcher, live.size());
    plan.groupsOrder = TranslateKeys(saved.groupsOrder, matcher, live.size());
    return plan;
}

} // namespace layoutstream
