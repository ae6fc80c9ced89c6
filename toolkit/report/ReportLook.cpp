// The looks of a report control as data.
#include "ReportLook.h"

#include <algorithm>
#include <iterator>

namespace reportlook {

namespace {

constexpr LookColor Rgb(int hex) { return LookColor::Rgb(hex); }
constexpr LookColor Sys(int index) { return LookColor::System(index); }
constexpr LookColor Between(int from, int to, int percent) { return LookColor::Between(from, to, percent); }
constexpr LookColor None = LookColor::None();

// --- Headers; the order is that of Role from Header on, dark before light --------------------------------------------

constexpr ColumnLook ColumnLooks[] = {
    {xtpReportColumnShaded, HeaderEdge::Raised, HeaderFill::Gradient, ArrowShape::Etched, ArrowPlace::BesideCaption,
     /*arrowHeight*/ 8, /*dividerMargin*/ 0, /*pressedOffset*/ 1,
     HeaderColors{Sys(COLOR_BTNFACE), Sys(COLOR_BTNFACE),                             // idle
                  Sys(COLOR_BTNFACE), Sys(COLOR_BTNFACE),                             // sorted
                  Sys(COLOR_BTNFACE), Between(COLOR_BTNFACE, COLOR_BTNHIGHLIGHT, 60), // hot
                  Sys(COLOR_BTNFACE), Sys(COLOR_BTNFACE),                             // pressed
                  Sys(COLOR_BTNSHADOW), Sys(COLOR_BTNHIGHLIGHT),                      // divider
                  None, Sys(COLOR_3DDKSHADOW),                                        // frame, line
                  Sys(COLOR_BTNTEXT), Sys(COLOR_BTNSHADOW)}},                         // text, arrow
    {xtpReportColumnFlat, HeaderEdge::Boxed, HeaderFill::Gradient, ArrowShape::Filled, ArrowPlace::BesideCaption, 4, 0,
     0,
     HeaderColors{Sys(COLOR_BTNFACE), Sys(COLOR_BTNFACE),                            //
                  Between(COLOR_BTNFACE, COLOR_BTNSHADOW, 18),                       //
                  Between(COLOR_BTNFACE, COLOR_BTNSHADOW, 18),                       //
                  Rgb(0xC1D2EE), Rgb(0xC1D2EE),                                      //
                  Rgb(0x98B5E2), Rgb(0x98B5E2),                                      //
                  Sys(COLOR_BTNSHADOW), None,                                        //
                  Rgb(0x316AC5), Sys(COLOR_BTNSHADOW),                               //
                  Sys(COLOR_BTNTEXT), Between(COLOR_BTNSHADOW, COLOR_BTNTEXT, 40)}}, //
    {xtpReportColumnExplorer, HeaderEdge::Thin, HeaderFill::Glass, ArrowShape::Filled, ArrowPlace::AboveCaption, 4, 0,
     0,
     HeaderColors{Rgb(0xF3F5F8), Rgb(0xFFFFFF),   //
                  Rgb(0xDDEFF9), Rgb(0xF2F9FC),   //
                  Rgb(0xBDE8FC), Rgb(0xE3F6FE),   //
                  Rgb(0x97D9F6), Rgb(0xC4E7F8),   //
                  Rgb(0xDFE4EA), None,            //
                  Rgb(0x7FB9DA), Rgb(0xCFD6DE),   //
                  Rgb(0x44607C), Rgb(0x5B89AE)}}, //
    {xtpReportColumnOffice2003, HeaderEdge::ShortDivider, HeaderFill::Gradient, ArrowShape::Filled,
     ArrowPlace::BesideCaption, 5, 4, 0,
     HeaderColors{Rgb(0x9DBDEB), Rgb(0xDDECFE),   //
                  Rgb(0x7FA6E0), Rgb(0xC3DAF9),   //
                  Rgb(0xFFDB75), Rgb(0xFFF5CC),   //
                  Rgb(0xFFD38E), Rgb(0xFE914E),   //
                  Rgb(0x6A8CCB), Rgb(0xF1F9FF),   //
                  Rgb(0xE8881F), Rgb(0x4B74BC),   //
                  Rgb(0x000000), Rgb(0x27418C)}}, //
    {xtpReportColumnResource, HeaderEdge::Inset, HeaderFill::Glass, ArrowShape::Chevron, ArrowPlace::BesideCaption, 4,
     0, 0,
     HeaderColors{Rgb(0xD3E2F2), Rgb(0xF4F9FE),   //
                  Rgb(0xB9D2EC), Rgb(0xDFEBF8),   //
                  Rgb(0xFFDA82), Rgb(0xFFF7DC),   //
                  Rgb(0xF9B35C), Rgb(0xFCDCA6),   //
                  Rgb(0x9DB8D6), Rgb(0xFFFFFF),   //
                  Rgb(0xD2A04A), Rgb(0x8EABCF),   //
                  Rgb(0x15428B), Rgb(0x15428B)}}, //
};

constexpr ColumnLook Office2013Header = {xtpReportColumnFlat,
                                         HeaderEdge::Boxed,
                                         HeaderFill::Gradient,
                                         ArrowShape::Chevron,
                                         ArrowPlace::BesideCaption,
                                         4,
                                         0,
                                         0,
                                         HeaderColors{Rgb(0xFFFFFF), Rgb(0xFFFFFF),   // idle
                                                      Rgb(0xEAF3FA), Rgb(0xEAF3FA),   // sorted
                                                      Rgb(0xCDE6F7), Rgb(0xCDE6F7),   // hot
                                                      Rgb(0x92C0E0), Rgb(0x92C0E0),   // pressed
                                                      Rgb(0xE1E1E1), None,            // divider
                                                      None, Rgb(0xABABAB),            // frame, line
                                                      Rgb(0x444444), Rgb(0x0072C6)}}; // text, arrow

/// The user's colours alone, in lines and areas that differ in every high-contrast scheme.
constexpr ColumnLook HighContrastHeader = {xtpReportColumnFlat,
                                           HeaderEdge::Boxed,
                                           HeaderFill::Gradient,
                                           ArrowShape::Filled,
                                           ArrowPlace::BesideCaption,
                                           4,
                                           0,
                                           1,
                                           HeaderColors{Sys(COLOR_BTNFACE), Sys(COLOR_BTNFACE),       // idle
                                                        Sys(COLOR_BTNFACE), Sys(COLOR_BTNFACE),       // sorted
                                                        Sys(COLOR_BTNFACE), Sys(COLOR_BTNFACE),       // hot
                                                        Sys(COLOR_BTNFACE), Sys(COLOR_BTNFACE),       // pressed
                                                        Sys(COLOR_WINDOWFRAME), None,                 // divider
                                                        Sys(COLOR_HIGHLIGHT), Sys(COLOR_WINDOWFRAME), // frame, line
                                                        Sys(COLOR_BTNTEXT), Sys(COLOR_BTNTEXT)}};     // text, arrow

// --- Bodies; the order is that of Role up to Header ------------------------------------------------------------------

constexpr BodyColors ClassicBody = {
    Sys(COLOR_WINDOW),
    Sys(COLOR_WINDOWTEXT),
    Between(COLOR_WINDOW, COLOR_BTNFACE, 50), // alternate row
    Sys(COLOR_BTNFACE),
    Sys(COLOR_GRAYTEXT), // disabled
    Sys(COLOR_HIGHLIGHT),
    Sys(COLOR_HIGHLIGHTTEXT), // selection
    Between(COLOR_BTNFACE, COLOR_BTNSHADOW, 22),
    Sys(COLOR_BTNTEXT),                          // selection without the focus
    None,                                        // focus frame
    Between(COLOR_WINDOW, COLOR_BTNSHADOW, 38),  // grid lines
    Sys(COLOR_HOTLIGHT),                         // hyperlink
    Between(COLOR_WINDOWTEXT, COLOR_WINDOW, 35), // preview
    Rgb(0xC00000),                               // drop mark
    Sys(COLOR_BTNFACE),                          // group row
    Sys(COLOR_BTNTEXT),
    Sys(COLOR_BTNSHADOW), // line under it
    Sys(COLOR_BTNSHADOW), // tree lines
    Sys(COLOR_BTNSHADOW), // expand button: frame, inside, sign
    Sys(COLOR_WINDOW),
    Sys(COLOR_WINDOWTEXT),
    Between(COLOR_BTNFACE, COLOR_BTNSHADOW, 30),
    Sys(COLOR_BTNTEXT),   // group-by box
    Sys(COLOR_BTNSHADOW), // freeze line
};

constexpr BodyColors OfficeXPBody = {
    Sys(COLOR_WINDOW),   Sys(COLOR_WINDOWTEXT),
    Rgb(0xF1F5FB),       Sys(COLOR_BTNFACE),
    Sys(COLOR_GRAYTEXT), Rgb(0xC1D2EE),
    Rgb(0x000000),       Rgb(0xDCE0E8),
    Rgb(0x000000),       Rgb(0x316AC5),
    Sys(COLOR_BTNFACE),  Sys(COLOR_HOTLIGHT),
    Rgb(0x3F5580),       Rgb(0x316AC5),
    Rgb(0xE1E8F4),       Rgb(0x1F3A6E),
    Rgb(0x9DB1D4),       Rgb(0xA9B7D1),
    Rgb(0x7F93B9),       Sys(COLOR_WINDOW),
    Rgb(0x1F3A6E),       Between(COLOR_BTNFACE, COLOR_BTNSHADOW, 30),
    Sys(COLOR_BTNTEXT),  Rgb(0x7A9AC8),
};

constexpr BodyColors Office2013Body = {
    Rgb(0xFFFFFF), Rgb(0x262626), Rgb(0xF7F7F7), //
    Rgb(0xFAFAFA), Rgb(0xA6A6A6),                //
    Rgb(0xCDE6F7), Rgb(0x262626),                //
    Rgb(0xE1E1E1), Rgb(0x262626),                //
    Rgb(0x2A8DD4),                               //
    Rgb(0xE6E6E6),                               //
    Rgb(0x0072C6),                               //
    Rgb(0x6A6A6A),                               //
    Rgb(0x0072C6),                               //
    Rgb(0xFFFFFF), Rgb(0x0072C6), Rgb(0xC6C6C6), // group row
    None,                                        //
    Rgb(0x6A6A6A), None,          None,          // expand button
    Rgb(0xF1F1F1), Rgb(0x5E5E5E),                //
    Rgb(0xABABAB),                               //
};

constexpr BodyColors Windows7Body = {
    Rgb(0xFFFFFF), Rgb(0x000000), Rgb(0xF5F9FE), //
    Rgb(0xF4F5F7), Rgb(0x8C8C8C),                //
    Rgb(0xCBE5FD), Rgb(0x000000),                //
    Rgb(0xE4E8ED), Rgb(0x000000),                //
    Rgb(0x7DA2CE),                               //
    Rgb(0xE9EDF2),                               //
    Rgb(0x0066CC),                               //
    Rgb(0x5A6B80),                               //
    Rgb(0x3399FF),                               //
    Rgb(0xFFFFFF), Rgb(0x003399), Rgb(0xB9CCE4), // group row
    None,                                        //
    Rgb(0x5A5A5A), None,          None,          // expand button
    Rgb(0xEDF2F8), Rgb(0x44607C),                //
    Rgb(0xA6B4C4),                               //
};

constexpr BodyColors ResourceBody = {
    Rgb(0xFFFFFF), Rgb(0x000000), Rgb(0xEEF4FC), //
    Rgb(0xE9EFF7), Rgb(0x8B97A8),                //
    Rgb(0xA7CDF0), Rgb(0x000000),                //
    Rgb(0xD2DDEA), Rgb(0x000000),                //
    Rgb(0x4B7DB8),                               //
    Rgb(0xCEDAE9),                               //
    Rgb(0x1E5AA8),                               //
    Rgb(0x3F5A7D),                               //
    Rgb(0xE08A00),                               //
    Rgb(0xDCE7F5), Rgb(0x15428B), Rgb(0x9DB8D6), // group row
    None,                                        //
    Rgb(0x7B9AC2), Rgb(0xFFFFFF), Rgb(0x15428B), // expand button
    Rgb(0xC9DAEE), Rgb(0x15428B),                //
    Rgb(0x6E93C0),                               //
};

constexpr BodyColors HighContrastBody = {
    Sys(COLOR_WINDOW),        Sys(COLOR_WINDOWTEXT),
    Sys(COLOR_WINDOW),        Sys(COLOR_WINDOW),
    Sys(COLOR_GRAYTEXT),      Sys(COLOR_HIGHLIGHT),
    Sys(COLOR_HIGHLIGHTTEXT),
    Sys(COLOR_HIGHLIGHT), // the focus is told by its dotted rectangle
    Sys(COLOR_HIGHLIGHTTEXT), None,
    Sys(COLOR_BTNSHADOW),     Sys(COLOR_HOTLIGHT),
    Sys(COLOR_WINDOWTEXT),    Sys(COLOR_HIGHLIGHT),
    Sys(COLOR_WINDOW),        Sys(COLOR_WINDOWTEXT),
    Sys(COLOR_WINDOWTEXT),    Sys(COLOR_WINDOWTEXT),
    Sys(COLOR_WINDOWTEXT),    Sys(COLOR_WINDOW),
    Sys(COLOR_WINDOWTEXT),    Sys(COLOR_WINDOW),
    Sys(COLOR_WINDOWTEXT),    Sys(COLOR_WINDOWTEXT),
};

constexpr ThemeLook ThemeLooks[] = {
    {xtpReportThemeDefault, xtpReportColumnShaded, {5, 3, 4, 2, 4, 17, ExpandButton::Box}, ClassicBody, nullptr},
    {xtpReportThemeOfficeXP, xtpReportColumnFlat, {5, 3, 4, 2, 4, 17, ExpandButton::Box}, OfficeXPBody, nullptr},
    {xtpReportThemeOffice2013,
     xtpReportColumnFlat,
     {7, 4, 5, 3, 0, 18, ExpandButton::Triangle},
     Office2013Body,
     &Office2013Header},
    {xtpReportThemeWindows7,
     xtpReportColumnExplorer,
     {6, 3, 5, 2, 3, 16, ExpandButton::Triangle},
     Windows7Body,
     nullptr},
    {xtpReportThemeResource, xtpReportColumnResource, {5, 3, 4, 2, 4, 17, ExpandButton::Box}, ResourceBody, nullptr},
};

const ThemeLook& Find(XTPReportPaintTheme theme) {
    const auto it = std::find_if(std::begin(ThemeLooks), std::end(ThemeLooks),
                                 [theme](const ThemeLook& look) { return look.theme == theme; });
    return it != std::end(ThemeLooks) ? *it : ThemeLooks[0];
}

const ColumnLook& Find(XTPReportColumnStyle style) {
    const auto it = std::find_if(std::begin(ColumnLooks), std::end(ColumnLooks),
                                 [style](const ColumnLook& look) { return look.style == style; });
    return it != std::end(ColumnLooks) ? *it : ColumnLooks[0];
}

} // namespace

Look LookOf(XTPReportPaintTheme theme, XTPReportColumnStyle style, Contrast contrast) {
    const ThemeLook& found = Find(theme);
    if (contrast == Contrast::High)
        return {&HighContrastBody, &found.metrics, &HighContrastHeader};
    const bool isOwnStyle = found.ownHeader && style == found.columnStyle;
    return {&found.body, &found.metrics, isOwnStyle ? found.ownHeader : &Find(style)};
}

XTPReportColumnStyle OwnColumnStyle(XTPReportPaintTheme theme) { return Find(theme).columnStyle; }

} // namespace reportlook
