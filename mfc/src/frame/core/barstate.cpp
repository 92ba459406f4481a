#include "barstate.h"

#include <algorithm>
#include <tuple>

namespace afxdetail
{

namespace
{

bool contains(std::span<const unsigned> ids, unsigned id)
{
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

bool isFirstOfItsId(std::span<const SavedBar> saved, std::size_t index)
{
    return std::none_of(saved.begin(), saved.begin() + static_cast<std::ptrdiff_t>(index),
                        [&](const SavedBar& bar) { return bar.id == saved[index].id; });
}

} // namespace

std::vector<DockStep> dockSteps(std::span<const SavedBar> saved, std::span<const unsigned> bars,
                                std::span<const unsigned> dockBars)
{
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < saved.size(); ++i)
        if (!saved[i].floating && contains(bars, saved[i].id) && contains(dockBars, saved[i].dockBar) &&
            isFirstOfItsId(saved, i))
            order.push_back(i);
    std::stable_sort(order.begin(), order.end(), [&](std::size_t one, std::size_t other) {
        const auto key = [&](std::size_t index) {
            const SavedBar& bar = saved[index];
            return std::tuple(bar.dockBar, bar.row, bar.position);
        };
        return key(one) < key(other);
    });

    std::vector<DockStep> steps;
    for (const std::size_t index : order) {
        DockStep step{index, true, 0};
        if (!steps.empty()) {
            const SavedBar& before = saved[steps.back().saved];
            const bool sameSide = before.dockBar == saved[index].dockBar;
            step.newRow = !sameSide || before.row != saved[index].row;
            if (sameSide)
                step.row = steps.back().row + (step.newRow ? 1 : 0);
        }
        steps.push_back(step);
    }
    return steps;
}

} // namespace afxdetail
