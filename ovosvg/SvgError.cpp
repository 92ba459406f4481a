#include <ovosvg/SvgError.h>

#include <ovocor/Text.h>
#include <ovomsg/ovomsg.h>

#include <windows.h>

namespace ovosvg
{

namespace
{

/// The beginning of a text in UTF-8: a name of any length must fit a message.
std::wstring shown(const std::string& utf8)
{
    constexpr std::size_t kMost = 60;
    const auto size = static_cast<int>(utf8.size());
    std::wstring text(utf8.size(), L'\0'); // UTF-16 never has more units than UTF-8 has bytes
    text.resize(
        static_cast<std::size_t>(::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text.data(), size)));
    return text.size() <= kMost ? text : text.substr(0, kMost) + L'…';
}

/// A message with the place of a note.
std::wstring placed(OvoMessageId message, const SvgNote& note)
{
    return stringPrintf(ovoMsg(message).c_str(), std::to_wstring(note.line).c_str(),
                        std::to_wstring(note.column).c_str());
}

std::wstring textOf(const SvgNote& note)
{
    switch (note.issue) {
    case SvgIssue::NotWellFormed:
        return placed(OVOMSG_SVG_NOT_WELL_FORMED, note);
    case SvgIssue::NotSvg:
        return stringPrintf(ovoMsg(OVOMSG_SVG_NOT_SVG).c_str(), shown(note.what).c_str());
    default:
        return note.line ? placed(OVOMSG_SVG_TOO_INTRICATE, note) : ovoMsg(OVOMSG_SVG_TOO_LARGE);
    }
}

} // namespace

SvgError::SvgError(const SvgNote& note)
    : OvoError(textOf(note))
    , m_note(std::make_shared<SvgNote>(note))
{
}

SvgError::SvgError(const SvgError&) noexcept = default;
SvgError& SvgError::operator=(const SvgError&) noexcept = default;
SvgError::~SvgError() = default;

const SvgNote& SvgError::note() const noexcept
{
    return *m_note;
}

} // namespace ovosvg
