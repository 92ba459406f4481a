#include "ResourceTexts.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <string_view>

namespace
{

constexpr WORD kPopup = MF_POPUP;
constexpr WORD kLast = MF_END;
constexpr WORD kLastAccelerator = 0x80;

/// Walks over the bytes of a resource.
class Reader
{
public:
    explicit Reader(const void* bytes)
        : m_start(static_cast<const char*>(bytes))
        , m_at(m_start)
    {
    }

    template <class T>
    T take()
    {
        T value;
        std::memcpy(&value, m_at, sizeof value);
        m_at += sizeof value;
        return value;
    }

    void skip(std::size_t bytes) { m_at += bytes; }

    void align(std::size_t to) { m_at = m_start + (m_at - m_start + to - 1) / to * to; }

    std::wstring text()
    {
        const std::wstring_view found(reinterpret_cast<const wchar_t*>(m_at));
        m_at += (found.size() + 1) * sizeof(wchar_t);
        return std::wstring(found);
    }

    /// A text, or a number with a mark before it.
    std::wstring textOrNumber()
    {
        WORD mark = 0;
        std::memcpy(&mark, m_at, sizeof mark);
        if (mark != 0xFFFF)
            return text();
        skip(sizeof mark);
        return L"#" + std::to_wstring(take<WORD>());
    }

private:
    const char* m_start;
    const char* m_at;
};

const void* bytesOf(HMODULE module, LPCWSTR type, LPCWSTR name, LANGID language)
{
    // The search itself falls back to other languages: only those that were counted are asked for.
    const HRSRC found = ::FindResourceExW(module, type, name, language);
    return found ? ::LockResource(::LoadResource(module, found)) : nullptr;
}

std::vector<UINT> namesOf(HMODULE module, LPCWSTR type)
{
    std::vector<UINT> names;
    const auto note = [](HMODULE, LPCWSTR, LPWSTR name, LONG_PTR list) -> BOOL {
        reinterpret_cast<std::vector<UINT>*>(list)->push_back(LOWORD(reinterpret_cast<UINT_PTR>(name)));
        return TRUE;
    };
    ::EnumResourceNamesW(module, type, note, reinterpret_cast<LONG_PTR>(&names));
    return names;
}

std::vector<LANGID> languagesOfOne(HMODULE module, LPCWSTR type, LPCWSTR name)
{
    std::vector<LANGID> languages;
    const auto note = [](HMODULE, LPCWSTR, LPCWSTR, WORD language, LONG_PTR list) -> BOOL {
        reinterpret_cast<std::vector<LANGID>*>(list)->push_back(language);
        return TRUE;
    };
    ::EnumResourceLanguagesW(module, type, name, note, reinterpret_cast<LONG_PTR>(&languages));
    return languages;
}

/// Calls `read` with name and bytes of each resource of a type that there is in exactly this language.
template <class Read>
void forEach(HMODULE module, LPCWSTR type, LANGID language, Read read)
{
    for (const UINT name : namesOf(module, type)) {
        const LPCWSTR resource = MAKEINTRESOURCEW(name);
        if (std::ranges::count(languagesOfOne(module, type, resource), language))
            read(name, bytesOf(module, type, resource, language));
    }
}

struct DialogItem
{
    DWORD id;
    std::wstring text;
};

struct DialogTexts
{
    std::wstring caption;
    std::vector<DialogItem> items;
};

DialogTexts dialogFrom(const void* bytes)
{
    constexpr std::size_t kStyleAt = 12; // behind version, signature, help id and extended style
    Reader reader(bytes);
    reader.skip(kStyleAt);
    const DWORD style = reader.take<DWORD>();
    const WORD count = reader.take<WORD>();
    reader.skip(4 * sizeof(short));
    reader.textOrNumber(); // menu
    reader.textOrNumber(); // class
    DialogTexts dialog{reader.text(), {}};
    if (style & DS_SETFONT) {
        reader.skip(2 * sizeof(WORD) + 2); // size, weight, italic, character set
        reader.text();
    }
    for (WORD i = 0; i < count; ++i) {
        reader.align(4);
        reader.skip(3 * sizeof(DWORD) + 4 * sizeof(short));
        const DWORD id = reader.take<DWORD>();
        reader.textOrNumber(); // class
        dialog.items.push_back({id, reader.textOrNumber()});
        reader.skip(reader.take<WORD>());
    }
    return dialog;
}

/// The texts of a menu level and those below it.
void readMenu(Reader& reader, const std::wstring& place, Texts& texts, std::vector<TextGroup>& groups)
{
    TextGroup level{place, {}};
    for (int i = 1;; ++i) {
        const WORD flags = reader.take<WORD>();
        const UINT id = flags & kPopup ? 0 : reader.take<WORD>();
        const std::wstring text = reader.text();
        const std::wstring here = place + L", item " + std::to_wstring(i);
        texts[here + L", command " + std::to_wstring(id)] = text;
        level.texts.push_back(text);
        if (flags & kPopup)
            readMenu(reader, here, texts, groups);
        if (flags & kLast)
            break;
    }
    groups.push_back(std::move(level));
}

void readStrings(UINT block, const void* bytes, Texts& texts)
{
    Reader reader(bytes);
    for (UINT i = 0; i < 16; ++i) {
        std::wstring text(reader.take<WORD>(), L'\0');
        for (wchar_t& c : text)
            c = reader.take<wchar_t>();
        if (!text.empty())
            texts[L"string " + std::to_wstring((block - 1) * 16 + i)] = text;
    }
}

void readAccelerators(UINT table, const void* bytes, Texts& texts)
{
    Reader reader(bytes);
    for (int i = 1;; ++i) {
        const WORD flags = reader.take<WORD>();
        const WORD key = reader.take<WORD>();
        const WORD command = reader.take<WORD>();
        reader.skip(sizeof(WORD));
        texts[L"accelerators " + std::to_wstring(table) + L", the " + std::to_wstring(i) + L"th, command " +
              std::to_wstring(command)] = L"key " + std::to_wstring(key);
        if (flags & kLastAccelerator)
            return;
    }
}

void readMessages(const void* bytes, Texts& texts)
{
    const auto* const start = static_cast<const char*>(bytes);
    const auto& data = *static_cast<const MESSAGE_RESOURCE_DATA*>(bytes);
    for (DWORD i = 0; i < data.NumberOfBlocks; ++i) {
        const MESSAGE_RESOURCE_BLOCK& block = data.Blocks[i];
        const char* at = start + block.OffsetToEntries;
        for (DWORD id = block.LowId; id <= block.HighId; ++id) {
            const auto* const entry = reinterpret_cast<const MESSAGE_RESOURCE_ENTRY*>(at);
            texts[L"message " + std::to_wstring(id)] = reinterpret_cast<const wchar_t*>(entry->Text);
            at += entry->Length;
        }
    }
}

} // namespace

