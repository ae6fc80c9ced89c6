// Windows that show a million records of three items each: a name and two numbers.
#pragma once

#include <afxwin.h>

#include <cstdint>
#include <memory>
#include <vector>

/// The records, worked out from their number. Names and numbers come in no order.
namespace benchrecords {

constexpr int Count = 1'000'000;

/// A number for each record, none twice, mixed.
const std::vector<std::uint32_t>& Mixed();
CString NameOf(int record);
double NumberOf(int record);
double GroupOf(int record);

} // namespace benchrecords

/// A window on `benchrecords`. Every operation returns when its result is on the screen.
class RecordContender {
public:
    enum class Key { None, Number, Text };

    virtual ~RecordContender() = default;
    /// Makes all records, takes them over and shows them.
    virtual void Fill() = 0;
    /// Shows the records in increasing order of the key, or in the order in which they were made.
    virtual void Sort(Key key) = 0;
    /// Takes the records away.
    virtual void Clear() = 0;
    /// Bytes that the host keeps for the records in a vector; 0 for a grid, which keeps them itself.
    virtual double HostBytes() const { return 0; }
};

class CXTPReportControl;

/// A report grid with a record object for each record.
class RecordGrid : public RecordContender {
public:
    virtual CXTPReportControl& Grid() = 0;
};

std::unique_ptr<RecordGrid> MakeRecordGrid();
/// The system's list view, owner data; its host keeps the records in a vector.
std::unique_ptr<RecordContender> MakeRecordListView();
/// A window that draws the texts of the rows in view; its host keeps the records in a vector.
std::unique_ptr<RecordContender> MakeBareRecords();
