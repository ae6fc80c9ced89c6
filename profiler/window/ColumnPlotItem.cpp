// The plot of one column of numbers.
#include "window/ColumnPlotItem.h"

bool ColumnPlotItem::CanShow(const statistics::Summary& numbers) {
    return numbers.count > 0 && PlotValue(numbers.minimum) < PlotValue(numbers.maximum);
}

statistics::Limits ColumnPlotItem::InitialLimits(const statistics::Summary& numbers) {
    const double deviation = numbers.standardDeviation.value_or(0);
    return {numbers.mean - deviation, numbers.median, numbers.mean + deviation};
}

ColumnPlotItem::ColumnPlotItem(const statistics::Summary& numbers) {
    const statistics::Limits limits = InitialLimits(numbers);
    SetError(PlotValue(limits.target), PlotValue(numbers.minimum), PlotValue(numbers.maximum), PlotValue(limits.lower),
             PlotValue(limits.upper), PlotValue(numbers.quantile5), PlotValue(numbers.quantile95), KyMissingValueF,
             KyMissingValueF);
    // Free ends: mean and median differ, so a bar kept symmetric about the median would jump.
    SetDistribution(DistributionTarget, true);
    // Light enough for the black whisker on it, dark enough for the bar's ends to be found with the mouse.
    SetColors(RGB(38, 84, 168), RGB(168, 200, 240));
}
