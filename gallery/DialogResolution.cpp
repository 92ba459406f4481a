#include "DialogResolution.h"

#include "Resolution.h"

#include <cstring>
#include <vector>

namespace
{

using Bytes = std::vector<BYTE>;

// Of a DLGTEMPLATEEX, which windows.h does not declare.
constexpr std::size_t kBeforeMenu = 26;
constexpr WORD kOrdinal = 0xFFFF;
constexpr int kMenuClassTitle = 3;

Bytes templateOf(UINT id)
{
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCEW(id), RT_DIALOG);
    const HRSRC found = ::FindResourceW(module, MAKEINTRESOURCEW(id), RT_DIALOG);
    const auto* const first = static_cast<const BYTE*>(::LockResource(::LoadResource(module, found)));
    return first ? Bytes(first, first + ::SizeofResource(module, found)) : Bytes();
}

WORD wordAt(const Bytes& bytes, std::size_t offset)
{
    WORD word = 0;
    if (offset + sizeof word <= bytes.size())
        std::memcpy(&word, &bytes[offset], sizeof word);
    return word;
}

/// Behind menu, class and title, each a text, a number behind a mark, or nothing.
std::size_t placeOfPoints(const Bytes& bytes)
{
    std::size_t at = kBeforeMenu;
    for (int i = 0; i < kMenuClassTitle; ++i) {
        if (wordAt(bytes, at) == kOrdinal)
            at += sizeof(WORD);
        else
            while (wordAt(bytes, at))
                at += sizeof(WORD);
        at += sizeof(WORD);
    }
    return at;
}

void scaleFont(Bytes& bytes, int numerator, int denominator)
{
    const std::size_t at = placeOfPoints(bytes);
    const WORD points = static_cast<WORD>(::MulDiv(wordAt(bytes, at), numerator, denominator));
    if (at + sizeof points <= bytes.size())
        std::memcpy(&bytes[at], &points, sizeof points);
}

} // namespace

bool createAtResolution(CDialog& dialog, UINT templateId, CWnd& parent)
{
    const int wanted = dotsPerInch(parent);
    const int usual = dotsOfDialogs(parent);
    if (wanted == usual)
        return dialog.Create(templateId, &parent) != FALSE;
    Bytes bytes = templateOf(templateId);
    scaleFont(bytes, wanted, usual);
    return dialog.CreateIndirect(reinterpret_cast<const DLGTEMPLATE*>(bytes.data()), &parent) != FALSE;
}
