// The application object of the toolkit's tests, and what many of them need.
#pragma once

#include <XTToolkitPro.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

/// The text of the item that the control shows in each row, from the top.
std::vector<std::wstring> RowTexts(const CXTPReportControl& control, int itemIndex = 0);

/// Adds a record of text items and returns it.
CXTPReportRecord* AddTexts(CXTPReportControl& control, std::initializer_list<const wchar_t*> texts);
/// Adds a record of number items ("%g") and returns it.
CXTPReportRecord* AddNumbers(CXTPReportControl& control, std::initializer_list<double> numbers);

/// The selected rows' indices, from the top.
std::vector<int> SelectedIndices(const CXTPReportControl& control);

/// A report control without a window; what needs none must work without one. Two columns, "A" and "B", for items 0
/// and 1.
class ReportModelTest : public ::testing::Test {
protected:
    ReportModelTest();

    CXTPReportControl m_control;
    CXTPReportColumn* m_columnA;
    CXTPReportColumn* m_columnB;
};
