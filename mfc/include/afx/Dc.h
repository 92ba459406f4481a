// CDC: a device context, all of GDI's drawing as members.
#pragma once

#include <afx/GdiObject.h>
#include <atltypes.h>

class CBitmap;
class CBrush;
class CFont;
class CPalette;
class CPen;
class CRgn;
class CWnd;

/// Wraps one device context for output and one for questions.
///
/// Both are the same unless SetAttribDC says otherwise. Only the output context is attached: it is known to
/// the handle map and deleted with the object; a different attribute context stays its owner's. Members not
/// described here do what the GDI function of the same name does, give what it gives (FALSE, 0, NULL or
/// CLR_INVALID on failure) and take logical units. Rectangles exclude right and bottom.
class OVOMFC_API CDC : public CObject
{
    DECLARE_DYNCREATE(CDC)

public:
    // Life and handles
    CDC();
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;
    ~CDC() override;

    /// The object of a handle: the one it is attached to, else a temporary one. NULL for NULL.
    static CDC* PASCAL FromHandle(HDC dc);
    /// Deletes the temporary objects of this thread; their device contexts stay alive.
    static void PASCAL DeleteTempMap();

    /// Takes over a context, for output and questions. FALSE for NULL and for an object that has one already.
    BOOL Attach(HDC dc);
    /// Gives the output context away and forgets the attribute context. NULL when there is none.
    HDC Detach();
    virtual void SetAttribDC(HDC dc);
    virtual void SetOutputDC(HDC dc); ///< Not while an output context is attached.
    virtual void ReleaseAttribDC();
    virtual void ReleaseOutputDC(); ///< Not while an output context is attached.
    BOOL CreateDC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData);
    BOOL CreateIC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData);
    BOOL CreateCompatibleDC(CDC* dc); ///< A memory context that fits `dc`, or the screen for NULL.
    BOOL DeleteDC();
    HDC GetSafeHdc() const; ///< The output context; NULL when there is none, or no object.
    operator HDC() const;
    CWnd* GetWindow() const; ///< The window that the output context draws on, or NULL.
    BOOL IsPrinting() const;

    HDC m_hDC = nullptr;       ///< Output.
    HDC m_hAttribDC = nullptr; ///< Questions.

    // State
    virtual int SaveDC();
    virtual BOOL RestoreDC(int saved); ///< A value of SaveDC, or -1 for the latest.
    int GetDeviceCaps(int index) const;
    UINT SetBoundsRect(LPCRECT bounds, UINT flags);
    UINT GetBoundsRect(LPRECT bounds, UINT flags);
    BOOL ResetDC(const DEVMODE* mode);
    DWORD SetLayout(DWORD layout);
    DWORD GetLayout() const;
    int SetGraphicsMode(int mode);
    int GetGraphicsMode() const;

    // Drawing tools. SelectObject gives the tool of before, as FromHandle does; NULL on failure.
    virtual CGdiObject* SelectStockObject(int index);
    CPen* SelectObject(CPen* pen);
    CBrush* SelectObject(CBrush* brush);
    virtual CFont* SelectObject(CFont* font);
    CBitmap* SelectObject(CBitmap* bitmap);
    int
    SelectObject(CRgn* region); ///< Clips to the region, of which GDI keeps a copy. Gives the region's kind.
    CGdiObject* SelectObject(CGdiObject* object);
    CPalette* SelectPalette(CPalette* palette, BOOL forceBackground);
    UINT RealizePalette();
    void UpdateColors();
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CPalette* GetCurrentPalette() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;
    int EnumObjects(int type, int(CALLBACK* callback)(LPVOID, LPARAM), LPARAM data);
    /// A grey brush for outlines of things being dragged; it belongs to the library and is never deleted.
    static CBrush* PASCAL GetHalftoneBrush();

    // Drawing attributes. Set functions give the value of before.
    COLORREF GetNearestColor(COLORREF colour) const;
    COLORREF GetBkColor() const;
    virtual COLORREF SetBkColor(COLORREF colour);
    int GetBkMode() const;
    int SetBkMode(int mode);
    COLORREF GetTextColor() const;
    virtual COLORREF SetTextColor(COLORREF colour);
    COLORREF GetDCBrushColor() const;
    COLORREF SetDCBrushColor(COLORREF colour);
    COLORREF GetDCPenColor() const;
    COLORREF SetDCPenColor(COLORREF colour);
    int GetPolyFillMode() const;
    int SetPolyFillMode(int mode);
    int GetROP2() const;
    int SetROP2(int mode);
    int GetStretchBltMode() const;
    int SetStretchBltMode(int mode);
    CPoint GetBrushOrg() const;
    CPoint SetBrushOrg(int x, int y); ///< Device units.
    CPoint SetBrushOrg(POINT point);
    BOOL GetColorAdjustment(LPCOLORADJUSTMENT adjustment) const;
    BOOL SetColorAdjustment(const COLORADJUSTMENT* adjustment);

    // Mapping from logical to device units. Set functions give the value of before.
    int GetMapMode() const;
    virtual int SetMapMode(int mode);
    CPoint GetViewportOrg() const;
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point);
    virtual CPoint OffsetViewportOrg(int width, int height);
    CSize GetViewportExt() const;
    virtual CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size);
    virtual CSize ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom);
    CPoint GetWindowOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point);
    CPoint OffsetWindowOrg(int width, int height);
    CSize GetWindowExt() const;
    virtual CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size);
    virtual CSize ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom);
    BOOL SetWorldTransform(const XFORM& transform);
    BOOL ModifyWorldTransform(const XFORM& transform, DWORD mode);
    BOOL GetWorldTransform(XFORM& transform) const;
    void DPtoLP(LPPOINT points, int count = 1) const;
    void DPtoLP(LPRECT rect) const;
    void DPtoLP(LPSIZE size) const;
    void LPtoDP(LPPOINT points, int count = 1) const;
    void LPtoDP(LPRECT rect) const;
    void LPtoDP(LPSIZE size) const;
    /// HIMETRIC is a hundredth of a millimetre. Metric mapping modes convert by the mode, others by the
    /// device's pixels per inch.
    void DPtoHIMETRIC(LPSIZE size) const;
    void HIMETRICtoDP(LPSIZE size) const;
    void LPtoHIMETRIC(LPSIZE size) const;
    void HIMETRICtoLP(LPSIZE size) const;

    // Clipping
    virtual int GetClipBox(LPRECT rect) const;
    int SelectClipRgn(CRgn* region); ///< NULL ends clipping.
    int SelectClipRgn(CRgn* region, int mode);
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int ExcludeClipRect(LPCRECT rect);
    int ExcludeUpdateRgn(CWnd* window);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT rect);
    int OffsetClipRgn(int x, int y);
    int OffsetClipRgn(SIZE size);
    virtual BOOL PtVisible(int x, int y) const;
    BOOL PtVisible(POINT point) const;
    virtual BOOL RectVisible(LPCRECT rect) const;
    BOOL SelectClipPath(int mode);

    // Lines
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y); ///< Gives the position of before.
    CPoint MoveTo(POINT point);
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point);
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Arc(LPCRECT rect, POINT start, POINT end);
    BOOL ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL ArcTo(LPCRECT rect, POINT start, POINT end);
    BOOL AngleArc(int x, int y, int radius, float startAngle, float sweepAngle);
    int GetArcDirection() const;
    int SetArcDirection(int direction);
    BOOL Polyline(LPPOINT points, int count);
    BOOL PolylineTo(const POINT* points, int count);
    BOOL PolyPolyline(const POINT* points, const DWORD* polyPoints, int count);
    BOOL PolyDraw(const POINT* points, const BYTE* types, int count);
    BOOL PolyBezier(const POINT* points, int count);
    BOOL PolyBezierTo(const POINT* points, int count);

    // Simple drawing
    void FillRect(LPCRECT rect, CBrush* brush);
    void FrameRect(LPCRECT rect, CBrush* brush);
    void InvertRect(LPCRECT rect);
    /// Fills with a colour and no brush. The background colour is `colour` afterwards.
    void FillSolidRect(LPCRECT rect, COLORREF colour);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF colour);
    /// A frame one unit wide, the top and left sides in one colour, the others in another. Changes the
    /// background colour.
    void Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight);
    /// Draws the outline of something being dragged by inverting, after erasing the one of before. `size` and
    /// `lastSize` are the thickness of the outlines, NULL for `lastRect` means the first time, and no brush
    /// means the halftone brush.
    void DrawDragRect(LPCRECT rect, SIZE size, LPCRECT lastRect, SIZE lastSize, CBrush* brush = nullptr,
                      CBrush* lastBrush = nullptr);
    BOOL DrawEdge(LPRECT rect, UINT edge, UINT flags);
    BOOL DrawFrameControl(LPRECT rect, UINT type, UINT state);
    void DrawFocusRect(LPCRECT rect); ///< By inverting: drawing it again removes it.
    BOOL DrawIcon(int x, int y, HICON icon);
    BOOL DrawIcon(POINT point, HICON icon);
    // Pictures and text in a state (DSS_DISABLED, DSS_MONO, ...). DrawState adds the DST_ kind to `flags`
    // itself; an icon, text or procedure with the default brush is drawn with the HBRUSH form.
    BOOL DrawState(CPoint pt, CSize size, HBITMAP bitmap, UINT flags, HBRUSH brush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, CBitmap* bitmap, UINT flags, CBrush* brush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON icon, UINT flags, HBRUSH brush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON icon, UINT flags, CBrush* brush);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR text, UINT flags, BOOL prefixText = TRUE,
                   int textLength = 0, HBRUSH brush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR text, UINT flags, BOOL prefixText, int textLength,
                   CBrush* brush);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC drawProc, LPARAM data, UINT flags,
                   HBRUSH brush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC drawProc, LPARAM data, UINT flags, CBrush* brush);

    // Shapes: outlined with the pen, filled with the brush
    BOOL Rectangle(int x1, int y1, int x2, int y2);
    BOOL Rectangle(LPCRECT rect);
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3);
    BOOL RoundRect(LPCRECT rect, POINT corner);
    BOOL Ellipse(int x1, int y1, int x2, int y2);
    BOOL Ellipse(LPCRECT rect);
    BOOL Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Chord(LPCRECT rect, POINT start, POINT end);
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Pie(LPCRECT rect, POINT start, POINT end);
    BOOL Polygon(LPPOINT points, int count);
    BOOL PolyPolygon(LPPOINT points, LPINT polyCounts, int count);

    // Regions
    BOOL FillRgn(CRgn* region, CBrush* brush);
    BOOL FrameRgn(CRgn* region, CBrush* brush, int width, int height);
    BOOL InvertRgn(CRgn* region);
    BOOL PaintRgn(CRgn* region);

    // Pictures
    BOOL PatBlt(int x, int y, int width, int height, DWORD rop);
    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, DWORD rop);
    BOOL StretchBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, int srcWidth,
                    int srcHeight, DWORD rop);
    BOOL MaskBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, CBitmap& mask,
                 int xMask, int yMask, DWORD rop);
    BOOL PlgBlt(LPPOINT corners, CDC* source, int xSrc, int ySrc, int width, int height, CBitmap& mask,
                int xMask, int yMask);
    BOOL TransparentBlt(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, int srcWidth,
                        int srcHeight, UINT transparentColour);
    BOOL AlphaBlend(int x, int y, int width, int height, CDC* source, int xSrc, int ySrc, int srcWidth,
                    int srcHeight, BLENDFUNCTION blend);
    BOOL GradientFill(TRIVERTEX* vertices, ULONG vertexCount, void* mesh, ULONG meshCount, DWORD mode);
    COLORREF GetPixel(int x, int y) const;
    COLORREF GetPixel(POINT point) const;
    COLORREF SetPixel(int x, int y, COLORREF colour); ///< Gives the colour painted.
    COLORREF SetPixel(POINT point, COLORREF colour);
    BOOL SetPixelV(int x, int y, COLORREF colour);
    BOOL SetPixelV(POINT point, COLORREF colour);
    BOOL FloodFill(int x, int y, COLORREF colour);
    BOOL ExtFloodFill(int x, int y, COLORREF colour, UINT fillType);
    BOOL ScrollDC(int dx, int dy, LPCRECT scroll, LPCRECT clip, CRgn* update, LPRECT updateRect);

    // Text. Counts are characters; extents come from the attribute context, or from the output context where
    // the name says so.
    virtual BOOL TextOut(int x, int y, LPCTSTR text, int count);
    BOOL TextOut(int x, int y, const CString& text);
    virtual BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR text, UINT count, LPINT widths);
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text, LPINT widths);
    virtual CSize TabbedTextOut(int x, int y, LPCTSTR text, int count, int tabCount, LPINT tabStops,
                                int tabOrigin);
    CSize TabbedTextOut(int x, int y, const CString& text, int tabCount, LPINT tabStops, int tabOrigin);
    /// Gives the height of the text. A count of -1 means up to the terminating zero.
    virtual int DrawText(LPCTSTR text, int count, LPRECT rect, UINT format);
    int DrawText(const CString& text, LPRECT rect, UINT format);
    virtual int DrawTextEx(LPTSTR text, int count, LPRECT rect, UINT format, LPDRAWTEXTPARAMS params);
    int DrawTextEx(const CString& text, LPRECT rect, UINT format, LPDRAWTEXTPARAMS params);
    CSize GetTextExtent(LPCTSTR text, int count) const;
    CSize GetTextExtent(const CString& text) const;
    CSize GetOutputTextExtent(LPCTSTR text, int count) const;
    CSize GetOutputTextExtent(const CString& text) const;
    CSize GetTabbedTextExtent(LPCTSTR text, int count, int tabCount, LPINT tabStops) const;
    CSize GetTabbedTextExtent(const CString& text, int tabCount, LPINT tabStops) const;
    CSize GetOutputTabbedTextExtent(LPCTSTR text, int count, int tabCount, LPINT tabStops) const;
    CSize GetOutputTabbedTextExtent(const CString& text, int tabCount, LPINT tabStops) const;
    BOOL GetTextExtentExPointI(LPWORD glyphs, int count, int maxExtent, LPINT fit, LPINT dx,
                               LPSIZE size) const;
    BOOL GetTextExtentPointI(LPWORD glyphs, int count, LPSIZE size) const;
    virtual BOOL GrayString(CBrush* brush, BOOL(CALLBACK* output)(HDC, LPARAM, int), LPARAM data, int count,
                            int x, int y, int width, int height);
    UINT GetTextAlign() const;
    UINT SetTextAlign(UINT flags);
    int GetTextFace(int count, LPTSTR name) const;
    int GetTextFace(CString& name) const;
    BOOL GetTextMetrics(LPTEXTMETRIC metrics) const;
    BOOL GetOutputTextMetrics(LPTEXTMETRIC metrics) const;
    int SetTextJustification(int breakExtra, int breakCount);
    int GetTextCharacterExtra() const;
    int SetTextCharacterExtra(int extra);
    DWORD GetCharacterPlacement(LPCTSTR text, int count, int maxExtent, LPGCP_RESULTS results,
                                DWORD flags) const;
    DWORD GetCharacterPlacement(CString& text, int maxExtent, LPGCP_RESULTS results, DWORD flags) const;

    // Fonts
    BOOL GetCharWidth(UINT first, UINT last, LPINT widths) const;
    BOOL GetCharWidth(UINT first, UINT last, float* widths) const;
    BOOL GetOutputCharWidth(UINT first, UINT last, LPINT widths) const;
    BOOL GetCharWidthI(UINT first, UINT count, LPWORD glyphs, LPINT widths) const;
    BOOL GetCharABCWidths(UINT first, UINT last, LPABC widths) const;
    BOOL GetCharABCWidths(UINT first, UINT last, LPABCFLOAT widths) const;
    BOOL GetCharABCWidthsI(UINT first, UINT count, LPWORD glyphs, LPABC widths) const;
    DWORD SetMapperFlags(DWORD flag);
    CSize GetAspectRatioFilter() const;
    DWORD GetFontData(DWORD table, DWORD offset, LPVOID data, DWORD size) const;
    DWORD GetFontLanguageInfo() const;
    int GetKerningPairs(int count, LPKERNINGPAIR pairs) const;
    UINT GetOutlineTextMetrics(UINT size, LPOUTLINETEXTMETRIC metrics) const;
    DWORD GetGlyphOutline(UINT character, UINT format, LPGLYPHMETRICS metrics, DWORD size, LPVOID buffer,
                          const MAT2* matrix) const;

    // Paths
    BOOL BeginPath();
    BOOL EndPath();
    BOOL AbortPath();
    BOOL CloseFigure();
    BOOL FillPath();
    BOOL StrokePath();
    BOOL StrokeAndFillPath();
    BOOL FlattenPath();
    BOOL WidenPath();
    float GetMiterLimit() const;
    BOOL SetMiterLimit(float limit);
    int GetPath(LPPOINT points, LPBYTE types, int count) const;

    // Printing, escapes and metafiles
    int StartDoc(LPDOCINFO info);
    int StartDoc(LPCTSTR name);
    int StartPage();
    int EndPage();
    int EndDoc();
    int AbortDoc();
    int SetAbortProc(BOOL(CALLBACK* abort)(HDC, int));
    BOOL QueryAbort() const; ///< Asks the procedure set before: FALSE when printing is to end.
    virtual int Escape(int escape, int count, LPCSTR inData, LPVOID outData);
    int Escape(int escape, int inputSize, LPCSTR inputData, int outputSize, LPSTR outputData);
    int DrawEscape(int escape, int inputSize, LPCSTR inputData);
    BOOL PlayMetaFile(HMETAFILE metafile);
    BOOL PlayMetaFile(HENHMETAFILE metafile, LPCRECT bounds);
    BOOL AddMetaFileComment(UINT size, const BYTE* data);

protected:
    /// For Create functions: takes over a new context, NULL being their failure. An object that has one
    /// already is an error, and loses it.
    BOOL adopt(HDC dc);

private:
    BOOL(CALLBACK* m_pfnAbort)(HDC, int) = nullptr;
};
