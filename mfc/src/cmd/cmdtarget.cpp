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
    // The high word names the message, unless it is an update request, whose code is -1.
    const bool update = static_cast<UINT>(code) == CN_UPDATE_COMMAND_UI;
    const UINT named = update ? 0 : HIWORD(code);
    const UINT message = named ? named : WM_COMMAND;
    const AFX_MSGMAP_ENTRY* entry =
        afxdetail::findCommand(GetMessageMap(), message, LOWORD(static_cast<UINT>(code)), id);
    if (!entry)
        return FALSE;
    if (info) {
        info->pTarget = this;
        info->pmf = entry->pfn;
        return TRUE;
    }
    afxdetail::Call call;
    call.message = id;
    call.code = LOWORD(static_cast<UINT>(code));
    call.extra = extra;
    return entry->pfnThunk(this, call);
}
