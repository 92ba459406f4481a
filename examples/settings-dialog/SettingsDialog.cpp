// A settings dialog: pages on a shaded tab control, a combo box that completes, sliders, and a preview that
// follows.
#include "Settings.h"
#include "resource.h"

/// A page on the tab control. What is changed on it is seen at once.
class Page : public CShadedTabPage
{
public:
    explicit Page(Settings& settings)
        : m_settings(settings)
    {
    }

protected:
    /// Reads what can be read. OK reads again, and tells what cannot.
    virtual void take() = 0;

    /// The slider button behind an edit.
    void attach(CSliderButton& slider, int edit, CSliderButton::SliderType type, double low, double high,
                int decimals)
    {
        slider.SubclassDlgItem(edit + 1, this);
        slider.SetBuddy(*GetDlgItem(edit));
        slider.SetType(type);
        slider.SetRange(low, high, decimals);
        slider.StepByWheel(true);
        slider.ShowBubble(true);
    }

    afx_msg void OnChange(UINT)
    {
        if (!IsWindowVisible())
            return; // it is being filled
        take();
        GetTopLevelParent()->GetDlgItem(IDC_PREVIEW)->Invalidate(FALSE);
    }
    DECLARE_MESSAGE_MAP()

    Settings& m_settings;
};

BEGIN_MESSAGE_MAP(Page, CShadedTabPage)
    ON_CONTROL_RANGE(EN_CHANGE, 1, 0xFFFE, &Page::OnChange)
    ON_CONTROL_RANGE(CBN_SELENDOK, 1, 0xFFFE, &Page::OnChange)
    ON_CONTROL_RANGE(CColourButton::kChosen, 1, 0xFFFE, &Page::OnChange)
END_MESSAGE_MAP()

class TextPage : public Page
{
public:
    using Page::Page;

protected:
    BOOL OnInitDialog() override
    {
        attach(m_size, IDC_POINTS, CSliderButton::SliderLogarithmic, 6, 72, 1);
        m_size.SetTicks({8, 10, 12, 16, 24, 36, 48});
        m_font.SubclassDlgItem(IDC_FONT, this);
        m_font.SearchInside(true);
        ::EnumFontFamiliesW(CClientDC(this).m_hDC, nullptr, addFont, reinterpret_cast<LPARAM>(&m_font));
        resizeCombo(m_font, 10);
        return CShadedTabPage::OnInitDialog();
    }

    static int CALLBACK addFont(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM combo)
    {
        if (font->lfFaceName[0] != L'@') // those are for vertical lines
            reinterpret_cast<COVOComboBox*>(combo)->AddString(font->lfFaceName);
        return 1;
    }

    void DoDataExchange(CDataExchange* exchange) override
    {
        DDX_CBString(exchange, IDC_FONT, m_settings.font);
        DDX_SliderNumber(exchange, m_size, m_settings.points);
    }

    void take() override
    {
        m_font.GetWindowText(m_settings.font);
        m_settings.points = m_size.Number().value_or(m_settings.points);
    }

private:
    CUnitNumbers m_points{L"pt"};
    COVOComboBox m_font;
    CSliderButton m_size{m_points};
};

class ColoursPage : public Page
{
public:
    using Page::Page;

protected:
    BOOL OnInitDialog() override
    {
        m_ink.SubclassDlgItem(IDC_INK, this);
        m_paper.SubclassDlgItem(IDC_PAPER, this);
        CShadedTabPage::OnInitDialog();
        take();
        return TRUE;
    }

    void DoDataExchange(CDataExchange* exchange) override
    {
        DDX_Colour(exchange, m_ink, m_settings.ink);
        DDX_Colour(exchange, m_paper, m_settings.paper);
    }

    void take() override
    {
        UpdateData(TRUE);
        const double ratio = ovoui::colour::contrast(m_ink.GetColour(), m_paper.GetColour());
        CString text;
        text.Format(L"Contrast %.1f to 1: %s", ratio, ratio < 4.5 ? L"hard to read" : L"good to read");
        SetDlgItemText(IDC_CONTRAST, text);
    }

private:
    CColourButton m_ink;
    CColourButton m_paper;
};

