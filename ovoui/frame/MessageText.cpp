#include <ovoui/frame/MessageText.h>

#include <ovoui/frame/ClipboardText.h>
#include <ovoui/frame/FontDC.h>

#include <usp10.h>

#include <algorithm>
#include <iterator>
#include <vector>

using namespace ovoui::frame;

BEGIN_MESSAGE_MAP(MessageText, CEdit)
    // text
    ON_MESSAGE(WM_SETTEXT, &MessageText::OnSetText)
    ON_MESSAGE(WM_GETTEXT, &MessageText::OnGetText)
    ON_MESSAGE(WM_GETTEXTLENGTH, &MessageText::OnGetTextLength)
    // selection
    ON_MESSAGE(EM_GETSEL, &MessageText::OnGetSel)
    ON_MESSAGE(EM_SETSEL, &MessageText::OnSetSel)
    ON_MESSAGE(WM_COPY, &MessageText::OnCopy)
    // positions
    ON_MESSAGE(EM_POSFROMCHAR, &MessageText::OnPosFromChar)
    ON_MESSAGE(EM_CHARFROMPOS, &MessageText::OnCharFromPos)
    ON_MESSAGE(EM_LINEFROMCHAR, &MessageText::OnLineFromChar)
    ON_MESSAGE(EM_LINEINDEX, &MessageText::OnLineIndex)
    ON_MESSAGE(EM_LINELENGTH, &MessageText::OnLineLength)
END_MESSAGE_MAP()

namespace
{

constexpr auto kOutside = static_cast<DWORD>(MAKELONG(0xFFFF, 0xFFFF)); ///< where no character is

/// What the platform knows of the characters; nothing where it fails.
std::vector<CharacterBreak> platformBreaks(const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    SCRIPT_STRING_ANALYSIS analysis = nullptr;
    if (length == 0 ||
        ::ScriptStringAnalyse(nullptr, text.data(), length, length * 3 / 2 + 16, -1, SSA_BREAK, 0, nullptr,
                              nullptr, nullptr, nullptr, nullptr, &analysis) != S_OK)
        return {};
    std::vector<CharacterBreak> breaks;
    if (const SCRIPT_LOGATTR* attributes = ::ScriptString_pLogAttr(analysis))
        std::transform(attributes, attributes + length, std::back_inserter(breaks),
                       [](const SCRIPT_LOGATTR& character) {
                           return CharacterBreak{.before = character.fSoftBreak != 0,
                                                 .isSpace = character.fWhiteSpace != 0};
                       });
    ::ScriptStringFree(&analysis);
    return breaks;
}

} // namespace

void MessageText::showWrapped(const std::wstring& text, int width, LongWords longWords)
{
    WrappedText shown = wrapped(text, width, longWords);
    SetWindowText(shown.shown().c_str());
    m_wrapped = std::move(shown);
}

WrappedText MessageText::wrapped(const std::wstring& text, int width, LongWords longWords)
{
    FontDC font(*this);
    const TextRuler ruler{[&font](std::wstring_view part) {
                              SIZE extent{};
                              ::GetTextExtentPoint32W(font.dc(), part.data(), static_cast<int>(part.size()),
                                                      &extent);
                              return static_cast<int>(extent.cx);
                          },
                          static_cast<int>(8 * font.metrics().tmAveCharWidth)};
    return WrappedText(text,
                       softBreaks(text, lineStarts(text, platformBreaks(text)), width, longWords, ruler));
}

/// In the text that the control holds; what stands for "none" stays as it is.
WPARAM MessageText::shownPosition(WPARAM position) const
{
    return static_cast<int>(position) < 0 ? position : m_wrapped.toShown(position);
}

// Text

LRESULT MessageText::OnSetText(WPARAM, LPARAM)
{
    m_wrapped = {};
    return Default();
}

LRESULT MessageText::OnGetText(WPARAM size, LPARAM buffer)
{
    if (m_wrapped.isPlain() || size == 0)
        return Default();
    const std::wstring& text = m_wrapped.text();
    const std::size_t length = std::min<std::size_t>(size - 1, text.size());
    auto* const target = reinterpret_cast<wchar_t*>(buffer);
    std::copy_n(text.data(), length, target);
    target[length] = L'\0';
    return static_cast<LRESULT>(length);
}

LRESULT MessageText::OnGetTextLength(WPARAM, LPARAM)
{
    return m_wrapped.isPlain() ? Default() : static_cast<LRESULT>(m_wrapped.text().size());
}

// Selection

MessageText::Selection MessageText::selection()
{
    DWORD start = 0;
    DWORD end = 0;
    DefWindowProc(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return {m_wrapped.toText(start), m_wrapped.toText(end)};
}

LRESULT MessageText::OnGetSel(WPARAM start, LPARAM end)
{
    if (m_wrapped.isPlain())
        return Default();
    const Selection selected = selection();
    if (start)
        *reinterpret_cast<DWORD*>(start) = static_cast<DWORD>(selected.start);
    if (end)
        *reinterpret_cast<DWORD*>(end) = static_cast<DWORD>(selected.end);
    return selected.end > 0xFFFF ? -1 : MAKELONG(selected.start, selected.end);
}

LRESULT MessageText::OnSetSel(WPARAM start, LPARAM end)
{
    return DefWindowProc(EM_SETSEL, shownPosition(start),
                         static_cast<LPARAM>(shownPosition(static_cast<WPARAM>(end))));
}

LRESULT MessageText::OnCopy(WPARAM, LPARAM)
{
    if (m_wrapped.isPlain())
        return Default();
    const Selection selected = selection();
    if (selected.start < selected.end)
        setClipboardText(
            m_hWnd,
            std::wstring_view(m_wrapped.text()).substr(selected.start, selected.end - selected.start));
    return 0;
}

// Positions

LRESULT MessageText::OnPosFromChar(WPARAM position, LPARAM)
{
    return DefWindowProc(EM_POSFROMCHAR, shownPosition(position), 0);
}

/// The answer holds the lower halves of the line's number and of the position, which is found from the line's
/// beginning.
LRESULT MessageText::OnCharFromPos(WPARAM, LPARAM point)
{
    const LRESULT found = DefWindowProc(EM_CHARFROMPOS, 0, point);
    if (m_wrapped.isPlain() || static_cast<DWORD>(found) == kOutside) // with its sign or without
        return found;
    const LRESULT line = DefWindowProc(EM_LINEINDEX, HIWORD(found), 0);
    const std::size_t position =
        m_wrapped.toText(positionInLine(static_cast<std::size_t>(line), LOWORD(found)));
    return MAKELONG(position & 0xFFFF, HIWORD(found));
}

LRESULT MessageText::OnLineFromChar(WPARAM position, LPARAM)
{
    return DefWindowProc(EM_LINEFROMCHAR, shownPosition(position), 0);
}

LRESULT MessageText::OnLineIndex(WPARAM line, LPARAM)
{
    const LRESULT position = DefWindowProc(EM_LINEINDEX, line, 0);
    return position < 0 ? position
                        : static_cast<LRESULT>(m_wrapped.toText(static_cast<std::size_t>(position)));
}

LRESULT MessageText::OnLineLength(WPARAM position, LPARAM)
{
    return DefWindowProc(EM_LINELENGTH, shownPosition(position), 0);
}
