// CDC.h - device contexts: where drawing goes.
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
/// except for a print preview, which draws on the screen as the printer would measure. Coordinates are logical units.
/// Select… operations give back what was selected before, as a temporary object at most; prefer SelectGuard.
class KY_FRAMEWORK_API CDC : public CObject {
    DECLARE_DYNCREATE(CDC)
public:
    CDC() = default;
    ~CDC() override;

    // The context
    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;
    BOOL m_bPrinting = FALSE;

    operator HDC() const { return m_hDC; }
    /// May be asked of a null pointer, too, and then gives null.
    HDC GetSafeHdc() const { return this == nullptr ? nullptr : m_hDC; }
    /// The object that owns the context, else a temporary one, valid until the thread is idle next. Null for null.
    static CDC* PASCAL FromHandle(HDC dc);
    static void PASCAL DeleteTempMap();
    /// Takes over the context. FALSE for null.
    BOOL Attach(HDC dc);
    /// Gives up the context, which the caller then owns.
    HDC Detach();
    virtual void SetAttribDC(HDC dc) { m_hAttribDC = dc; }
    virtual void SetOutputDC(HDC dc) { m_hDC = dc; }
    virtual void ReleaseAttribDC() { m_hAttribDC = nullptr; }
    virtual void ReleaseOutputDC() { m_hDC = nullptr; }
    BOOL IsPrinting() const { return m_bPrinting; }
    /// The window that the context draws on; null for a memory or printer context.
    CWnd* GetWindow() const;

