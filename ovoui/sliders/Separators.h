/// Decimal signs and list separators, from the user's convention to the machine's and back.
#pragma once

#include <ovoui/export.h>

#include <string>

/// `text` with the machine's signs for the user's: outside quotes the character `decimal` becomes '.', and
/// each `sep` becomes ','. Text within '...' or "..." stays as it is, up to the end when the quote is not
/// closed; a quote of one kind within the other kind is an ordinary character. A null or empty `sep` stands
/// for no separator. When `sep` is "," and `decimal` is '.', the text is the machine's already.
OVOUI_API std::wstring change_from_intl_seps(const std::wstring& text, const wchar_t* sep, wchar_t decimal);

/// The way back: in `text`, outside quotes, '.' becomes `decimal` and ',' becomes `sep`.
OVOUI_API std::wstring change_to_intl_seps(const std::wstring& text, const wchar_t* sep, wchar_t decimal);