class MarkPage : public Page
{
public:
    using Page::Page;

protected:
    BOOL OnInitDialog() override
    {
        attach(m_strength, IDC_STRENGTH, CSliderButton::SliderLinear, 0, 1, 2);
        m_angle.SetStops(-90, 90);
        m_angle.SetTicks(30);
        m_angle.UseKeyboard(true);
        createInPlace(m_angle, *this, IDC_ANGLE);
        return CShadedTabPage::OnInitDialog();
    }

    void DoDataExchange(CDataExchange* exchange) override
    {
        DDX_Text(exchange, IDC_MARK, m_settings.mark);
        DDX_SliderNumber(exchange, m_strength, m_settings.strength);
        DDX_Angle(exchange, m_angle, m_settings.angle);
    }

    void take() override
    {
        GetDlgItemText(IDC_MARK, m_settings.mark);
        m_settings.strength = m_strength.Number().value_or(m_settings.strength);
        m_settings.angle = m_angle.GetPos();
    }

    afx_msg void OnHScroll(UINT, UINT position, CScrollBar*)
    {
        m_angle.SetPos(static_cast<short>(position));
        OnChange(IDC_ANGLE);
    }
    DECLARE_MESSAGE_MAP()

private:
    CUnitNumbers m_shares{CUnitNumbers::Percent};
    CSliderButton m_strength{m_shares};
    CDialSlider m_angle;
};

BEGIN_MESSAGE_MAP(MarkPage, Page)
    ON_WM_HSCROLL()
END_MESSAGE_MAP()

class SettingsDialog : public COVOModalDialog
{
public:
    explicit SettingsDialog(Settings& settings)
        : COVOModalDialog(IDD_SETTINGS, nullptr)
        , m_settings(settings)
    {
    }

protected:
    BOOL OnInitDialog() override
    {
        COVOModalDialog::OnInitDialog();
        m_tabs.SubclassDlgItem(IDC_TABS, this);
        m_text.AddTo(m_tabs, IDD_TEXT, L"Text");
        m_colours.AddTo(m_tabs, IDD_COLOURS, L"Colours");
        m_mark.AddTo(m_tabs, IDD_MARK, L"Mark");
        return TRUE;
    }

    /// Ctrl+Tab pages.
    BOOL PreTranslateMessage(MSG* message) override
    {
        return PreTranslateTabControl(*message, m_tabs) || COVOModalDialog::PreTranslateMessage(message);
    }

    afx_msg void OnTab(NMHDR*, LRESULT*) { CShadedTabPage::ShowChosen(m_tabs); }

    afx_msg void OnDrawItem(int, DRAWITEMSTRUCT* item)
    {
        static const CString kSample(
            L"The hedge along the lane was cut in March, and by the end of May it was full of "
            L"birds again. Those who walked by in the evening stopped for a while, listened, "
            L"and went on a little more slowly than before. ");
        m_settings.draw(*CDC::FromHandle(item->hDC), item->rcItem, kSample + kSample);
    }

    /// Each page comes up to be read: one that cannot be tells so itself, and stays.
    void OnOK() override
    {
        Page* const pages[] = {&m_text, &m_colours, &m_mark};
        for (int i = 0; i < m_tabs.GetItemCount(); ++i) {
            m_tabs.SetCurSel(i);
            CShadedTabPage::ShowChosen(m_tabs);
            if (!pages[i]->UpdateData(TRUE))
                return;
        }
        COVOModalDialog::OnOK();
    }
    DECLARE_MESSAGE_MAP()

private:
    Settings& m_settings;
    TextPage m_text{m_settings};
    ColoursPage m_colours{m_settings};
    MarkPage m_mark{m_settings};
    CShadedTabCtrl m_tabs;
};

BEGIN_MESSAGE_MAP(SettingsDialog, COVOModalDialog)
    ON_NOTIFY(TCN_SELCHANGE, IDC_TABS, &SettingsDialog::OnTab)
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

class SettingsApp : public CWinApp
{
    BOOL InitInstance() override
    {
        SetRegistryKey(L"ovoui examples");
        const CGdiPlusSession gdiPlus; // for the dialog behind the colour buttons
        Settings settings;
        settings.exchange(false);
        SettingsDialog dialog(settings);
        m_pMainWnd = &dialog;
        if (dialog.DoModal() == IDOK)
            settings.exchange(true);
        return FALSE;
    }
} theApp;
