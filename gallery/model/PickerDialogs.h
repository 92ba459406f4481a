// Colour dialogs as a host derives them.
#pragma once

#include <ovoui/colour/ColPickerDlg.h>
#include <ovoui/colour/ShadedTabCtrl.h>

#include <array>
#include <functional>
#include <initializer_list>

/// What the gallery wants to hear of a picker.
struct PickerHost
{
    std::function<void(const Colour& colour, bool final)> changed = [](const Colour&, bool) {};
};

/// The library's own dialog; it reports every change.
class LivePicker : public ColPickerDlg
{
public:
    LivePicker(const PickerHost& host, ColPickerModeType mode, const Colour& colour, CWnd* parent);

    /// Presses on the ring as soon as the dialog is open and moves on to this hue, in degrees. The pointer
    /// goes there.
    void dragTo(double hue) { m_dragTo = hue; }

protected:
    void UpdateExternalColours(bool final) override;
    afx_msg void OnShowWindow(BOOL shown, UINT status);
    DECLARE_MESSAGE_MAP()

private:
    void drag(double fromHue, double toHue);
    CPoint onRing(double hue) const;

    const PickerHost& m_host;
    double m_dragTo = -1;
};

/// A template of its own, with swatches for custom colours, which the process keeps.
class SwatchPicker : public ColPickerDlgBase
{
public:
    SwatchPicker(const PickerHost& host, const Colour& colour, CWnd* parent);

protected:
    SwatchPicker(int dialogTemplate, const PickerHost& host, const Colour& colour, CWnd* parent);
    COLORREF& customCols(int index) override;
    void UpdateExternalColours(bool final) override;

private:
    const PickerHost& m_host;
};

/// The same from right to left, as in a program in Arabic or Hebrew.
class MirroredPicker : public SwatchPicker
{
public:
    MirroredPicker(const PickerHost& host, const Colour& colour, CWnd* parent);
};

/// The page of a shaded tab control.
class PickerPage : public SwatchPicker
{
public:
    PickerPage(const PickerHost& host, const Colour& colour, CShadedTabCtrl& tabs);

    void open();

protected:
    CShadedTabCtrl* tabCtrl() override { return &m_tabs; }
    void OnOK() override {}
    void OnCancel() override {}

private:
    CShadedTabCtrl& m_tabs;
};

/// A shaded tab control with such a page.
class PickerTabs : public CShadedTabCtrl
{
public:
    PickerTabs(const PickerHost& host, const Colour& colour);

    /// Makes the tabs and shows the picker; to be called when the tab control has its window.
    void open(std::initializer_list<LPCTSTR> names);

    Colour colour() { return m_picker.GetColour(); }

private:
    PickerPage m_picker;
};

/// A dialog with such a tab control.
class TabbedPicker : public CDialog
{
public:
    TabbedPicker(const PickerHost& host, const Colour& colour, CWnd* parent);

    Colour colour() { return m_tabs.colour(); }

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

private:
    PickerTabs m_tabs;
};
