// The looks of a report control as data.
#include "ReportLook.h"

#include <algorithm>
#include <iterator>

namespace reportlook {

namespace {

constexpr LookColor Rgb(int hex) { return LookColor::Rgb(hex); }
constexpr LookColor Sys(int index) { return LookColor::System(index); }
constexpr LookColor None = LookColor::None();

// --- Headers; the order is that of Role from Header on ---------------------------------------------------------------

constexpr ColumnLook ColumnLooks[] = {
    {xtpReportColumnShaded,
     HeaderEdge::Raised,
     {Sys(COLOR_BTNFACE), Sys(COLOR_BTNFACE),        // idle
      Sys(COLOR_3DLIGHT), Sys(COLOR_3DLIGHT),        // hot
      Sys(COLOR_BTNFACE), Sys(COLOR_BTNFACE),        // pressed
      Sys(COLOR_BTNSHADOW), Sys(COLOR_BTNHIGHLIGHT), // divider
      None, Sys(COLOR_BTNSHADOW),                    // frame, line
      Sys(COLOR_BTNTEXT), Sys(COLOR_BTNSHADOW)}},    // text, arrow
    {xtpReportColumnFlat,
     HeaderEdge::Boxed,
     {Sys(COLOR_BTNFACE), Sys(COLOR_BTNFACE),     //
      Rgb(0xC1D2EE), Rgb(0xC1D2EE),               //
      Rgb(0x98B5E2), Rgb(0x98B5E2),               //
      Sys(COLOR_BTNSHADOW), None,                 //
      Rgb(0x316AC5), Sys(COLOR_BTNSHADOW),        //
      Sys(COLOR_BTNTEXT), Sys(COLOR_BTNSHADOW)}}, //
    {xtpReportColumnExplorer,
     HeaderEdge::Thin,
     {Rgb(0xF4F6F9), Rgb(0xFFFFFF),   //
      Rgb(0xCFEBFB), Rgb(0xEDF8FE),   //
      Rgb(0xA9D9F1), Rgb(0xCDEAF8),   //
      Rgb(0xDCE1E8), None,            //
      Rgb(0x86BFE0), Rgb(0xCDD5DE),   //
      Rgb(0x44566C), Rgb(0x7A8CA3)}}, //
    {xtpReportColumnOffice2003,
     HeaderEdge::ShortDivider,
     {Rgb(0xB9D1F4), Rgb(0xEAF2FE),   //
      Rgb(0xFFD58C), Rgb(0xFFF4CC),   //
      Rgb(0xFBB163), Rgb(0xFDD09A),   //
      Rgb(0x6A8CCB), Rgb(0xFFFFFF),   //
      None, Rgb(0x6A8CCB),            //
      Rgb(0x000000), Rgb(0x4D6EA8)}}, //
    {xtpReportColumnResource,
     HeaderEdge::Inset,
     {Rgb(0xD9E5F3), Rgb(0xF8FBFE),   //
      Rgb(0xFFDD8E), Rgb(0xFFF8DE),   //
      Rgb(0xFDC070), Rgb(0xFDDFA4),   //
      Rgb(0xA9C0DA), Rgb(0xFFFFFF),   //
      Rgb(0xD9A94B), Rgb(0x9EB6CE),   //
      Rgb(0x1E395B), Rgb(0x6A86A8)}}, //
};

constexpr HeaderColors Office2013Header = {
    Rgb(0xFFFFFF), Rgb(0xFFFFFF), // idle
    Rgb(0xE3F1FB), Rgb(0xE3F1FB), // hot
    Rgb(0xB5DBF3), Rgb(0xB5DBF3), // pressed
    Rgb(0xE1E1E1), None,          // divider
    None,          Rgb(0xC6C6C6), // frame, line
    Rgb(0x444444), Rgb(0x777777), // text, arrow
};

// --- Bodies; the order is that of Role up to Header ------------------------------------------------------------------

constexpr BodyColors ClassicBody = {
    Sys(COLOR_WINDOW),
    Sys(COLOR_WINDOWTEXT), // window
    Sys(COLOR_HIGHLIGHT),
    Sys(COLOR_HIGHLIGHTTEXT), // selection
    Sys(COLOR_BTNFACE),
    Sys(COLOR_BTNTEXT),  // selection without the focus
    None,                // focus frame
    Sys(COLOR_BTNFACE),  // grid lines
    Sys(COLOR_HOTLIGHT), // hyperlink
    Sys(COLOR_GRAYTEXT), // disabled
    Rgb(0xC00000),       // drop mark
};

constexpr BodyColors OfficeXPBody = {
    Sys(COLOR_WINDOW),   Sys(COLOR_WINDOWTEXT), //
    Rgb(0xC1D2EE),       Rgb(0x000000),         //
    Rgb(0xD5DCE9),       Rgb(0x000000),         //
    Rgb(0x316AC5),                              //
    Sys(COLOR_BTNFACE),                         //
    Sys(COLOR_HOTLIGHT),                        //
    Sys(COLOR_GRAYTEXT),                        //
    Rgb(0xC00000),                              //
};

constexpr BodyColors Office2013Body = {
    Rgb(0xFFFFFF), Rgb(0x262626), //
    Rgb(0xCDE6F7), Rgb(0x262626), //
    Rgb(0xDEE7EE), Rgb(0x262626), //
    Rgb(0x92C0E0),                //
    Rgb(0xE1E1E1),                //
    Rgb(0x0072C6),                //
    Rgb(0xA0A0A0),                //
    Rgb(0x0072C6),                //
};

constexpr BodyColors Windows7Body = {
    Rgb(0xFFFFFF), Rgb(0x000000), //
    Rgb(0xCFE8FC), Rgb(0x000000), //
    Rgb(0xDDE7F0), Rgb(0x000000), //
    Rgb(0x84ACDD),                //
    Rgb(0xE3E8EE),                //
    Rgb(0x0066CC),                //
    Rgb(0x8C8C8C),                //
    Rgb(0x3399FF),                //
};

constexpr BodyColors ResourceBody = {
    Rgb(0xFFFFFF), Rgb(0x000000), //
    Rgb(0xC9DDF6), Rgb(0x000000), //
    Rgb(0xDAE2EE), Rgb(0x000000), //
    Rgb(0x8DB2E3),                //
    Rgb(0xD0D7E5),                //
    Rgb(0x1E5AA8),                //
    Rgb(0x8D8D8D),                //
    Rgb(0xE08A00),                //
};

constexpr ThemeLook ThemeLooks[] = {
    {xtpReportThemeDefault, xtpReportColumnShaded, ClassicBody, nullptr},
    {xtpReportThemeOfficeXP, xtpReportColumnFlat, OfficeXPBody, nullptr},
    {xtpReportThemeOffice2013, xtpReportColumnFlat, Office2013Body, &Office2013Header},
    {xtpReportThemeWindows7, xtpReportColumnExplorer, Windows7Body, nullptr},
    {xtpReportThemeResource, xtpReportColumnResource, ResourceBody, nullptr},
};

} // namespace

const ThemeLook& LookOf(XTPReportPaintTheme theme) {
    const auto it = std::find_if(std::begin(ThemeLooks), std::end(ThemeLooks),
                                 [theme](const ThemeLook& look) { return look.theme == theme; });
    return it != std::end(ThemeLooks) ? *it : ThemeLooks[0];
}

const ColumnLook& LookOf(XTPReportColumnStyle style) {
    const auto it = std::find_if(std::begin(ColumnLooks), std::end(ColumnLooks),
                                 [style](const ColumnLook& look) { return look.style == style; });
    return it != std::end(ColumnLooks) ? *it : ColumnLooks[0];
}

} // namespace reportlook
