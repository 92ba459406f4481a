#include <ovoui/frame/core/BoxAnswers.h>

#include <algorithm>
#include <numeric>

namespace ovoui::frame
{
namespace
{

// The platform's values
constexpr int kOk = 1;
constexpr int kCancel = 2;
constexpr int kIgnore = 5;
constexpr int kNo = 7;
constexpr int kHelp = 9;
constexpr unsigned kClicked = 0;

} // namespace

bool hasButton(const MessageBoxButtons& buttons, int id)
{
    return std::ranges::count(buttons.buttons, id, &MessageBoxButton::id) > 0;
}

int closeAnswer(const MessageBoxButtons& buttons)
{
    for (const int id : {kCancel, kNo, kIgnore, kOk})
        if (hasButton(buttons, id))
            return id;
    return kCancel;
}

bool isAnswer(const MessageBoxButtons& buttons, int id, unsigned code)
{
    return code == kClicked && id != kHelp && hasButton(buttons, id);
}

bool mayBeKept(const MessageBoxButtons& buttons, int answer)
{
    return answer != 0 && answer != kCancel && answer != kHelp && hasButton(buttons, answer);
}

std::vector<int> tabOrder(const MessageBoxButtons& buttons)
{
    std::vector<int> positions(buttons.buttons.size());
    std::iota(positions.begin(), positions.end(), 0);
    if (!positions.empty() && buttons.buttons.back().id == kHelp)
        std::ranges::rotate(positions, positions.end() - 1);
    return positions;
}

} // namespace ovoui::frame
