#include "panelayout.h"

#include <algorithm>

namespace afxdetail
{

std::vector<int> paneEnds(std::span<const PaneExtent> panes, int room, int margin)
{
    int total = 0;
    for (const PaneExtent& pane : panes)
        total += pane.width + margin;
    int spare = std::max(0, room - total);

    std::vector<int> ends;
    int right = 0;
    for (const PaneExtent& pane : panes) {
        right += pane.width + margin;
        if (pane.stretched) {
            right += spare;
            spare = 0;
        }
        ends.push_back(right);
    }
    return ends;
}

} // namespace afxdetail
