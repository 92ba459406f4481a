/// What the actions of clicks and keys make of a selection: a row of items, some of them selected.
#pragma once

#include <ovoui/tree/core/Action.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <set>
#include <vector>

struct SelectionModel
{
    static constexpr int kItems = 4;
    static constexpr int kNone = -1;

    std::set<int> selected;
    int caret = kNone;
    int anchor = kNone;
    int menus = 0; ///< how often a context menu was asked for

    /// What a range selects that ends at `item`: without an anchor it goes to the last item.
    static std::set<int> range(int anchor, int item)
    {
        std::set<int> items;
        const int other = anchor == kNone ? kItems - 1 : anchor;
        for (int i = std::min(other, item); i <= std::max(other, item); ++i)
            items.insert(i);
        return items;
    }

    /// Does what an action says. `item` is the one aimed at; `end` stands for it in ranges and anchors where
    /// there is none.
    void act(ovoui::tree::Action action, int item, int end)
    {
        using enum ovoui::tree::Action;
        const int aim = item == kNone ? end : item;
        switch (action) {
        case SelectAlone:
        case SelectForCertain:
            selectAlone(item);
            break;
        case Clear:
            selectAlone(kNone);
            break;
        case SelectRange:
            if (aim == kNone) {
                selectAlone(kNone);
                break;
            }
            selected = range(anchor, aim);
            caret = aim;
            break;
        case AddRange:
            if (aim != kNone) {
                selected.merge(range(anchor, aim));
                caret = aim;
            }
            break;
        case Add:
            selected.insert(item);
            break;
        case Remove:
            selected.erase(item);
            break;
        case ToggleCaret:
            if (caret != kNone && !selected.erase(caret))
                selected.insert(caret);
            break;
        case MoveCaret:
            caret = item;
            break;
        case SelectAll:
            selected = range(0, kItems - 1);
            break;
        case MoveAnchor:
            if (aim != kNone)
                anchor = aim;
            break;
        case AskForMenu:
            ++menus;
            break;
        default:
            break;
        }
    }

    void act(const ovoui::tree::Actions& actions, int item, int end = kNone)
    {
        for (const ovoui::tree::Action action : actions)
            act(action, item, end);
    }

    void selectAlone(int item)
    {
        selected.clear();
        caret = item;
        if (item != kNone)
            selected.insert(item);
    }

    friend bool operator==(const SelectionModel&, const SelectionModel&) = default;
    friend std::ostream& operator<<(std::ostream& out, const SelectionModel& model)
    {
        out << "selected";
        for (const int item : model.selected)
            out << ' ' << item;
        return out << ", caret " << model.caret << ", anchor " << model.anchor << ", menus " << model.menus;
    }
};

/// Calls `visit` with every selection, caret and anchor that there can be.
template <class Visit>
void forEveryModel(Visit visit)
{
    for (int bits = 0; bits < 1 << SelectionModel::kItems; ++bits)
        for (int caret = SelectionModel::kNone; caret < SelectionModel::kItems; ++caret)
            for (int anchor = SelectionModel::kNone; anchor < SelectionModel::kItems; ++anchor) {
                SelectionModel model;
                for (int item = 0; item < SelectionModel::kItems; ++item)
                    if (bits & 1 << item)
                        model.selected.insert(item);
                model.caret = caret;
                model.anchor = anchor;
                visit(model);
            }
}

inline int countOf(const ovoui::tree::Actions& actions, ovoui::tree::Action action)
{
    return static_cast<int>(std::count(actions.begin(), actions.end(), action));
}
