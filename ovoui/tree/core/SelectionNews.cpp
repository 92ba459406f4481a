#include <ovoui/tree/core/SelectionNews.h>

namespace ovoui::tree
{

std::vector<SelectionNews> selectionNews(std::size_t before, std::size_t removed, std::size_t added)
{
    if (removed + added > kMostTold)
        return {{SelectionEvent::Within, 0}};
    const bool startsAnew = removed == before && added > 0;
    const bool passesOn = startsAnew && removed == 1;
    std::vector<SelectionNews> news;
    for (std::size_t i = 0; i < removed && !passesOn; ++i)
        news.push_back({SelectionEvent::Removed, i});
    for (std::size_t i = 0; i < added; ++i)
        news.push_back({startsAnew && i == 0 ? SelectionEvent::Selected : SelectionEvent::Added, i});
    return news;
}

} // namespace ovoui::tree
