// A page of the gallery: a dialog that shows one control or a few functions.
#pragma once

#include <afxwin.h>

#include <functional>
#include <string>
#include <vector>

class GalleryPage : public CDialog
{
public:
    using Log = std::function<void(const std::wstring& line)>;

    explicit GalleryPage(UINT templateId);
    ~GalleryPage() override;

    /// Makes the page a child of the gallery's window. `log` takes a line about everything that happens from then
    /// on.
    bool open(CWnd& parent, Log log);

    /// Names of pictures beside that of the page itself; each is what `pose` shows.
    virtual std::vector<std::wstring> poses() const { return {}; }
    /// Brings something to the screen: changes the page, or opens a modal box and returns when it is gone. False
    /// when there is no such pose.
    virtual bool pose(const std::wstring& /*name*/) { return false; }

    /// Keys of dialogs are handled by the frame, which knows what is beside the page.
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void log(const std::wstring& line) const;

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    // A page is never closed by itself.
    void OnOK() override {}
    void OnCancel() override {}

private:
    Log m_log;
};
