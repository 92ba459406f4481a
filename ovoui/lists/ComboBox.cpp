#include <ovoui/lists/ComboBox.h>

#include <ovoui/frame/Exceptions.h>
#include <ovoui/frame/Lifeline.h>
#include <ovoui/frame/TellParent.h>
#include <ovoui/lists/ComboCommands.h>
#include <ovoui/lists/ComboCompletion.h>
#include <ovoui/lists/ComboHistory.h>
#include <ovoui/lists/ComboItems.h>
#include <ovoui/lists/ComboSearch.h>
#include <ovoui/lists/OwnChange.h>
#include <ovoui/lists/core/ComboRules.h>

#include <utility>

using namespace ovoui::lists;
using ovoui::frame::keepFirst;
using ovoui::frame::raise;

BEGIN_MESSAGE_MAP(COVOComboBox, CComboBox)
    ON_CONTROL_REFLECT(CBN_EDITUPDATE, &COVOComboBox::OnEditUpdate)
    ON_CONTROL_REFLECT_EX(CBN_SETFOCUS, &COVOComboBox::OnSetFocus)
    ON_CONTROL_REFLECT_EX(CBN_KILLFOCUS, &COVOComboBox::OnKillFocus)
    ON_CONTROL_REFLECT_EX(CBN_SELENDOK, &COVOComboBox::OnSelEndOk)
    ON_CONTROL_REFLECT_EX(CBN_CLOSEUP, &COVOComboBox::OnCloseup)

    // What is off unless asked for
    ON_CONTROL_REFLECT_EX(CBN_DROPDOWN, &COVOComboBox::OnDropdown)
    ON_MESSAGE(CB_ADDSTRING, &COVOComboBox::OnAddItem)
    ON_MESSAGE(CB_INSERTSTRING, &COVOComboBox::OnAddItem)
    ON_MESSAGE(CB_DIR, &COVOComboBox::OnAddFiles)
    ON_MESSAGE(CB_DELETESTRING, &COVOComboBox::OnDeleteItem)
    ON_MESSAGE(CB_RESETCONTENT, &COVOComboBox::OnResetItems)
    ON_MESSAGE(WM_SETFONT, &COVOComboBox::OnFont)
END_MESSAGE_MAP()

namespace
{

constexpr DWORD kNoEditField = static_cast<DWORD>(-1);

/// 0 for none.
WPARAM commandOf(KeyEffect effect)
{
    switch (effect) {
    case KeyEffect::Return:
        return kReturn;
    case KeyEffect::Escape:
        return kEscape;
    case KeyEffect::Up:
        return kUp;
    case KeyEffect::Down:
        return kDown;
    case KeyEffect::PassOn:
        break;
    }
    return 0;
}

UINT codeOf(Told told)
{
    switch (told) {
    case Told::SelChange:
        return CBN_SELCHANGE;
    case Told::SelEndOk:
        return CBN_SELENDOK;
    case Told::SelEndCancel:
        return CBN_SELENDCANCEL;
    case Told::Return:
        return OVOCBN_RETURN;
    case Told::Up:
        return OVOCBN_UP;
    case Told::Down:
        break;
    }
    return OVOCBN_DOWN;
}

} // namespace

COVOComboBox::COVOComboBox()
    : m_completion(std::make_unique<ComboCompletion>(*this))
    , m_items(std::make_unique<ComboItems>())
{
}

COVOComboBox::~COVOComboBox()
{
    m_deletionObserver = nullptr;
}

void COVOComboBox::AutoComplete(bool complete)
{
    m_autoComplete = complete;
}

bool COVOComboBox::AutoComplete() const
{
    return m_autoComplete;
}

void COVOComboBox::TextMayBeEmpty(bool mayBe)
{
    m_textMayBeEmpty = mayBe;
}

void COVOComboBox::ConfirmAnyText(bool confirm)
{
    m_confirmAnyText = confirm;
}

void COVOComboBox::NotifyEditReturn(bool notify)
{
    m_notifyEditReturn = notify;
}

void COVOComboBox::AutoDelete(bool autoDelete)
{
    m_autoDelete = autoDelete;
}

