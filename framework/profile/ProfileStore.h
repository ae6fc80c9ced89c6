// ProfileStore.h - where an application keeps its settings; private to the framework.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "../core/CString.h"

/// Settings in sections; a backslash in a section's name makes a sub-section. Reads give nothing when the entry is
/// absent or of another kind; writes say whether they succeeded.
class ProfileStore {
public:
    virtual ~ProfileStore() = default;

    virtual std::optional<UINT> ReadInt(LPCTSTR section, LPCTSTR entry) = 0;
    virtual std::optional<CString> ReadString(LPCTSTR section, LPCTSTR entry) = 0;
    virtual std::optional<std::vector<std::uint8_t>> ReadBytes(LPCTSTR section, LPCTSTR entry) = 0;
    virtual bool WriteInt(LPCTSTR section, LPCTSTR entry, int value) = 0;
    virtual bool WriteString(LPCTSTR section, LPCTSTR entry, LPCTSTR value) = 0;
    virtual bool WriteBytes(LPCTSTR section, LPCTSTR entry, const std::uint8_t* bytes, UINT count) = 0;
    virtual bool RemoveEntry(LPCTSTR section, LPCTSTR entry) = 0;
    /// The section's entries; sub-sections stay.
    virtual bool RemoveSection(LPCTSTR section) = 0;
};

/// Values of keys below `root`, a path below HKEY_CURRENT_USER.
std::unique_ptr<ProfileStore> MakeRegistryStore(CString root);
/// An INI file; a name without a folder is one in the Windows folder.
std::unique_ptr<ProfileStore> MakeIniStore(CString file);
