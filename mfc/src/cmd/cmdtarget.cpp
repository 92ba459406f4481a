// CCmdTarget: command routing.
#include <afxwin.h>

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

CCmdTarget::CCmdTarget()
    : m_pModuleState(AfxGetModuleState())
{
}

CCmdTarget::~CCmdTarget() = default;

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr, nullptr, nullptr}};
    static const AFX_MSGMAP map{nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

BOOL CCmdTarget::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info)
{
    // The high word names the message that a code belongs to; commands and updates have none there.
    const bool update = static_cast<UINT>(code) == CN_UPDATE_COMMAND_UI;
    const UINT named = update ? 0 : HIWORD(code);
    const UINT plainCode = LOWORD(static_cast<UINT>(code));
    const AFX_MSGMAP_ENTRY* entry =
        afxdetail::findCommand(GetMessageMap(), named ? named : WM_COMMAND, plainCode, id);
    if (!entry)
        return FALSE;
    if (info) {
        info->pTarget = this;
        info->pmf = entry->pfn;
        return TRUE;
    }
    afxdetail::Call call;
    call.message = id;
    call.code = static_cast<int>(plainCode);
    call.extra = extra;
    return entry->pfnThunk(this, call);
}