void COVOComboBox::AutoDeleteNotify(COVOComboBoxDeletion* observer)
{
    m_deletionObserver = observer;
}

bool COVOComboBox::SelectListboxFromText()
{
    return selectString(*this, editText().c_str(), false) != -1;
}

ComboSettings COVOComboBox::settings() const
{
    return {m_autoComplete, m_confirmAnyText, m_notifyEditReturn};
}

std::wstring COVOComboBox::editText() const
{
    CString text;
    GetWindowText(text);
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

std::wstring COVOComboBox::itemText(int item) const
{
    CString text;
    GetLBText(item, text);
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

bool COVOComboBox::changed() const
{
    const int selection = GetCurSel();
    return selection != m_savedSelection || (selection == -1 && editText() != m_savedText);
}

bool COVOComboBox::itemsHaveTexts() const
{
    const DWORD style = GetStyle();
    return (style & CBS_HASSTRINGS) || !(style & (CBS_OWNERDRAWFIXED | CBS_OWNERDRAWVARIABLE));
}

// Keys

BOOL COVOComboBox::PreTranslateMessage(MSG* pMsg)
{
    m_keyed = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    if (pMsg->message != WM_KEYDOWN)
        return CWnd::PreTranslateMessage(pMsg);
    const auto key = static_cast<unsigned>(pMsg->wParam);
    if (m_autoComplete)
        m_completionAllowed = completesAfter(key);
    if (helperTakes(pMsg->wParam))
        return TRUE;
    const ComboKey known = comboKeyOf(key);
    const bool isChanged = known == ComboKey::Escape && changed();
    const bool isDropped = (known == ComboKey::Up || known == ComboKey::Down) && GetDroppedState();
    const WPARAM command = commandOf(effectOf(known, isChanged, isDropped));
    if (command == 0)
        return CWnd::PreTranslateMessage(pMsg);
    PostMessage(WM_COMMAND, command, 0);
    return TRUE;
}

BOOL COVOComboBox::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const Lifeline::Watch watch(*this);
    if (lParam == 0) {
        switch (wParam) {
        case kReturn:
            onReturn();
            break;
        case kEscape:
            carryOut(afterEscape());
            break;
        case kUp:
            onArrow(Told::Up);
            break;
        case kDown:
            onArrow(Told::Down);
            break;
        case kRemember:
            onRemember();
            break;
        case kHit:
            onHit();
            break;
        case kFindHits:
            onFindHits();
            break;
        }
    }
    return !watch.alive() || CWnd::OnCommand(wParam, lParam);
}

void COVOComboBox::onReturn()
{
    const Lifeline::Watch watch(*this);
    const bool dropped = GetDroppedState();
    const int selection = dropped ? GetCurSel() : -1;
    const bool match = matches(takingOf(dropped, selection != -1, settings()), selection);
    if (watch.alive())
        carryOut(afterReturn(match, dropped, settings()));
}

void COVOComboBox::onArrow(Told arrow)
{
    const bool match = SelectListboxFromText();
    carryOut(afterArrow(match, arrow, settings()));
}

// Judging the text

/// Closing the list calls the host: the combo box may be gone afterwards, which makes it no match.
bool COVOComboBox::matches(const Taking& taking, int listSelection)
{
    const Lifeline::Watch watch(*this);
    if (taking.closesList)
        ShowDropDown(FALSE);
    if (!watch.alive())
        return false;
    if (taking.selectsAgain)
        SetCurSel(listSelection);
    else if (taking.looksUpText)
        return SelectListboxFromText();
    return taking.selectsAgain;
}

void COVOComboBox::restore()
{
    const OwnChange change(*this, m_completing);
    SetCurSel(m_savedSelection);
    if (m_savedSelection == -1)
        SetWindowText(m_savedText.c_str());
}

void COVOComboBox::carryOut(const Verdict& verdict)
{
    if (verdict.restores)
        restore();
    for (const Told told : verdict.told)
        if (!tell(codeOf(told)))
            return;
}

/// False when the combo box is gone afterwards.
bool COVOComboBox::tell(UINT code)
{
    return ovoui::frame::tellParent(*this, code);
}

// Completion

void COVOComboBox::OnEditUpdate()
{
    if (m_completing)
        return;
    const Lifeline::Watch watch(*this);
    const std::wstring typed = m_search ? editText() : std::wstring();
    m_editedInList = true;
    if (!itemsHaveTexts())
        return;
    if (m_autoComplete && m_completionAllowed)
        complete();
    if (watch.alive() && m_search && m_keyed && !GetDroppedState())
        m_search->typed(typed);
}

void COVOComboBox::complete()
{
    const std::wstring text = editText();
    const DWORD selection = GetEditSel();
    const int item = m_completion->itemFor(text);
    if (item == -1)
        return;
    // What changes the text here is no typing, and is not to be completed in its turn.
    const Lifeline::Watch watch(*this);
    const OwnChange change(*this, m_completing);
    SetWindowText(itemText(item).c_str());
    if (watch.alive())
        selectTail(selection, text.size());
}

void COVOComboBox::selectTail(DWORD before, std::size_t typed)
{
    const std::optional<TextPart> part =
        before == kNoEditField ? std::nullopt : std::optional(TextPart{LOWORD(before), HIWORD(before)});
    const TextPart selected = selectionAfterCompletion(part, static_cast<int>(typed));
    SetEditSel(selected.begin, selected.end);
}

// Focus and list. Each answers FALSE, so that the parent hears of it too, unless the combo box has gone
// meanwhile.

BOOL COVOComboBox::OnSetFocus()
{
    // A parent may fill the list when it is about to open: that is needed before anything is typed. One that
    // raises then hears all the same that the list closes.
    const Lifeline::Watch watch(*this);
    std::exception_ptr raised;
    if (m_autoComplete && !GetDroppedState()) {
        keepFirst(raised, [this] { tell(CBN_DROPDOWN); });
        if (watch.alive())
            keepFirst(raised, [this] { tell(CBN_CLOSEUP); });
    }
    if (!watch.alive()) {
        raise(raised);
        return TRUE;
    }
    m_savedSelection = GetCurSel();
    m_savedText = m_savedSelection == -1 ? editText() : std::wstring();
    if (m_autoComplete && itemsHaveTexts())
        m_completion->watch();
    raise(raised);
    return FALSE;
}

BOOL COVOComboBox::OnKillFocus()
{
    if (m_search)
        m_search->end();
    const Lifeline::Watch watch(*this);
    const bool dropped = GetDroppedState();
    const int selection = dropped ? GetCurSel() : -1;
    const bool match = matches(takingOf(dropped, selection != -1, settings()), selection);
    if (watch.alive())
        carryOut(afterFocusLost(match, changed(), settings()));
    return !watch.alive();
}

BOOL COVOComboBox::OnSelEndOk()
{
    m_savedSelection = GetCurSel();
    if (m_savedSelection != -1) {
        SetCurSel(m_savedSelection);
        m_savedText.clear();
    } else {
        m_savedText = editText();
    }
    rememberAccepted();
    return FALSE;
}

/// Items without texts, which their owner draws, cannot differ from what was typed.
BOOL COVOComboBox::OnCloseup()
{
    const int selection = GetCurSel();
    if (selection == -1 || !itemsHaveTexts())
        return FALSE;
    const std::wstring text = editText();
    if (text != itemText(selection)) {
        SetCurSel(-1);
        SetWindowText(text.c_str());
    }
    return FALSE;
}

// End

void COVOComboBox::PostNcDestroy()
{
    CWnd::PostNcDestroy();
    for (const std::wstring& text : std::exchange(m_accepted, {}))
        if (m_history) // which has not been told yet: the focus has gone with the window
            m_history->keep(text);
    m_items->looks.clear();
    if (m_search)
        m_search->end();
    if (!m_autoDelete)
        return;
    const std::unique_ptr<COVOComboBox> gone(this); // also when the observer throws
    if (COVOComboBoxDeletion* const observer = std::exchange(m_deletionObserver, nullptr))
        observer->OnComboBoxDeleted(this);
}
