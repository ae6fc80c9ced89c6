// RegistryStore.cpp - settings as values in the registry.
#include <afxwin.h>

#include "ProfileStore.h"

namespace {

/// Closes a registry key at the end of its scope.
class Key {
public:
    Key(const CString& path, REGSAM access) { ::RegOpenKeyEx(HKEY_CURRENT_USER, path, 0, access, &m_key); }
    ~Key() {
        if (m_key != nullptr)
            ::RegCloseKey(m_key);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    explicit operator bool() const { return m_key != nullptr; }
    operator HKEY() const { return m_key; }

private:
    HKEY m_key = nullptr;
};

class RegistryStore : public ProfileStore {
public:
    explicit RegistryStore(CString root) : m_root(std::move(root)) {}

    std::optional<UINT> ReadInt(LPCTSTR section, LPCTSTR entry) override {
        const auto bytes = Read(section, entry, REG_DWORD);
        if (!bytes || bytes->size() != sizeof(DWORD))
            return std::nullopt;
        DWORD value = 0;
        memcpy(&value, bytes->data(), sizeof(value));
        return value;
    }

    std::optional<CString> ReadString(LPCTSTR section, LPCTSTR entry) override {
        const auto bytes = Read(section, entry, REG_SZ);
        if (!bytes)
            return std::nullopt;
        // Whether a stored text ends with a terminator is its writer's choice.
        const auto* const text = reinterpret_cast<LPCTSTR>(bytes->data());
        int length = static_cast<int>(bytes->size() / sizeof(TCHAR));
        while (length > 0 && text[length - 1] == _T('\0'))
            --length;
        return CString(text, length);
    }

    std::optional<std::vector<std::uint8_t>> ReadBytes(LPCTSTR section, LPCTSTR entry) override {
        return Read(section, entry, REG_BINARY);
    }

    bool WriteInt(LPCTSTR section, LPCTSTR entry, int value) override {
        return Write(section, entry, REG_DWORD, &value, sizeof(value));
    }

    bool WriteString(LPCTSTR section, LPCTSTR entry, LPCTSTR value) override {
        return Write(section, entry, REG_SZ, value, (_tcslen(value) + 1) * sizeof(TCHAR));
    }

    bool WriteBytes(LPCTSTR section, LPCTSTR entry, const std::uint8_t* bytes, UINT count) override {
        return Write(section, entry, REG_BINARY, bytes, count);
    }

    bool RemoveEntry(LPCTSTR section, LPCTSTR entry) override {
        const Key key(PathOf(section), KEY_SET_VALUE);
        if (!key)
            return true;
        const LSTATUS status = ::RegDeleteValue(key, entry);
        return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
    }

    bool RemoveSection(LPCTSTR section) override {
        {
            const Key key(PathOf(section), KEY_QUERY_VALUE | KEY_SET_VALUE);
            if (!key)
                return true;
            TCHAR name[16384];
            DWORD length = 16384;
            while (::RegEnumValue(key, 0, name, &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS) {
                if (::RegDeleteValue(key, name) != ERROR_SUCCESS)
                    return false;
                length = 16384;
            }
        }
        ::RegDeleteKey(HKEY_CURRENT_USER, PathOf(section)); // which refuses while there are sub-sections
        return true;
    }

private:
    CString PathOf(LPCTSTR section) const { return m_root + _T('\\') + section; }

    std::optional<std::vector<std::uint8_t>> Read(LPCTSTR section, LPCTSTR entry, DWORD wantedType) const {
        const Key key(PathOf(section), KEY_QUERY_VALUE);
        DWORD type = 0;
        DWORD size = 0;
        if (!key || ::RegQueryValueEx(key, entry, nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
            type != wantedType)
            return std::nullopt;
        std::vector<std::uint8_t> bytes(size);
        if (::RegQueryValueEx(key, entry, nullptr, &type, bytes.data(), &size) != ERROR_SUCCESS || type != wantedType)
            return std::nullopt;
        bytes.resize(size);
        return bytes;
    }

    bool Write(LPCTSTR section, LPCTSTR entry, DWORD type, const void* data, std::size_t size) const {
        HKEY key = nullptr;
        if (::RegCreateKeyEx(HKEY_CURRENT_USER, PathOf(section), 0, nullptr, 0, KEY_SET_VALUE, nullptr, &key,
                             nullptr) != ERROR_SUCCESS)
            return false;
        const LSTATUS status =
            ::RegSetValueEx(key, entry, 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size));
        ::RegCloseKey(key);
        return status == ERROR_SUCCESS;
    }

    CString m_root;
};

} // namespace

std::unique_ptr<ProfileStore> MakeRegistryStore(CString root) {
    return std::make_unique<RegistryStore>(std::move(root));
}
