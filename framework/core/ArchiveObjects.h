// ArchiveObjects.h - how objects stand in archives: each class and each object once, later only by its number.
//
// An object is stored as a tag, and, at its first appearance, its class and what its Serialize writes. Tags are words:
// 0 is null; FFFF precedes a class that appears for the first time; 8000 | n is class number n; n is object number n;
// 7FFF precedes a double word for numbers from 7FFF on, whose topmost bit then marks a class. Classes and objects are
// numbered together from 1 in the order of their appearance.
#pragma once

#include "CArchive.h"

#include <unordered_map>
#include <vector>

/// The objects and classes that one archive has met.
class ArchiveObjects {
public:
    explicit ArchiveObjects(CArchive& archive) : m_archive(archive) {}

    void Write(const CObject* object);
    CObject* Read(const CRuntimeClass* expected);
    void Map(const CObject* object);

private:
    struct Entry {
        CObject* object = nullptr;
        CRuntimeClass* runtimeClass = nullptr;
        UINT schema = 0;
    };
    struct Tag {
        bool isClass;
        bool isNew;
        DWORD number;
    };

    void WriteClass(const CRuntimeClass* runtimeClass);
    Tag ReadTag();
    Entry ReadClass(const Tag& tag);
    CObject* ReadNewObject(const Entry& entry, const CRuntimeClass* expected);
    const Entry& EntryOf(DWORD number) const;
    DWORD NextNumber() const;
    void CheckSchema(const CRuntimeClass* runtimeClass, UINT stored) const;

    CArchive& m_archive;
    std::unordered_map<const void*, DWORD> m_stored; // storing: objects and classes
    std::vector<Entry> m_loaded;                     // loading: number 1 is the first entry
};
