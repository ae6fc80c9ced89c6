/// @file
/// The skinned look of a report control, for looks of one's own to derive from.
#pragma once

#include "CXTPReportPaintManager.h"

/// A paint manager with the colours of xtpReportThemeResource whose header columns a derived class may draw in its own
/// way, with the header at hand. To be handed to `CXTPReportControl::SetPaintManager`.
/// @ingroup toolkit_report
class KY_TOOLKIT_API CXTPReportThemeResource : public CXTPReportPaintManager {
public:
    CXTPReportThemeResource();

    /// Passes on to the other `DrawColumnBackground` with the control's header.
    void DrawColumnBackground(CDC* pDC, CXTPReportColumn* pColumn, const CRect& rcColumn, BOOL bHot,
                              BOOL bPressed) override;
    /// One column's part of the header. The strip behind it is drawn already.
    /// @param pDC      where to draw
    /// @param pColumn  the column
    /// @param rcColumn its part of the header, the line under the header included; coordinates of `pDC`
    /// @param nHot     whether the column is under the pointer; an override may change it before it calls this one
    /// @param nPressed whether it is pressed; likewise
    /// @param pHeader  the header that the column stands in; null when it is drawn outside of one
    virtual void DrawColumnBackground(CDC* pDC, CXTPReportColumn* pColumn, CRect rcColumn, int& nHot, int& nPressed,
                                      CXTPReportHeader* pHeader);
};
