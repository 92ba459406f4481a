// The beginning and the end of OLE.
#include <afxole.h>

#include <detail/termwork.h>

namespace
{

bool s_started = false;

} // namespace

BOOL AFXAPI AfxOleInit()
{
    if (s_started)
        return TRUE;
    if (FAILED(::OleInitialize(nullptr)))
        return FALSE;
    s_started = true;
    afxdetail::registerTermWork(&AfxOleTerm);
    return TRUE;
}

void AFXAPI AfxOleTerm()
{
    if (!s_started)
        return;
    s_started = false;
    if (COleDataSource::GetClipboardOwner())
        ::OleFlushClipboard(); // errors in rendering are ignored: no window is left to show them
    ::OleUninitialize();
}
