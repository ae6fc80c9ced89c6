// ArchiveObjects.cpp - see ArchiveObjects.h.
#include "core/ArchiveObjects.h"

namespace {

constexpr WORD nullTag = 0;
constexpr WORD newClassTag = 0xFFFF;
constexpr WORD classBit = 0x8000;
constexpr WORD bigTag = 0x7FFF;
constexpr DWORD bigClassBit = 0x80000000;
constexpr DWORD maximumNumber = 0x3FFFFFFE;
constexpr UINT notSerializable = 0xFFFF;

} // namespace

DWORD ArchiveObjects::NextNumber() const {
    const std::size_t count = m_archive.IsStoring() ? m_stored.size() : m_loaded.size();
    if (count >= maximumNumber)
        AfxThrowArchiveException(CArchiveException::badIndex, m_archive.m_strFileName);
    return static_cast<DWORD>(count + 1);
}

void ArchiveObjects::Map(const CObject* object) {
    if (m_archive.IsStoring())
        m_stored.emplace(object, NextNumber());
    else if (NextNumber() > 0)
        m_loaded.push_back({const_cast<CObject*>(object), nullptr, 0});
}

void ArchiveObjects::Write(const CObject* object) {
    if (!object) {
        m_archive << nullTag;
        return;
    }
    if (const auto known = m_stored.find(object); known != m_stored.end()) {
        if (known->second < bigTag)
            m_archive << static_cast<WORD>(known->second);
        else
            m_archive << bigTag << known->second;
        return;
    }
    WriteClass(object->GetRuntimeClass());
    m_stored.emplace(object, NextNumber());
    const_cast<CObject*>(object)->Serialize(m_archive);
}

void ArchiveObjects::WriteClass(const CRuntimeClass* runtimeClass) {
    if (runtimeClass->m_wSchema == notSerializable)
        AfxThrowNotSupportedException();
    if (const auto known = m_stored.find(runtimeClass); known != m_stored.end()) {
        if (known->second < bigTag)
            m_archive << static_cast<WORD>(classBit | known->second);
        else
            m_archive << bigTag << (bigClassBit | known->second);
        return;
    }
    m_archive << newClassTag;
    runtimeClass->Store(m_archive);
    m_stored.emplace(runtimeClass, NextNumber());
}

ArchiveObjects::Tag ArchiveObjects::ReadTag() {
    WORD word = 0;
    m_archive >> word;
    if (word == newClassTag)
        return {true, true, 0};
    if (word != bigTag)
        return {(word & classBit) != 0, false, static_cast<DWORD>(word & ~classBit)};
    DWORD doubleWord = 0;
    m_archive >> doubleWord;
    return {(doubleWord & bigClassBit) != 0, false, doubleWord & ~bigClassBit};
}

const ArchiveObjects::Entry& ArchiveObjects::EntryOf(DWORD number) const {
    if (number == 0 || number > m_loaded.size())
        AfxThrowArchiveException(CArchiveException::badIndex, m_archive.m_strFileName);
    return m_loaded[number - 1];
}

CObject* ArchiveObjects::Read(const CRuntimeClass* expected) {
    const Tag tag = ReadTag();
    if (tag.isClass)
        return ReadNewObject(ReadClass(tag), expected);
    if (tag.number == nullTag)
        return nullptr;
    CObject* known = EntryOf(tag.number).object;
    if (!known)
        AfxThrowArchiveException(CArchiveException::badIndex, m_archive.m_strFileName);
    if (expected && !known->IsKindOf(expected))
        AfxThrowArchiveException(CArchiveException::badClass, m_archive.m_strFileName);
    return known;
}

ArchiveObjects::Entry ArchiveObjects::ReadClass(const Tag& tag) {
    if (!tag.isNew) {
        const Entry& known = EntryOf(tag.number);
        if (!known.runtimeClass)
            AfxThrowArchiveException(CArchiveException::badIndex, m_archive.m_strFileName);
        return known;
    }
    Entry entry;
    NextNumber();
    entry.runtimeClass = CRuntimeClass::Load(m_archive, &entry.schema);
    if (!entry.runtimeClass || entry.runtimeClass->m_wSchema == notSerializable)
        AfxThrowArchiveException(CArchiveException::badClass, m_archive.m_strFileName);
    CheckSchema(entry.runtimeClass, entry.schema);
    m_loaded.push_back(entry);
    return entry;
}

void ArchiveObjects::CheckSchema(const CRuntimeClass* runtimeClass, UINT stored) const {
    const bool readsOlder = (runtimeClass->m_wSchema & VERSIONABLE_SCHEMA) != 0;
    if (!readsOlder && runtimeClass->m_wSchema != stored)
        AfxThrowArchiveException(CArchiveException::badSchema, m_archive.m_strFileName);
}

CObject* ArchiveObjects::ReadNewObject(const Entry& entry, const CRuntimeClass* expected) {
    if (expected && !entry.runtimeClass->IsDerivedFrom(expected))
        AfxThrowArchiveException(CArchiveException::badClass, m_archive.m_strFileName);
    NextNumber();
    std::unique_ptr<CObject> object(entry.runtimeClass->CreateObject());
    if (!object)
        AfxThrowMemoryException();
    const std::size_t index = m_loaded.size();
    m_loaded.push_back({object.get(), nullptr, 0});
    const UINT outerSchema = m_archive.m_objectSchema;
    m_archive.SetObjectSchema(entry.schema);
    try {
        object->Serialize(m_archive);
    } catch (...) {
        // The half-read object dies here, so that its number must lead nowhere.
        m_loaded[index].object = nullptr;
        throw;
    }
    m_archive.SetObjectSchema(outerSchema);
    return object.release();
}