    BOOL CreateDC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData);
    BOOL CreateIC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData);
    /// A memory context; for the screen when `dc` is null.
    BOOL CreateCompatibleDC(CDC* dc);
    BOOL DeleteDC();
    virtual int SaveDC();
    virtual BOOL RestoreDC(int savedDC);
    int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hAttribDC, index); }

    // What is selected
    virtual CGdiObject* SelectStockObject(int index);
    CPen* SelectObject(CPen* pen);
    CBrush* SelectObject(CBrush* brush);
    virtual CFont* SelectObject(CFont* font);
    CBitmap* SelectObject(CBitmap* bitmap);
    /// The kind of the clip region that results.
    int SelectObject(CRgn* region) { return SelectClipRgn(region); }
    HGDIOBJ SelectObject(HGDIOBJ object);
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;
    CPalette* GetCurrentPalette() const;
    CPalette* SelectPalette(CPalette* palette, BOOL forceBackground);
    UINT RealizePalette() { return ::RealizePalette(m_hDC); }
    COLORREF GetNearestColor(COLORREF color) const { return ::GetNearestColor(m_hAttribDC, color); }

    // Attributes; setters give back the former value
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    virtual COLORREF SetTextColor(COLORREF color);
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    virtual COLORREF SetBkColor(COLORREF color);
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int SetBkMode(int mode);
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    UINT SetTextAlign(UINT flags);
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int SetROP2(int mode);
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int SetPolyFillMode(int mode);
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    int SetStretchBltMode(int mode);
    CPoint GetBrushOrg() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT origin) { return SetBrushOrg(origin.x, origin.y); }
    DWORD GetLayout() const { return ::GetLayout(m_hAttribDC); }
    DWORD SetLayout(DWORD layout) { return ::SetLayout(m_hDC, layout); }

    // Mapping
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    virtual int SetMapMode(int mode);
    CPoint GetViewportOrg() const;
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    virtual CPoint OffsetViewportOrg(int width, int height);
    CSize GetViewportExt() const;
    virtual CSize SetViewportExt(int width, int height);
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    CPoint GetWindowOrg() const;
    virtual CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    virtual CPoint OffsetWindowOrg(int width, int height);
    CSize GetWindowExt() const;
    virtual CSize SetWindowExt(int width, int height);
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    void DPtoLP(LPPOINT points, int count = 1) const { ::DPtoLP(m_hAttribDC, points, count); }
    void DPtoLP(LPRECT rect) const { ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(rect), 2); }
    void DPtoLP(LPSIZE size) const;
    void LPtoDP(LPPOINT points, int count = 1) const { ::LPtoDP(m_hAttribDC, points, count); }
    void LPtoDP(LPRECT rect) const { ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(rect), 2); }
    void LPtoDP(LPSIZE size) const;

    // Clipping
    virtual int GetClipBox(LPRECT rect) const { return ::GetClipBox(m_hAttribDC, rect); }
    /// Null takes the clipping away.
    virtual int SelectClipRgn(CRgn* region);
    int SelectClipRgn(CRgn* region, int mode);
    int IntersectClipRect(int left, int top, int right, int bottom);
    int IntersectClipRect(LPCRECT rect) { return IntersectClipRect(rect->left, rect->top, rect->right, rect->bottom); }
    int ExcludeClipRect(int left, int top, int right, int bottom);
    int ExcludeClipRect(LPCRECT rect) { return ExcludeClipRect(rect->left, rect->top, rect->right, rect->bottom); }
    int ExcludeUpdateRgn(CWnd* window);
    int OffsetClipRgn(int x, int y);
    int OffsetClipRgn(SIZE offset) { return OffsetClipRgn(offset.cx, offset.cy); }
    BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }
    BOOL PtVisible(POINT point) const { return PtVisible(point.x, point.y); }
    virtual BOOL RectVisible(LPCRECT rect) const { return ::RectVisible(m_hDC, rect); }

    // Lines
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polyline(const POINT* points, int count) { return ::Polyline(m_hDC, points, count); }
    BOOL PolyBezier(const POINT* points, int count) { return ::PolyBezier(m_hDC, points, count); }
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Arc(LPCRECT rect, POINT start, POINT end) {
        return Arc(rect->left, rect->top, rect->right, rect->bottom, start.x, start.y, end.x, end.y);
    }

    // Areas
    void FillRect(LPCRECT rect, CBrush* brush) { ::FillRect(m_hDC, rect, *brush); }
    void FrameRect(LPCRECT rect, CBrush* brush) { ::FrameRect(m_hDC, rect, *brush); }
    void InvertRect(LPCRECT rect) { ::InvertRect(m_hDC, rect); }
    BOOL FillRgn(CRgn* region, CBrush* brush) { return ::FillRgn(m_hDC, *region, *brush); }
    BOOL FrameRgn(CRgn* region, CBrush* brush, int width, int height) {
        return ::FrameRgn(m_hDC, *region, *brush, width, height);
    }
    BOOL PaintRgn(CRgn* region) { return ::PaintRgn(m_hDC, *region); }
    /// Fills with one colour, which becomes the background colour of the context.
    void FillSolidRect(LPCRECT rect, COLORREF color);
    void FillSolidRect(int x, int y, int width, int height, COLORREF color);
    /// A frame one unit wide: the left and top edges in one colour, the right and bottom ones in the other. Sets the
    /// background colour.
    void Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight);
    void Draw3dRect(int x, int y, int width, int height, COLORREF topLeft, COLORREF bottomRight);
    BOOL GradientFill(TRIVERTEX* vertices, ULONG vertexCount, void* elements, ULONG elementCount, DWORD mode);
    BOOL Rectangle(int left, int top, int right, int bottom) { return ::Rectangle(m_hDC, left, top, right, bottom); }
    BOOL Rectangle(LPCRECT rect) { return Rectangle(rect->left, rect->top, rect->right, rect->bottom); }
    BOOL RoundRect(int left, int top, int right, int bottom, int ellipseWidth, int ellipseHeight) {
        return ::RoundRect(m_hDC, left, top, right, bottom, ellipseWidth, ellipseHeight);
    }
    BOOL RoundRect(LPCRECT rect, POINT ellipse) {
        return RoundRect(rect->left, rect->top, rect->right, rect->bottom, ellipse.x, ellipse.y);
    }
    BOOL Ellipse(int left, int top, int right, int bottom) { return ::Ellipse(m_hDC, left, top, right, bottom); }
    BOOL Ellipse(LPCRECT rect) { return Ellipse(rect->left, rect->top, rect->right, rect->bottom); }
    BOOL Polygon(const POINT* points, int count) { return ::Polygon(m_hDC, points, count); }

    // Control parts
    void DrawFocusRect(LPCRECT rect) { ::DrawFocusRect(m_hDC, rect); }
    BOOL DrawEdge(LPRECT rect, UINT edge, UINT flags) { return ::DrawEdge(m_hDC, rect, edge, flags); }
    BOOL DrawFrameControl(LPRECT rect, UINT type, UINT state) { return ::DrawFrameControl(m_hDC, rect, type, state); }
    BOOL DrawIcon(int x, int y, HICON icon) { return ::DrawIcon(m_hDC, x, y, icon); }
    BOOL DrawIcon(POINT point, HICON icon) { return DrawIcon(point.x, point.y, icon); }
    BOOL DrawState(POINT point, SIZE size, HBITMAP bitmap, UINT flags, HBRUSH brush = nullptr);
    BOOL DrawState(POINT point, SIZE size, HICON icon, UINT flags, HBRUSH brush = nullptr);

    // Bitmaps
    BOOL PatBlt(int x, int y, int width, int height, DWORD rop) { return ::PatBlt(m_hDC, x, y, width, height, rop); }
    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, DWORD rop);
    BOOL StretchBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                    int sourceHeight, DWORD rop);
    BOOL TransparentBlt(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                        int sourceHeight, UINT transparentColor);
    BOOL AlphaBlend(int x, int y, int width, int height, CDC* source, int xSource, int ySource, int sourceWidth,
                    int sourceHeight, BLENDFUNCTION blend);
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF color) { return ::SetPixel(m_hDC, x, y, color); }
    COLORREF SetPixel(POINT point, COLORREF color) { return SetPixel(point.x, point.y, color); }
    BOOL SetPixelV(int x, int y, COLORREF color) { return ::SetPixelV(m_hDC, x, y, color); }
    BOOL SetPixelV(POINT point, COLORREF color) { return SetPixelV(point.x, point.y, color); }

    // Text
    virtual BOOL TextOut(int x, int y, LPCTSTR text, int count);
    BOOL TextOut(int x, int y, const CString& text) { return TextOut(x, y, text.GetString(), text.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR text, UINT count, LPINT widths);
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text, LPINT widths) {
        return ExtTextOut(x, y, options, rect, text.GetString(), static_cast<UINT>(text.GetLength()), widths);
    }
    /// The height of the text. With DT_CALCRECT nothing is drawn and `rect` receives the text's size.
    virtual int DrawText(LPCTSTR text, int count, LPRECT rect, UINT format);
    int DrawText(const CString& text, LPRECT rect, UINT format) {
        return DrawText(text.GetString(), text.GetLength(), rect, format);
    }
    CSize GetTextExtent(LPCTSTR text, int count) const;
    CSize GetTextExtent(const CString& text) const { return GetTextExtent(text.GetString(), text.GetLength()); }
    BOOL GetTextMetrics(TEXTMETRIC* metrics) const { return ::GetTextMetricsW(m_hAttribDC, metrics); }
    int GetTextFace(CString& faceName) const;

    // Printing
    virtual int StartDoc(LPDOCINFO document) { return ::StartDocW(m_hDC, document); }
    int StartPage() { return ::StartPage(m_hDC); }
    int EndPage() { return ::EndPage(m_hDC); }
    int EndDoc() { return ::EndDoc(m_hDC); }
    int AbortDoc() { return ::AbortDoc(m_hDC); }
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