std::vector<LANGID> languagesOf(HMODULE module, LPCWSTR type)
{
    std::set<LANGID> languages;
    for (const UINT name : namesOf(module, type))
        for (const LANGID language : languagesOfOne(module, type, MAKEINTRESOURCEW(name)))
            if (PRIMARYLANGID(language) != LANG_NEUTRAL)
                languages.insert(language);
    return {languages.begin(), languages.end()};
}

Texts textsOf(HMODULE module, LANGID language)
{
    Texts texts;
    std::vector<TextGroup> unused;
    forEach(module, RT_DIALOG, language, [&](UINT name, const void* bytes) {
        const std::wstring place = L"dialog " + std::to_wstring(name);
        const DialogTexts dialog = dialogFrom(bytes);
        texts[place + L", caption"] = dialog.caption;
        for (std::size_t i = 0; i < dialog.items.size(); ++i)
            texts[place + L", control " + std::to_wstring(dialog.items[i].id) + L", the " +
                  std::to_wstring(i + 1) + L"th"] = dialog.items[i].text;
    });
    forEach(module, RT_MENU, language, [&](UINT name, const void* bytes) {
        Reader reader(bytes);
        reader.skip(2 * sizeof(WORD));
        readMenu(reader, L"menu " + std::to_wstring(name), texts, unused);
    });
    forEach(module, RT_STRING, language,
            [&](UINT name, const void* bytes) { readStrings(name, bytes, texts); });
    forEach(module, RT_ACCELERATOR, language,
            [&](UINT name, const void* bytes) { readAccelerators(name, bytes, texts); });
    forEach(module, RT_MESSAGETABLE, language, [&](UINT, const void* bytes) { readMessages(bytes, texts); });
    return texts;
}

std::vector<TextGroup> groupsOf(HMODULE module, LANGID language)
{
    std::vector<TextGroup> groups;
    Texts unused;
    forEach(module, RT_DIALOG, language, [&](UINT name, const void* bytes) {
        TextGroup group{L"dialog " + std::to_wstring(name), {}};
        for (DialogItem& item : dialogFrom(bytes).items)
            group.texts.push_back(std::move(item.text));
        groups.push_back(std::move(group));
    });
    forEach(module, RT_MENU, language, [&](UINT name, const void* bytes) {
        Reader reader(bytes);
        reader.skip(2 * sizeof(WORD));
        readMenu(reader, L"menu " + std::to_wstring(name), unused, groups);
    });
    return groups;
}

std::wstring stringOf(HMODULE module, UINT id, LANGID language)
{
    Texts texts;
    const UINT block = id / 16 + 1;
    if (const void* const bytes = bytesOf(module, RT_STRING, MAKEINTRESOURCEW(block), language))
        readStrings(block, bytes, texts);
    return texts[L"string " + std::to_wstring(id)];
}

std::vector<UINT> dialogsOf(HMODULE module)
{
    return namesOf(module, RT_DIALOG);
}
