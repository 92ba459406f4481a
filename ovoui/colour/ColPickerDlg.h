/// The colour-picking dialog, ready to use.
#pragma once

#include <ovoui/colour/ColPickerDlgBase.h>

/// With an edit and a slider for alpha when the colour has one; without custom colours.
class OVOUI_API ColPickerDlg : public ColPickerDlgBase
{
    DECLARE_DYNAMIC(ColPickerDlg)

public:
    /// As the first constructor of the base: `app`, `mode`, `colour`, `centreOn`, `parent`.
    ColPickerDlg(CWinApp& app, ColPickerModeType mode, const Colour& colour, CWnd* centreOn, CWnd* parent);
    ~ColPickerDlg() override;

protected:
    /// One and the same for every `index`, since this dialog does not show any.
    COLORREF& customCols(int index) override;
    void DoDataExchange(CDataExchange* exchange) override;
    DECLARE_MESSAGE_MAP()
};
