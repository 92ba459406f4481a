// A page of the gallery: a dialog that shows one control or a few functions.
#pragma once

#include "PageLayout.h"

#include <afxwin.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// The page's window goes when another page is opened, which may happen while a message handler of this page
/// shows a modal box. The object stays until its handlers have returned; after such a box they look whether
/// there is still a window.
class GalleryPage : public CDialog, public std::enable_shared_from_this<GalleryPage>
{
public:
    using Log = std::function<void(const std::wstring& line)>;

    explicit GalleryPage(UINT templateId);
    ~GalleryPage() override;

    /// Makes the page a child of the gallery's window. `log` takes a line about everything that happens from
    /// then on.
    bool open(CWnd& parent, Log log);

    /// Names of pictures beside that of the page itself; each is what `pose` shows.
    virtual std::vector<std::wstring> poses() const { return {}; }
    /// Brings something to the screen: changes the page, or opens a modal box and returns when it is gone.
    /// False when there is no such pose.
    virtual bool pose(const std::wstring& /*name*/) { return false; }

    /// Scrolls until the control with the focus is in view, where the page is larger than its room.
    void revealFocus();

    /// Keys of dialogs are handled by the frame, which knows what is beside the page.
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void log(const std::wstring& line) const;

    // Layout, from OnInitDialog on. Templates are at most 440 by 260 dialog units, which the gallery's window
    // has room for when it opens.

    /// Gives a control a share of the room that the page gains when it is larger than its template.
    void stretch(int id, const Stretch& how);
    /// Where the template has a control, in client pixels.
    CRect placeOf(int id) const;
    /// Puts a child window where the template has an empty control: it gets the number, the place and the
    /// turn in the order of Tab, and the empty control goes.
    void replace(int id, CWnd& by);
    /// Pixels for a length that is given in pixels at 96 dots per inch: for what is drawn or created by code.
    int scaled(int length) const;

    BOOL OnInitDialog() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    // A page is never closed by itself.
    void OnOK() override {}
    void OnCancel() override {}

private:
    bool scroll(UINT message, WPARAM wParam, LPARAM lParam);
    void logNotify(const NMHDR& header);
    void endTurn();

    Log m_log;
    unsigned m_notified = 0; ///< notifications since the message loop had its turn
    PageLayout m_layout;
};
