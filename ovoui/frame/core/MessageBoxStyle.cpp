#include <ovoui/frame/core/MessageBoxStyle.h>

#include <ovouires/texts/en.h>
#include <ovouires/resource.h>

#include <array>
#include <utility>

namespace ovoui::frame
{
namespace
{

// The platform's values, repeated because this unit is built without its headers.
constexpr unsigned kButtonMask = 0x0000000F;
constexpr unsigned kIconMask = 0x000000F0;
constexpr unsigned kDefaultMask = 0x00000F00;
constexpr unsigned kHelp = 0x00004000;

constexpr int kOk = 1;
constexpr int kCancel = 2;
constexpr int kAbort = 3;
constexpr int kRetry = 4;
constexpr int kIgnore = 5;
constexpr int kYes = 6;
constexpr int kNo = 7;
constexpr int kHelpButton = 9;

struct ButtonSet
{
    std::vector<int> ids;
    const wchar_t* icon;
};

ButtonSet buttonSet(unsigned type)
{
    switch (type & (OVOMB_EXTBUTTONS | kButtonMask)) {
    case OVOMB_EXTBUTTONS | 1:
        return {{kYes, IDYESTOALL, kNo, kCancel}, L"QUERY"};
    case OVOMB_EXTBUTTONS | 2:
        return {{kYes, kNo, IDNOTOALL, kCancel}, L"QUERY"};
    case OVOMB_EXTBUTTONS | 3:
        return {{kYes, IDYESTOALL, kNo, IDNOTOALL, kCancel}, L"QUERY"};
    case OVOMB_EXTBUTTONS | 4:
        return {{kYes, IDYESTOALL, kNo, IDNOTOALL}, L"QUERY"};
    case OVOMB_EXTBUTTONS | 5:
        return {{kYes, kNo, IDNOTOALL}, L"QUERY"};
    case 1:
        return {{kOk, kCancel}, L"EXCLAIM"};
    case 2:
        return {{kAbort, kRetry, kIgnore}, L"STOP"};
    case 3:
        return {{kYes, kNo, kCancel}, L"QUERY"};
    case 4:
        return {{kYes, kNo}, L"QUERY"};
    case 5:
        return {{kRetry, kCancel}, L"STOP"};
    default:
        return {{kOk}, L"EXCLAIM"};
    }
}

const MessageBoxButton& buttonWithId(int id)
{
    for (const MessageBoxButton& button : allMessageBoxButtons())
        if (button.id == id)
            return button;
    return allMessageBoxButtons().front();
}

/// The position that the type asks for, whether the box has so many buttons or not.
int requestedDefault(unsigned type)
{
    switch (type & (OVOMB_EXTDEFBUTTON | kDefaultMask)) {
    case OVOMB_EXTDEFBUTTON | 0x500:
        return 5;
    case OVOMB_EXTDEFBUTTON | 0x400:
        return 4;
    }
    const unsigned position = (type & kDefaultMask) >> 8;
    return position <= 3 ? static_cast<int>(position) : 0;
}

} // namespace

const std::vector<MessageBoxButton>& allMessageBoxButtons()
{
    static const std::vector<MessageBoxButton> buttons{
        {kAbort, IDS_BUTTON_ABORT, L"" TEXT_BUTTON_ABORT},
        {kOk, IDS_BUTTON_OK, L"" TEXT_BUTTON_OK},
        {kCancel, IDS_BUTTON_CANCEL, L"" TEXT_BUTTON_CANCEL},
        {kRetry, IDS_BUTTON_RETRY, L"" TEXT_BUTTON_RETRY},
        {kIgnore, IDS_BUTTON_IGNORE, L"" TEXT_BUTTON_IGNORE},
        {kYes, IDS_BUTTON_YES, L"" TEXT_BUTTON_YES},
        {kNo, IDS_BUTTON_NO, L"" TEXT_BUTTON_NO},
        {IDYESTOALL, IDS_BUTTON_YES_TO_ALL, L"" TEXT_BUTTON_YES_TO_ALL},
        {IDNOTOALL, IDS_BUTTON_NO_TO_ALL, L"" TEXT_BUTTON_NO_TO_ALL},
        {kHelpButton, IDS_BUTTON_HELP, L"" TEXT_BUTTON_HELP},
    };
    return buttons;
}

std::wstring labelOf(const MessageBoxButton& button, const std::wstring& loaded)
{
    if (!button.text.empty())
        return button.text;
    return loaded.empty() ? button.fallback : loaded;
}

MessageBoxButtons messageBoxButtons(unsigned type)
{
    std::vector<MessageBoxButton> buttons;
    for (const int id : buttonSet(type).ids)
        buttons.push_back(buttonWithId(id));
    return messageBoxButtons(type, std::move(buttons));
}

MessageBoxButtons messageBoxButtons(unsigned type, std::vector<MessageBoxButton> buttons)
{
    MessageBoxButtons result{std::move(buttons)};
    if (type & kHelp)
        result.buttons.push_back(buttonWithId(kHelpButton));

    const int requested = requestedDefault(type);
    result.defaultPosition = requested < result.count() ? requested : 0;
    return result;
}

const wchar_t* messageBoxIcon(unsigned type)
{
    static constexpr std::array extended{
        L"COMPUTER",     L"DISCFIXED",  L"DISCNETWORK", L"DISCREMOVABLE", L"DISCCD",
        L"FOLDERCLOSED", L"FOLDEROPEN", L"INET",        L"OVOLOGO",       L"KEY",
        L"MOUSE",        L"NETWORK",    L"NOTEEMPTY",   L"NOTEFULL",
    };
    const unsigned icon = (type & kIconMask) >> 4;
    if ((type & OVOMB_EXTICONS) && icon >= 1 && icon <= extended.size())
        return extended[icon - 1];

    switch (icon) {
    case 1:
        return L"STOP";
    case 2:
        return L"QUERY";
    case 3:
        return L"EXCLAIM";
    case 4:
        return L"INFO";
    default:
        return buttonSet(type).icon;
    }
}

} // namespace ovoui::frame
