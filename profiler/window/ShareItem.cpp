// The cells of a column's share.
#include "window/ShareItem.h"

#include "common/MissingValue.h"
#include "statistics/DisplayText.h"
#include "window/WideText.h"

namespace {

constexpr wchar_t kDash[] = L"\u2013";

} // namespace

ShareItem::ShareItem() : KyReportRecordItemFloat(KyMissingValueF) {
    SetMissingRepresentation(kDash);
    SetEditable(FALSE);
}

void ShareItem::SetShare(std::optional<double> share) {
    SetValue(share ? *share * 100 : KyMissingValue);
    // With the few words for shares that are nearly none or nearly all.
    SetCaption(share ? FromUtf8(statistics::ShareText(share)) : CString());
    Judge();
}

void ShareItem::SetRequired(float percent) {
    m_lowerLimit = percent;
    Judge();
}

void ShareItem::Judge() {
    m_inRange = IsMissing(m_dValue) || m_lowerLimit == KyMissingValueF || m_dValue >= m_lowerLimit;
}

int ShareItem::Compare(CXTPReportColumn* column, CXTPReportRecordItem* item) {
    const auto* other = dynamic_cast<const ShareItem*>(item);
    if (other != nullptr && IsMissing(m_dValue) != IsMissing(other->m_dValue))
        return IsMissing(m_dValue) ? 1 : -1;
    return KyReportRecordItemFloat::Compare(column, item);
}

RequiredShareItem::RequiredShareItem(std::function<void(float percent)> changed)
    : KyReportRecordItemFloat(changed ? kUsual : KyMissingValueF), m_changed(std::move(changed)) {
    if (m_changed) {
        m_lowerLimit = 0;
        m_upperLimit = 100;
    }
    SetFormatString(L"%g %%");
    SetMissingRepresentation(kDash);
    SetEditable(m_changed != nullptr);
}

void RequiredShareItem::OnEditChanged(XTP_REPORTRECORDITEM_ARGS* args, const wchar_t* text) {
    KyReportRecordItemFloat::OnEditChanged(args, text);
    if (m_changed)
        m_changed(GetValue());
}
