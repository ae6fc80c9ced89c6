// The slider of one column's target on a scale that the user types.
#pragma once

#include "plotcells/KyDragLineMinMaxRecordItem.h"
#include "window/TargetSlider.h"

/// The target of a column of numbers as a slider. Its scale begins as that from minimum to maximum; a click on one of
/// the ends edits it, and the grid decides about what was typed.
class ColumnScaleItem : public TargetSlider<KyDragLineMinMaxRecordItem> {
public:
    explicit ColumnScaleItem(const statistics::Summary& values);
};
