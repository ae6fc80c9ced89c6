// The layout of a report control as bytes, in the way of a host that keeps it.
#pragma once

#include <XTToolkitPro.h>

#include <vector>

inline std::vector<BYTE> SaveLayout(CXTPReportControl& control) {
    CMemFile file(1024);
    CArchive archive(&file, CArchive::store);
    control.SerializeState(archive);
    archive.Close();
    std::vector<BYTE> bytes(static_cast<std::size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

/// Reads the layout; the cause of the archive exception, or `none`.
inline int LoadLayout(CXTPReportControl& control, std::vector<BYTE> bytes) {
    CMemFile file;
    file.Attach(bytes.data(), static_cast<UINT>(bytes.size()));
    CArchive archive(&file, CArchive::load);
    int cause = CArchiveException::none;
    try {
        control.SerializeState(archive);
    } catch (CArchiveException* exception) {
        cause = exception->m_cause;
        exception->Delete();
    }
    archive.Abort();
    file.Detach();
    return cause;
}
