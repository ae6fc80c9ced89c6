// What a plot cell does not tell its host: where its marks are, and which is being dragged.
#pragma once

#include "plotcells/KyPlotRecordItem.h"

namespace plotpeek {

class Peek : public KyPlotRecordItem {
public:
    static double Mark(const KyPlotRecordItem& item, int mark) {
        const double lower = item.*(&Peek::m_lower), upper = item.*(&Peek::m_upper), target = item.*(&Peek::m_target);
        return mark == 0 ? lower : mark == 1 ? upper : target;
    }
    static double Margin(const KyPlotRecordItem& item) { return item.*(&Peek::m_margin); }
    static int Drags(const KyPlotRecordItem& item) {
        return item.*(&Peek::m_draggingLower) + item.*(&Peek::m_draggingUpper) + item.*(&Peek::m_draggingCenter);
    }
};

/// Where the lower (0), the upper (1) or the target mark (2) is drawn, as a fraction of the cell's width.
inline double FractionOfMark(const KyPlotRecordItem& item, int mark) {
    const double width = item.GetMax() - item.GetMin();
    const double margin = Peek::Margin(item);
    const double fraction =
        width > 0 ? (Peek::Mark(item, mark) - item.GetMin()) / width * (1 - 2 * margin) + margin : 0;
    return fraction > -1 && fraction < 2 ? fraction : 0.5;
}

/// How many of its marks the cell holds for dragged.
inline int Drags(const KyPlotRecordItem& item) { return Peek::Drags(item); }

} // namespace plotpeek
