// CFrameWnd: the arrangement of its bars, taken down and brought about.
#include <afxext.h>

#include "bararea.h"
#include "core/barstate.h"
#include "dockmemory.h"
#include "floatplace.h"

namespace
{

using afxdetail::DockMemory;

DockMemory& memoryOf(std::unique_ptr<DockMemory>& memory)
{
    if (!memory)
        memory = std::make_unique<DockMemory>();
    return *memory;
}

std::vector<const CControlBarInfo*> infosOf(const CDockState& state)
{
    std::vector<const CControlBarInfo*> infos;
    for (INT_PTR i = 0; i < state.m_arrBarInfo.GetSize(); ++i)
        infos.push_back(static_cast<const CControlBarInfo*>(state.m_arrBarInfo[i]));
    return infos;
}

afxdetail::SavedBar savedBar(const CControlBarInfo& info)
{
    return {info.id, info.floating != FALSE, info.dockBar, info.row, info.position, info.start};
}

} // namespace

// Taking down

void CFrameWnd::GetDockState(CDockState& state) const
{
    state.Clear();
    for (CControlBar* bar : m_bars) {
        if (!bar->m_hWnd)
            continue;
        auto info = std::make_unique<CControlBarInfo>();
        info->id = static_cast<UINT>(bar->GetDlgCtrlID());
        info->visible = bar->IsVisible();
        info->mruWidth = bar->m_nMRUWidth;
        const CDockBar* const dockBar = bar->m_pDockBar;
        DockMemory memory = bar->m_dockMemory ? *bar->m_dockMemory : DockMemory{};
        if (dockBar && dockBar->m_bFloating) {
            info->floating = TRUE;
            memory.floated = true;
            memory.horizontal = (dockBar->m_dwStyle & CBRS_ORIENT_HORZ) != 0;
            memory.floatPoint = afxdetail::screenRectOf(*dockBar->GetParent()).TopLeft();
        } else if (dockBar) {
            memory.dockBar = static_cast<UINT>(dockBar->GetDlgCtrlID());
            memory.place = dockBar->placeOf(*bar, memory.start);
        }
        info->dockBar = memory.dockBar;
        info->row = static_cast<int>(memory.place.row);
        info->position = static_cast<int>(memory.place.position);
        info->start = memory.start;
        info->floated = memory.floated;
        info->horizontal = memory.horizontal;
        info->floatPoint = memory.floatPoint;
        state.m_arrBarInfo.Add(info.release());
    }
}

// Bringing about

void CFrameWnd::SetDockState(const CDockState& state)
{
    const std::vector<const CControlBarInfo*> infos = infosOf(state);
    std::vector<afxdetail::SavedBar> saved;
    for (const CControlBarInfo* info : infos)
        saved.push_back(savedBar(*info));
    std::vector<unsigned> bars;
    for (const CControlBar* bar : m_bars)
        if (bar->m_hWnd)
            bars.push_back(static_cast<unsigned>(bar->GetDlgCtrlID()));
    std::vector<unsigned> sides;
    for (const auto& side : m_dockBars)
        sides.push_back(static_cast<unsigned>(side->GetDlgCtrlID()));

    for (const CControlBarInfo* info : infos)
        if (CControlBar* bar = GetControlBar(info->id); bar && info->mruWidth > 0)
            bar->m_nMRUWidth = info->mruWidth;
    for (const afxdetail::DockStep& step : afxdetail::dockSteps(saved, bars, sides)) {
        CControlBar* const bar = GetControlBar(saved[step.saved].id);
        CDockBar* const side = dockBar(saved[step.saved].dockBar);
        if (!bar || !side || !bar->m_dockingEnabled)
            continue;
        // Every step goes behind the ones before it: the rows that are not part of the state come last.
        const auto row = static_cast<std::size_t>(step.row);
        if (bar->m_pDockBar)
            bar->m_pDockBar->release(*bar);
        side->take(*bar, {row, step.newRow, static_cast<std::size_t>(-1)}, saved[step.saved].start);
    }
    for (const CControlBarInfo* info : infos) {
        CControlBar* const bar = GetControlBar(info->id);
        if (!bar)
            continue;
        if (info->floating && bar->m_dockingEnabled) {
            const bool lies = info->horizontal != FALSE;
            const CPoint point = afxdetail::placeToFloatAgain(*bar, info->floatPoint, lies);
            if (GetControlBar(info->id) != bar)
                continue; // the bar that was asked for its size has gone
            FloatControlBar(bar, point, lies ? CBRS_ALIGN_TOP : CBRS_ALIGN_LEFT);
        }
        restoreMemory(*bar, *info);
        bar->delayShow(info->visible != FALSE);
    }
    RecalcLayout();
}

/// Where a bar goes when its user makes it float or docks it again.
void CFrameWnd::restoreMemory(CControlBar& bar, const CControlBarInfo& info)
{
    DockMemory& memory = memoryOf(bar.m_dockMemory);
    memory.dockBar = info.dockBar;
    memory.place = {static_cast<std::size_t>(std::max(0, info.row)), false,
                    static_cast<std::size_t>(std::max(0, info.position))};
    memory.start = info.start;
    memory.floated = info.floated != FALSE;
    memory.floatPoint = info.floatPoint;
    memory.horizontal = info.horizontal != FALSE;
}

// The profile

void CFrameWnd::LoadBarState(LPCTSTR profileName)
{
    CDockState state;
    state.LoadState(profileName);
    if (state.m_arrBarInfo.GetSize() > 0)
        SetDockState(state);
}

void CFrameWnd::SaveBarState(LPCTSTR profileName) const
{
    CDockState state;
    GetDockState(state);
    state.SaveState(profileName);
}
