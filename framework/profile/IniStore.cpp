// IniStore.cpp - settings as lines of an INI file.
#include <afxwin.h>

#include "ProfileStore.h"
#include "ProfileText.h"

namespace {

class IniStore : public ProfileStore {
public:
    explicit IniStore(CString file) : m_file(std::move(file)) {}

    std::optional<UINT> ReadInt(LPCTSTR section, LPCTSTR entry) override {
        if (!ReadString(section, entry))
            return std::nullopt;
        return ::GetPrivateProfileInt(section, entry, 0, m_file);
    }

    std::optional<CString> ReadString(LPCTSTR section, LPCTSTR entry) override {
        // A default that no line of a file can give tells an absent entry from an empty one.
        static constexpr TCHAR absent[] = _T("\n");
        std::vector<TCHAR> text(1024);
        for (;;) {
            const auto capacity = static_cast<DWORD>(text.size());
            const DWORD length = ::GetPrivateProfileString(section, entry, absent, text.data(), capacity, m_file);
            if (length < capacity - 1) {
                const CString read(text.data(), static_cast<int>(length));
                return read == absent ? std::nullopt : std::optional<CString>(read);
            }
            text.resize(text.size() * 4); // it was cut off
        }
    }

    std::optional<std::vector<std::uint8_t>> ReadBytes(LPCTSTR section, LPCTSTR entry) override {
        const auto text = ReadString(section, entry);
        if (!text)
            return std::nullopt;
        return profiletext::DecodeBytes({text->GetString(), static_cast<std::size_t>(text->GetLength())});
    }

    bool WriteInt(LPCTSTR section, LPCTSTR entry, int value) override {
        CString text;
        text.Format(_T("%d"), value);
        return Write(section, entry, text);
    }

    bool WriteString(LPCTSTR section, LPCTSTR entry, LPCTSTR value) override { return Write(section, entry, value); }

    bool WriteBytes(LPCTSTR section, LPCTSTR entry, const std::uint8_t* bytes, UINT count) override {
        return Write(section, entry, profiletext::EncodeBytes(bytes, count).c_str());
    }

    bool RemoveEntry(LPCTSTR section, LPCTSTR entry) override { return Write(section, entry, nullptr); }
    bool RemoveSection(LPCTSTR section) override { return Write(section, nullptr, nullptr); }

private:
    bool Write(LPCTSTR section, LPCTSTR entry, LPCTSTR value) const {
        return ::WritePrivateProfileString(section, entry, value, m_file) != FALSE;
    }

    CString m_file;
};

} // namespace

std::unique_ptr<ProfileStore> MakeIniStore(CString file) { return std::make_unique<IniStore>(std::move(file)); }
