/// Not exported. The colours that a colour button drops.
#pragma once

#include <ovoui/colour/core/CellLayout.h>
#include <ovoui/frame/Lifeline.h>

#include <afxwin.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ovoui::colour
{

struct ColourIdentity;
enum class DropInput;

/// A popup that never takes the activation: its button keeps the focus, and hands it the keys. While it is
/// open it has the mouse captured.
class ColourDrop : public CWnd
{
public:
    struct Content
    {
        std::vector<COLORREF> colours;
        int columns = 1;
        std::wstring line; ///< the text of the line below the colours; empty for none
        int current = -1;  ///< what is marked at first; -1 for nothing
    };
    /// A cell is a colour, or the line where it is as many as there are colours. Each may destroy the popup.
    struct Calls
    {
        std::function<void(int cell)> pointed; ///< the mark has moved
        std::function<void(int cell)> chosen;
        std::function<void()> closed; ///< by a press elsewhere, or by another window that takes the mouse
    };

    ColourDrop(Content content, Calls calls);
    ~ColourDrop() override;

    /// Opens below a button, or above it where the screen ends.
    bool open(CWnd& button);

    void press(UINT key);

    int current() const { return m_content.current; }
    /// On the screen.
    CRect cellRect(int cell) const;

protected:
    afx_msg void OnCaptureChanged(CWnd* wnd);
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg int OnMouseActivate(CWnd* desktop, UINT hitTest, UINT message);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    void point(int cell);
    void mouse(DropInput input, CPoint where);
    void drawLine(CDC& dc) const;
    std::wstring nameOf(int cell) const;
    CFont* font() const;

    Content m_content;
    const Calls m_calls;
    std::unique_ptr<DropLayout> m_layout;
    CWnd* m_button = nullptr;
    CPoint m_pointer; // where it was last, on the screen
    std::shared_ptr<ColourIdentity> m_identity;
    Lifeline m_lifeline;
};

} // namespace ovoui::colour
