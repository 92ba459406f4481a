// CDockState: an arrangement of bars in the profile.
#include <afxext.h>

#include <functional>

IMPLEMENT_DYNAMIC(CDockState, CObject)

namespace
{

constexpr DWORD kVersion = 2;
constexpr int kMostBars = 1000; // of a profile that makes sense

CString summaryOf(LPCTSTR profileName)
{
    return CString(profileName) + L"-Summary";
}

CString sectionOf(LPCTSTR profileName, int index)
{
    CString section;
    section.Format(L"%ls-Bar%d", profileName, index);
    return section;
}

/// What is saved of a bar: entry and value.
struct Field
{
    LPCTSTR entry;
    std::function<int(const CControlBarInfo&)> get;
    std::function<void(CControlBarInfo&, int)> set;
};

template <class Member>
Field field(LPCTSTR entry, Member CControlBarInfo::*member)
{
    return {entry, [member](const CControlBarInfo& info) { return static_cast<int>(info.*member); },
            [member](CControlBarInfo& info, int value) { info.*member = static_cast<Member>(value); }};
}

const std::vector<Field>& fields()
{
    static const std::vector<Field> all{
        field(L"BarID", &CControlBarInfo::id),
        field(L"Visible", &CControlBarInfo::visible),
        field(L"Floating", &CControlBarInfo::floating),
        field(L"Horizontal", &CControlBarInfo::horizontal),
        field(L"DockBar", &CControlBarInfo::dockBar),
        field(L"Row", &CControlBarInfo::row),
        field(L"Position", &CControlBarInfo::position),
        field(L"Start", &CControlBarInfo::start),
        field(L"Floated", &CControlBarInfo::floated),
        {L"XPos", [](const CControlBarInfo& info) { return static_cast<int>(info.floatPoint.x); },
         [](CControlBarInfo& info, int value) { info.floatPoint.x = value; }},
        {L"YPos", [](const CControlBarInfo& info) { return static_cast<int>(info.floatPoint.y); },
         [](CControlBarInfo& info, int value) { info.floatPoint.y = value; }},
        field(L"MRUWidth", &CControlBarInfo::mruWidth),
    };
    return all;
}

int savedBars(CWinApp& app, LPCTSTR profileName)
{
    const int count = static_cast<int>(app.GetProfileInt(summaryOf(profileName), L"Bars", 0));
    return count < 0 || count > kMostBars ? 0 : count;
}

} // namespace

CDockState::CDockState() = default;

CDockState::~CDockState()
{
    Clear();
}

void CDockState::Clear()
{
    for (INT_PTR i = 0; i < m_arrBarInfo.GetSize(); ++i)
        delete static_cast<CControlBarInfo*>(m_arrBarInfo[i]);
    m_arrBarInfo.RemoveAll();
}

DWORD CDockState::GetVersion() const
{
    return kVersion;
}

void CDockState::LoadState(LPCTSTR profileName)
{
    Clear();
    CWinApp* const app = AfxGetApp();
    ASSERT(app);
    const int count = savedBars(*app, profileName);
    for (int i = 0; i < count; ++i) {
        auto info = std::make_unique<CControlBarInfo>();
        for (const Field& one : fields()) {
            const int otherwise = one.get(*info);
            one.set(*info,
                    static_cast<int>(app->GetProfileInt(sectionOf(profileName, i), one.entry, otherwise)));
        }
        m_arrBarInfo.Add(info.release());
    }
}

void CDockState::SaveState(LPCTSTR profileName)
{
    CWinApp* const app = AfxGetApp();
    ASSERT(app);
    const int before = savedBars(*app, profileName);
    const int count = static_cast<int>(m_arrBarInfo.GetSize());
    for (int i = count; i < before; ++i) // of an arrangement with more bars
        app->WriteProfileString(sectionOf(profileName, i), nullptr, nullptr);
    for (int i = 0; i < count; ++i)
        for (const Field& one : fields())
            app->WriteProfileInt(sectionOf(profileName, i), one.entry,
                                 one.get(*static_cast<const CControlBarInfo*>(m_arrBarInfo[i])));
    app->WriteProfileInt(summaryOf(profileName), L"Bars", count);
}
