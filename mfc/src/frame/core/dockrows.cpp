#include "dockrows.h"

#include <algorithm>

namespace afxdetail
{

namespace
{

constexpr int kFarthest = 1 << 24; // pixels: beyond all screens, and far from the end of all numbers

/// Cuts lengths, from the last one, until they fit.
void cut(std::vector<Span>& spans, int room)
{
    int total = 0;
    for (Span& span : spans) {
        span.length = std::min(span.length, room);
        total += span.length;
    }
    for (auto span = spans.rbegin(); span != spans.rend() && total > room; ++span) {
        const int least = std::min(span->length, kLeastLength);
        const int taken = std::min(total - room, span->length - least);
        span->length -= taken;
        total -= taken;
    }
    // Not even the least of all: the last ones go.
    for (auto span = spans.rbegin(); span != spans.rend() && total > room; ++span) {
        const int taken = std::min(total - room, span->length);
        span->length -= taken;
        total -= taken;
    }
}

} // namespace

std::vector<Span> placeRow(const DockRow& row, int room)
{
    room = std::max(room, 0);
    std::vector<Span> spans;
    for (const DockedBar& bar : row)
        // A profile may hold any number.
        spans.push_back({std::clamp(bar.start, 0, kFarthest), bar.shown ? std::max(bar.length, 0) : 0});
    cut(spans, room);
    int end = 0;
    for (Span& span : spans) {
        if (span.length > 0)
            span.start = std::max(span.start, end);
        end = std::max(end, span.length > 0 ? span.end() : 0);
    }
    int limit = room;
    for (auto span = spans.rbegin(); span != spans.rend(); ++span) {
        if (span->length == 0)
            continue;
        span->start = std::min(span->start, limit - span->length);
        limit = span->start;
    }
    return spans;
}

int depthOf(const DockRow& row)
{
    int depth = 0;
    for (const DockedBar& bar : row)
        if (bar.shown)
            depth = std::max(depth, bar.depth);
    return depth;
}

int depthOf(const DockRows& rows)
{
    int depth = 0;
    for (const DockRow& row : rows.rows)
        depth += depthOf(row);
    return depth;
}

int lengthOf(const DockRows& rows)
{
    int longest = 0;
    for (const DockRow& row : rows.rows) {
        int length = 0;
        for (const DockedBar& bar : row)
            length += bar.shown ? bar.length : 0;
        longest = std::max(longest, length);
    }
    return longest;
}

std::vector<PlacedBar> placeRows(const DockRows& rows, int room)
{
    std::vector<PlacedBar> placed;
    int across = 0;
    for (const DockRow& row : rows.rows) {
        const std::vector<Span> spans = placeRow(row, room);
        for (std::size_t i = 0; i < row.size(); ++i)
            if (row[i].shown)
                placed.push_back({row[i].bar, spans[i], {across, row[i].depth}});
        across += depthOf(row);
    }
    return placed;
}

DockPlace findPlace(const DockRows& rows, int room, int start, int across)
{
    int begin = 0;
    for (std::size_t i = 0; i < rows.rows.size(); ++i) {
        const int depth = depthOf(rows.rows[i]);
        const int margin = depth / 4; // near its edge a row is not meant
        if (depth > 0 && across < begin + margin)
            return {i, true, 0};
        if (depth > 0 && across < begin + depth - margin) {
            const std::vector<Span> spans = placeRow(rows.rows[i], room);
            const auto before = std::count_if(spans.begin(), spans.end(),
                                              [=](const Span& span) { return span.start < start; });
            return {i, false, static_cast<std::size_t>(before)};
        }
        begin += depth;
    }
    return lastPlace(rows);
}

DockPlace lastPlace(const DockRows& rows)
{
    return {rows.rows.size(), true, 0};
}

DockPlace placeOf(const DockRows& rows, const void* bar)
{
    for (std::size_t i = 0; i < rows.rows.size(); ++i) {
        const DockRow& row = rows.rows[i];
        const auto found =
            std::find_if(row.begin(), row.end(), [=](const DockedBar& one) { return one.bar == bar; });
        if (found != row.end())
            return {i, row.size() == 1, static_cast<std::size_t>(found - row.begin())};
    }
    return lastPlace(rows);
}

void insertBar(DockRows& rows, DockPlace place, const DockedBar& bar)
{
    const DockPlace old = placeOf(rows, bar.bar);
    if (old.row < rows.rows.size()) {
        if (old.row == place.row && !place.newRow && old.position < place.position)
            --place.position;
        if (old.newRow && old.row == place.row) // in its own row it stays alone
            place.newRow = true;
        else if (old.newRow && old.row < place.row)
            --place.row;
        removeBar(rows, bar.bar);
    }
    place.row = std::min(place.row, rows.rows.size());
    if (place.newRow || place.row == rows.rows.size()) {
        rows.rows.insert(rows.rows.begin() + static_cast<std::ptrdiff_t>(place.row), DockRow{bar});
        return;
    }
    DockRow& row = rows.rows[place.row];
    place.position = std::min(place.position, row.size());
    row.insert(row.begin() + static_cast<std::ptrdiff_t>(place.position), bar);
}

void settleRow(DockRows& rows, const void* bar, int room)
{
    const DockPlace place = placeOf(rows, bar);
    if (place.row == rows.rows.size())
        return;
    DockRow& row = rows.rows[place.row];
    const std::vector<Span> spans = placeRow(row, room);
    for (std::size_t i = 0; i < row.size(); ++i)
        if (row[i].shown)
            row[i].start = spans[i].start;
}

void removeBar(DockRows& rows, const void* bar)
{
    for (DockRow& row : rows.rows)
        std::erase_if(row, [=](const DockedBar& one) { return one.bar == bar; });
    std::erase_if(rows.rows, [](const DockRow& row) { return row.empty(); });
}

} // namespace afxdetail
