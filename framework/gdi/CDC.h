/// @file
/// Device contexts: where drawing goes.
#pragma once

#include "../core/Geometry.h"
#include "CBitmap.h"
#include "CBrush.h"
#include "CFont.h"
#include "CPalette.h"
#include "CPen.h"
#include "CRgn.h"

class CWnd;

/// A device context. The object owns an attached context and deletes it on destruction.
///
/// Output goes to m_hDC; questions about the device and about text are answered by m_hAttribDC. The two are the same
/// except for a print preview, which draws on the screen as the printer would measure; then what is set or selected
/// goes to both. Coordinates are logical units, which are pixels unless SetMapMode or a viewport says otherwise;
/// colours are 0x00BBGGRR. Rectangles given by pointer must not be null, nor must pens, brushes and regions unless that
/// is said.
///
/// Select… operations give back what was selected before, as a temporary object at most, and null for null; prefer
/// SelectGuard. Operations that give a BOOL say whether the system carried them out.
/// @ingroup framework_gdi
class KY_FRAMEWORK_API CDC : public CObject {
    DECLARE_DYNCREATE(CDC)
public:
    CDC() = default; ///< Without a context.
    /// Deletes an attached context; what is selected into it should have been put back before.
    ~CDC() override;

    // The context
    HDC m_hDC = nullptr;       ///< Where output goes; null when there is none.
    HDC m_hAttribDC = nullptr; ///< What answers questions; usually the same.
    BOOL m_bPrinting = FALSE;  ///< The context draws on a printer, or pretends to.

    operator HDC() const { return m_hDC; } ///< Null when there is none; the object keeps the ownership.
    /// The context as m_hDC has it; may be asked of a null pointer, too, and then gives null.
    HDC GetSafeHdc() const { return this == nullptr ? nullptr : m_hDC; }
    /// The object of this thread that owns the context, else a temporary one, valid until the thread is idle next. Null
    /// for null.
    static CDC* PASCAL FromHandle(HDC dc);
    /// Destroys the thread's temporary objects, but not their contexts; the framework does so when the thread is idle.
    static void PASCAL DeleteTempMap();
    /// Takes over the context for output and for questions. FALSE for null. The object must not hold one yet.
    BOOL Attach(HDC dc);
    /// Gives up the context, which the caller then owns. Null when there was none.
    HDC Detach();
    /// Lets another context answer questions. The object does not own it.
    virtual void SetAttribDC(HDC dc) { m_hAttribDC = dc; }
    /// Lets output go to another context. The object does not own it.
    virtual void SetOutputDC(HDC dc) { m_hDC = dc; }
    /// Nobody answers questions any more; the context lives on.
    virtual void ReleaseAttribDC() { m_hAttribDC = nullptr; }
    /// Output goes nowhere any more; the context lives on.
    virtual void ReleaseOutputDC() { m_hDC = nullptr; }
    BOOL IsPrinting() const { return m_bPrinting; } ///< As m_bPrinting says.
    /// The window that the context draws on, as a temporary object at most; null for a memory or printer context.
    CWnd* GetWindow() const;

