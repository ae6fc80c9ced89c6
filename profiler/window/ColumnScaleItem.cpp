// The slider of one column's target on a scale that the user types.
#include "window/ColumnScaleItem.h"

#include "common/Translation.h"

ColumnScaleItem::ColumnScaleItem(const statistics::Summary& values) : TargetSlider(values) {
    SetSliderTooltip(Translate("Drag the target"));
    SetMinimumTooltip(Translate("Click to type the left end of the scale"));
    SetMaximumTooltip(Translate("Click to type the right end of the scale"));
}
