// Painting a round slider against the fewest fills and lines that give the same pixels.
#include "support/InTurns.h"

#include <ovoui/sliders/RoundSlider.h>

#include <catch2/catch.hpp>

#include <vector>

namespace
{

constexpr int kWidth = 288;
constexpr int kHeight = 40;

/// A slider without a number, so that only the cylinder is compared, drawing into memory.
class Slider : public CRoundSlider
{
public:
    Slider()
        : CRoundSlider(false)
    {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 200), nullptr,
                          0);
        Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &m_parent, 1);
        m_parent.ShowWindow(SW_SHOW);
        SetPos(33);
    }

    void paint()
    {
        Invalidate(FALSE);
        UpdateWindow();
    }

protected:
    void drawOnCylinder(CDC&, const CRect&, double) override {}

private:
    CWnd m_parent;
};

/// The columns of the slider's picture, and where their colours change.
struct Columns
{
    explicit Columns(CWnd& slider)
    {
        CClientDC dc(&slider);
        for (int x = 0; x < kWidth; ++x) {
            const COLORREF colour = dc.GetPixel(x, kHeight / 2);
            if (runs.empty() || runs.back().colour != colour)
                runs.push_back({x, x + 1, colour});
            runs.back().right = x + 1;
        }
    }
    struct Run
    {
        int left;
        int right;
        COLORREF colour;
    };
    std::vector<Run> runs;
};

/// A window that paints one fill for each run of a colour, into memory and then all at once.
class ByHand : public CWnd
{
public:
    explicit ByHand(std::vector<Columns::Run> runs)
        : m_runs(std::move(runs))
    {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 200), nullptr,
                          0);
        Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, kWidth, kHeight), &m_parent,
               1);
        m_parent.ShowWindow(SW_SHOW);
    }

    void paint()
    {
        Invalidate(FALSE);
        UpdateWindow();
    }

protected:
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg void OnPaint()
    {
        CPaintDC dc(this);
        CDC memory;
        memory.CreateCompatibleDC(&dc);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&dc, kWidth, kHeight);
        CBitmap* const old = memory.SelectObject(&bitmap);
        CRect edge(1, 1, kWidth - 1, kHeight - 1);
        memory.FillSolidRect(0, 0, kWidth, kHeight, ::GetSysColor(COLOR_BTNFACE));
        memory.DrawEdge(&edge, EDGE_ETCHED, BF_RECT);
        for (const Columns::Run& run : m_runs)
            memory.FillSolidRect(run.left, 2, run.right - run.left, kHeight - 4, run.colour);
        dc.BitBlt(0, 0, kWidth, kHeight, &memory, 0, 0, SRCCOPY);
        memory.SelectObject(old);
    }
    DECLARE_MESSAGE_MAP()

private:
    CWnd m_parent;
    const std::vector<Columns::Run> m_runs;
};

BEGIN_MESSAGE_MAP(ByHand, CWnd)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
END_MESSAGE_MAP()

} // namespace

TEST_CASE("painting a cylinder of 288 by 40 pixels")
{
    Slider slider;
    slider.paint();
    ByHand byHand(Columns(slider).runs);
    InTurns turns;
    turns.add("one fill for each run of a colour [baseline]", [&] { byHand.paint(); });
    turns.add("the slider [at most 1.2]", [&] { slider.paint(); });
    turns.run("painting a cylinder of 288 by 40 pixels", 201);
}