    /// A context of a device such as a printer, with the settings of `initData`, a DEVMODE or null. FALSE on failure.
    BOOL CreateDC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData);
    /// As CreateDC, for questions only: nothing can be drawn.
    BOOL CreateIC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData);
    /// A memory context, with a bitmap of one pixel until another is selected; for the screen when `dc` is null. FALSE
    /// on failure.
    BOOL CreateCompatibleDC(CDC* dc);
    /// Deletes the context; the object is without one afterwards. FALSE when there was none.
    BOOL DeleteDC();
    /// Keeps the whole state on the context's stack. The number to give to RestoreDC, 0 on failure; prefer SaveDCGuard.
    virtual int SaveDC();
    /// Brings back the state of that number, and forgets it and all saved after it; -1 names the latest.
    virtual BOOL RestoreDC(int savedDC);
    /// A property of the device, by its number: LOGPIXELSX, HORZRES…
    int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hAttribDC, index); }

    // What is selected
    /// Selects one of the system's own objects, such as NULL_BRUSH. What was selected before.
    virtual CGdiObject* SelectStockObject(int index);
    /** @{ */
    /// Selects an object, which must stay alive while it is selected. What was selected before, which should be put
    /// back before the object or the context ends. A bitmap can be in one context at a time, and only in memory
    /// contexts.
    CPen* SelectObject(CPen* pen);
    CBrush* SelectObject(CBrush* brush);
    virtual CFont* SelectObject(CFont* font);
    CBitmap* SelectObject(CBitmap* bitmap);
    /** @} */
    /// As SelectClipRgn: the region, which is copied, clips from now on. The kind of the clip region that results.
    int SelectObject(CRgn* region) { return SelectClipRgn(region); }
    /// As above for a handle of any kind but a region's; null on failure.
    HGDIOBJ SelectObject(HGDIOBJ object);
    /** @{ */
    /// What is selected now, as a temporary object at most. Null only without a context.
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;
    CPalette* GetCurrentPalette() const;
    /** @} */
    /// Selects a palette, which must not be null; with `forceBackground` it never takes colours from another window.
    /// What was selected before, null on failure.
    CPalette* SelectPalette(CPalette* palette, BOOL forceBackground);
    /// Maps the selected palette's entries to the device's. The number of entries that changed, GDI_ERROR on failure.
    UINT RealizePalette() { return ::RealizePalette(m_hDC); }
    /// The colour that the device shows for it; CLR_INVALID on failure.
    COLORREF GetNearestColor(COLORREF color) const { return ::GetNearestColor(m_hAttribDC, color); }

    // Attributes; setters give back the former value
    /** @{ */
    /// The colour of texts, black at first. Setting gives the former one, CLR_INVALID on failure.
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    virtual COLORREF SetTextColor(COLORREF color);
    /** @} */
    /** @{ */
    /// The colour behind texts and in the gaps of hatches and dashed lines, while the mode is OPAQUE; white at first.
    /// Setting gives the former one, CLR_INVALID on failure.
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    virtual COLORREF SetBkColor(COLORREF color);
    /** @} */
    /** @{ */
    /// OPAQUE, as at first, or TRANSPARENT: whether gaps are filled with the background colour. Setting gives the
    /// former mode, 0 on failure.
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int SetBkMode(int mode);
    /** @} */
    /** @{ */
    /// TA_ flags: which point of a text TextOut and ExtTextOut are given. Setting gives the former flags, GDI_ERROR on
    /// failure.
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    UINT SetTextAlign(UINT flags);
    /** @} */
    /** @{ */
    /// The R2_ value by which pens and brushes join with what is there, R2_COPYPEN at first. Setting gives the former
    /// one, 0 on failure.
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int SetROP2(int mode);
    /** @} */
    /** @{ */
    /// ALTERNATE, as at first, or WINDING: what counts as the inside of a polygon. Setting gives the former mode, 0 on
    /// failure.
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int SetPolyFillMode(int mode);
    /** @} */
    /** @{ */
    /// What becomes of surplus pixels when StretchBlt shrinks: BLACKONWHITE, as at first, COLORONCOLOR or HALFTONE.
    /// Setting gives the former mode, 0 on failure.
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    int SetStretchBltMode(int mode);
    /** @} */
    /// The pixel, in device units, at which the pattern of brushes begins.
    CPoint GetBrushOrg() const;
    /** @{ */
    /// Sets the pixel, in device units, at which patterns begin; counts for brushes selected afterwards. The former
    /// one.
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT origin) { return SetBrushOrg(origin.x, origin.y); }
    /** @} */
    /** @{ */
    /// LAYOUT_RTL when x counts from the right, else 0. Setting gives the former layout. GDI_ERROR on failure.
    DWORD GetLayout() const { return ::GetLayout(m_hAttribDC); }
    DWORD SetLayout(DWORD layout) { return ::SetLayout(m_hDC, layout); }
    /** @} */

    // Mapping
    /** @{ */
    /// MM_TEXT, as at first: logical units are pixels, y counts downwards; or another MM_ mode. Setting gives the
    /// former mode, 0 on failure.
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    virtual int SetMapMode(int mode);
    /** @} */
    /// The pixel, in device units, on which the window origin is mapped.
    CPoint GetViewportOrg() const;
    /** @{ */
    /// Sets or moves the pixel, in device units, on which the window origin is mapped. The former one.
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    virtual CPoint OffsetViewportOrg(int width, int height);
    /** @} */
    /// The size in device units on which the window extent is mapped.
    CSize GetViewportExt() const;
    /** @{ */
    /// Sets the size in device units on which the window extent is mapped; counts in MM_ISOTROPIC and MM_ANISOTROPIC
    /// only. The former one.
    virtual CSize SetViewportExt(int width, int height);
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    /** @} */
    /// The point, in logical units, that is mapped on the viewport origin.
    CPoint GetWindowOrg() const;
    /** @{ */
    /// Sets or moves the point, in logical units, that is mapped on the viewport origin. The former one.
    virtual CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    virtual CPoint OffsetWindowOrg(int width, int height);
    /** @} */
    /// The size in logical units that is mapped on the viewport extent.
    CSize GetWindowExt() const;
    /** @{ */
    /// Sets the size in logical units that is mapped on the viewport extent; counts in MM_ISOTROPIC and MM_ANISOTROPIC
    /// only. The former one.
    virtual CSize SetWindowExt(int width, int height);
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    /** @} */
    /** @{ */
    /// Turns device units into logical ones in place. Of a size only its extent is turned, wherever the origin is.
    void DPtoLP(LPPOINT points, int count = 1) const { ::DPtoLP(m_hAttribDC, points, count); }
    void DPtoLP(LPRECT rect) const { ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(rect), 2); }
    void DPtoLP(LPSIZE size) const;
    /** @} */
    /** @{ */
    /// Turns logical units into device ones in place. Of a size only its extent is turned, wherever the origin is.
    void LPtoDP(LPPOINT points, int count = 1) const { ::LPtoDP(m_hAttribDC, points, count); }
    void LPtoDP(LPRECT rect) const { ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(rect), 2); }
    void LPtoDP(LPSIZE size) const;
    /** @} */

    // Clipping
    /// The smallest rectangle around what can be drawn on, in logical units. NULLREGION when that is nothing, ERROR on
    /// failure.
    virtual int GetClipBox(LPRECT rect) const { return ::GetClipBox(m_hAttribDC, rect); }
    /// Clips to the region, in device units, which is copied; null takes the clipping away. The kind of the result,
    /// ERROR on failure.
    virtual int SelectClipRgn(CRgn* region);
    /// Joins the region, in device units, with the clipping there is, by an RGN_ mode; null is allowed with RGN_COPY
    /// alone. The kind of the result, ERROR on failure.
    int SelectClipRgn(CRgn* region, int mode);
    /** @{ */
    /// Clips to the rectangle as well. The kind of the clip region that results, ERROR on failure.
    int IntersectClipRect(int left, int top, int right, int bottom);
    int IntersectClipRect(LPCRECT rect) { return IntersectClipRect(rect->left, rect->top, rect->right, rect->bottom); }
    /** @} */
    /** @{ */
    /// Draws no more inside the rectangle. The kind of the clip region that results, ERROR on failure.
    int ExcludeClipRect(int left, int top, int right, int bottom);
    int ExcludeClipRect(LPCRECT rect) { return ExcludeClipRect(rect->left, rect->top, rect->right, rect->bottom); }
    /** @} */
    /// Draws no more where the window, which must not be null, is going to be painted anyway. The kind of the clip
    /// region that results, ERROR on failure.
    int ExcludeUpdateRgn(CWnd* window);
    /** @{ */
    /// Moves the clip region. The kind of it, ERROR on failure.
    int OffsetClipRgn(int x, int y);
    int OffsetClipRgn(SIZE offset) { return OffsetClipRgn(offset.cx, offset.cy); }
    /** @} */
    /** @{ */
    /// Whether the point is inside the clipping.
    BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }
    BOOL PtVisible(POINT point) const { return PtVisible(point.x, point.y); }
    /** @} */
    /// Whether any part of the rectangle is inside the clipping.
    virtual BOOL RectVisible(LPCRECT rect) const { return ::RectVisible(m_hDC, rect); }

    // Lines
    /// Where the next line starts: set by MoveTo and LineTo.
    CPoint GetCurrentPosition() const;
    /** @{ */
    /// Sets the current position and draws nothing. The former one.
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    /** @} */
    /** @{ */
    /// A line with the pen from the current position up to the point, which itself is not drawn and becomes the current
    /// position.
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    /** @} */
    /// Lines through all points with the pen; the last point is not drawn. The current position stays.
    BOOL Polyline(const POINT* points, int count) { return ::Polyline(m_hDC, points, count); }
    /// Bézier curves with the pen: a start, and for each curve two control points and an end, so 3 n + 1 points. The
    /// current position stays.
    BOOL PolyBezier(const POINT* points, int count) { return ::PolyBezier(m_hDC, points, count); }
    /** @{ */
    /// A part of the ellipse in the rectangle, with the pen, counterclockwise between the directions of two points.
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Arc(LPCRECT rect, POINT start, POINT end) {
        return Arc(rect->left, rect->top, rect->right, rect->bottom, start.x, start.y, end.x, end.y);
    }
    /** @} */

    // Areas
    /// Fills the rectangle with the brush; for one colour FillSolidRect is faster.
    void FillRect(LPCRECT rect, CBrush* brush) { ::FillRect(m_hDC, rect, *brush); }
    /// A frame inside the rectangle, one logical unit wide, with the brush.
    void FrameRect(LPCRECT rect, CBrush* brush) { ::FrameRect(m_hDC, rect, *brush); }
    /// Inverts every pixel; twice is as if nothing had happened.
    void InvertRect(LPCRECT rect) { ::InvertRect(m_hDC, rect); }
    /// Fills the region, in logical units, with the brush.
    BOOL FillRgn(CRgn* region, CBrush* brush) { return ::FillRgn(m_hDC, *region, *brush); }
    /// A frame inside the region with the brush: `width` wide at vertical strokes, `height` at horizontal ones.
    BOOL FrameRgn(CRgn* region, CBrush* brush, int width, int height) {
        return ::FrameRgn(m_hDC, *region, *brush, width, height);
    }
    /// Fills the region with the selected brush.
    BOOL PaintRgn(CRgn* region) { return ::PaintRgn(m_hDC, *region); }
    /** @{ */
    /// Fills with one colour, which becomes the background colour of the context. Needs no brush.
    void FillSolidRect(LPCRECT rect, COLORREF color);
    void FillSolidRect(int x, int y, int width, int height, COLORREF color);
    /** @} */
    /** @{ */
    /// A frame one unit wide inside the rectangle: the left and top edges in one colour, the right and bottom ones in
    /// the other. Sets the background colour.
    void Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight);
    void Draw3dRect(int x, int y, int width, int height, COLORREF topLeft, COLORREF bottomRight);
    /** @} */
    /// Colours that change over rectangles (`elements` are GRADIENT_RECT) or triangles (GRADIENT_TRIANGLE), as `mode`
    /// says. Colour components are 16 bits wide: 0xFF00 is full.
    BOOL GradientFill(TRIVERTEX* vertices, ULONG vertexCount, void* elements, ULONG elementCount, DWORD mode);
    /** @{ */
    /// Drawn with the pen along the inside of the rectangle, filled with the selected brush.
    BOOL Rectangle(int left, int top, int right, int bottom) { return ::Rectangle(m_hDC, left, top, right, bottom); }
    BOOL Rectangle(LPCRECT rect) { return Rectangle(rect->left, rect->top, rect->right, rect->bottom); }
    /** @} */
    /** @{ */
    /// As Rectangle, with corners rounded by an ellipse of that width and height.
    BOOL RoundRect(int left, int top, int right, int bottom, int ellipseWidth, int ellipseHeight) {
        return ::RoundRect(m_hDC, left, top, right, bottom, ellipseWidth, ellipseHeight);
    }
    BOOL RoundRect(LPCRECT rect, POINT ellipse) {
        return RoundRect(rect->left, rect->top, rect->right, rect->bottom, ellipse.x, ellipse.y);
    }
    /** @} */
    /** @{ */
    /// The ellipse in the rectangle, drawn with the pen and filled with the selected brush.
    BOOL Ellipse(int left, int top, int right, int bottom) { return ::Ellipse(m_hDC, left, top, right, bottom); }
    BOOL Ellipse(LPCRECT rect) { return Ellipse(rect->left, rect->top, rect->right, rect->bottom); }
    /** @} */
    /// Drawn with the pen, closed, and filled with the selected brush by the polygon mode; two points at least.
    BOOL Polygon(const POINT* points, int count) { return ::Polygon(m_hDC, points, count); }

    // Control parts
    /// The dotted frame of the focus, inside the rectangle; drawn again at the same place it vanishes.
    void DrawFocusRect(LPCRECT rect) { ::DrawFocusRect(m_hDC, rect); }
    /// EDGE_ borders at the sides that the BF_ flags name; with BF_ADJUST `rect` shrinks to what is inside.
    BOOL DrawEdge(LPRECT rect, UINT edge, UINT flags) { return ::DrawEdge(m_hDC, rect, edge, flags); }
    /// A part of a control as the system draws it: DFC_ type, DFCS_ state.
    BOOL DrawFrameControl(LPRECT rect, UINT type, UINT state) { return ::DrawFrameControl(m_hDC, rect, type, state); }
    /** @{ */
    /// The icon in its own size in pixels, its upper left corner at the point.
    BOOL DrawIcon(int x, int y, HICON icon) { return ::DrawIcon(m_hDC, x, y, icon); }
    BOOL DrawIcon(POINT point, HICON icon) { return DrawIcon(point.x, point.y, icon); }
    /** @} */
    /** @{ */
    /// A bitmap or icon in a DSS_ state such as disabled; `brush` is for DSS_MONO. The picture stays the caller's.
    BOOL DrawState(POINT point, SIZE size, HBITMAP bitmap, UINT flags, HBRUSH brush = nullptr);
    BOOL DrawState(POINT point, SIZE size, HICON icon, UINT flags, HBRUSH brush = nullptr);
    /** @} */

    // Bitmaps
    /// Joins the selected brush with what is there by a raster operation such as PATCOPY.
    BOOL PatBlt(int x, int y, int width, int height, DWORD rop) { return ::PatBlt(m_hDC, x, y, width, height, rop); }
    /// Copies pixels from another context by a raster operation such as SRCCOPY. `source` may be null for operations
    /// that need none.
    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, DWORD rop);
    /// As BitBlt, stretched to the rectangle by the stretch mode; negative sizes mirror.
    BOOL StretchBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                    int sourceHeight, DWORD rop);
    /// Copies pixels but those of one colour, stretched where the sizes differ. `source` must not be null.
    BOOL TransparentBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                        int sourceHeight, UINT transparentColor);
    /// Mixes pixels with what is there, by one weight and, with AC_SRC_ALPHA, by those of the pixels, whose colours
    /// then are premultiplied. `source` must not be null.
    BOOL AlphaBlend(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                    int sourceHeight, BLENDFUNCTION blend);
    /** @{ */
    /// The colour of a point; CLR_INVALID when it is outside the clipping.
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    /** @} */
    /** @{ */
    /// Sets a point to the nearest colour that the device has, and gives that; CLR_INVALID when it is outside the
    /// clipping.
    COLORREF SetPixel(int x, int y, COLORREF color) { return ::SetPixel(m_hDC, x, y, color); }
    COLORREF SetPixel(POINT point, COLORREF color) { return SetPixel(point.x, point.y, color); }
    /** @} */
    /** @{ */
    /// As SetPixel without telling the colour. FALSE when the point is outside the clipping.
    BOOL SetPixelV(int x, int y, COLORREF color) { return ::SetPixelV(m_hDC, x, y, color); }
    BOOL SetPixelV(POINT point, COLORREF color) { return SetPixelV(point.x, point.y, color); }
    /** @} */

    // Text
    /** @{ */
    /// The text in the selected font, the point being that of the text alignment (its upper left corner at first).
    /// Counts are UTF-16 units.
    virtual BOOL TextOut(int x, int y, LPCTSTR text, int count);
    BOOL TextOut(int x, int y, const CString& text) { return TextOut(x, y, text.GetString(), text.GetLength()); }
    /** @} */
    /** @{ */
    /// As TextOut, with ETO_CLIPPED or ETO_OPAQUE for a rectangle that clips or is filled with the background colour
    /// first (null: none), and `widths` for the advance of each unit (null: the font's own).
    virtual BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR text, UINT count, LPINT widths);
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text, LPINT widths) {
        return ExtTextOut(x, y, options, rect, text.GetString(), static_cast<UINT>(text.GetLength()), widths);
    }
    /** @} */
    /** @{ */
    /// The text inside the rectangle, laid out by DT_ flags; a count of -1 goes up to the terminator. The height of the
    /// text, 0 on failure. With DT_CALCRECT nothing is drawn and `rect` receives the text's size; DT_MODIFYSTRING is
    /// not for texts given as CString.
    virtual int DrawText(LPCTSTR text, int count, LPRECT rect, UINT format);
    int DrawText(const CString& text, LPRECT rect, UINT format) {
        return DrawText(text.GetString(), text.GetLength(), rect, format);
    }
    /** @} */
    /** @{ */
    /// The size of one line of text in the selected font, in logical units, as the attribute context measures; zero on
    /// failure.
    CSize GetTextExtent(LPCTSTR text, int count) const;
    CSize GetTextExtent(const CString& text) const { return GetTextExtent(text.GetString(), text.GetLength()); }
    /** @} */
    /// The measures of the selected font, in logical units.
    BOOL GetTextMetrics(TEXTMETRIC* metrics) const { return ::GetTextMetricsW(m_hAttribDC, metrics); }
    /// The face of the selected font. The number of characters with the terminator, 0 on failure.
    int GetTextFace(CString& faceName) const;

    // Printing
    /// Begins a print job. A number above 0, the job's, or SP_ERROR.
    virtual int StartDoc(LPDOCINFO document) { return ::StartDocW(m_hDC, document); }
    /// Begins a page. Above 0 on success.
    int StartPage() { return ::StartPage(m_hDC); }
    /// Ends a page. Above 0 on success.
    int EndPage() { return ::EndPage(m_hDC); }
    /// Ends the job, which is printed. Above 0 on success.
    int EndDoc() { return ::EndDoc(m_hDC); }
    /// Ends the job and throws away what has not been printed. Above 0 on success.
    int AbortDoc() { return ::AbortDoc(m_hDC); }
    /// A function that is asked during the job whether to go on. Above 0 on success.
    int SetAbortProc(ABORTPROC proc) { return ::SetAbortProc(m_hDC, proc); }

private:
    bool HasOwnAttribDC() const { return m_hAttribDC && m_hAttribDC != m_hDC; }

    /// Applies one setting to the output context and to an attribute context of its own, which answers.
    template <class Result, class Setting, class... Values>
    auto OnBoth(Result failed, Setting setting, Values... values) {
        auto result = static_cast<decltype(setting(m_hDC, values...))>(failed);
        if (m_hDC)
            result = setting(m_hDC, values...);
        if (HasOwnAttribDC())
            result = setting(m_hAttribDC, values...);
        return result;
    }

    HDC m_owned = nullptr; // the attached context; none in temporary objects
};
