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
    void drawInto(CDC& dc) { paintBody(dc, CRect(0, 0, kWidth, kHeight), GetPos()); }

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

/// The same picture by the fewest calls: one fill for each run of a colour.
void fillByHand(CDC& dc, const std::vector<Columns::Run>& runs)
{
    CRect edge(1, 1, kWidth - 1, kHeight - 1);
    dc.FillSolidRect(0, 0, kWidth, kHeight, ::GetSysColor(COLOR_BTNFACE));
    dc.DrawEdge(&edge, EDGE_ETCHED, BF_RECT);
    for (const Columns::Run& run : runs)
        dc.FillSolidRect(run.left, 2, run.right - run.left, kHeight - 4, run.colour);
}

/// A bitmap to draw into, for a window that it can be copied to.
class Memory
{
public:
    explicit Memory(CDC& window)
        : m_window(window)
    {
        dc.CreateCompatibleDC(&window);
        m_bitmap.CreateCompatibleBitmap(&window, kWidth, kHeight);
        m_old = dc.SelectObject(&m_bitmap);
    }
    ~Memory() { dc.SelectObject(m_old); }
    Memory(const Memory&) = delete;
    Memory& operator=(const Memory&) = delete;

    void copy() { m_window.BitBlt(0, 0, kWidth, kHeight, &dc, 0, 0, SRCCOPY); }

    CDC dc;

private:
    CDC& m_window;
    CBitmap m_bitmap;
    CBitmap* m_old = nullptr;
};

/// A window that paints by hand, into memory and then all at once.
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
        Memory memory(dc);
        fillByHand(memory.dc, m_runs);
        memory.copy();
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
    turns.add("a window that paints by the fewest fills [baseline]", [&] { byHand.paint(); });
    turns.add("the slider [at most 1.2]", [&] { slider.paint(); });
    turns.run("painting a cylinder of 288 by 40 pixels", 201);
}

TEST_CASE("drawing a cylinder into memory, beside the fills alone")
{
    Slider slider;
    slider.paint();
    const std::vector<Columns::Run> runs = Columns(slider).runs;
    CClientDC window(&slider);
    Memory memory(window);
    InTurns turns;
    turns.add("the fewest fills [baseline]", [&] { fillByHand(memory.dc, runs); });
    turns.add("the slider's drawing [at most 1.2]", [&] { slider.drawInto(memory.dc); });
    turns.run("drawing a cylinder into memory", 2001);
}
