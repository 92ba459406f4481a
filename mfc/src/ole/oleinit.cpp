// The beginning and the end of OLE.
#include <afxole.h>

#include <detail/termwork.h>

namespace
{

thread_local bool t_started = false;

} // namespace

BOOL AFXAPI AfxOleInit()
{
    if (t_started)
        return TRUE;
    if (FAILED(::OleInitialize(nullptr)))
        return FALSE;
    t_started = true;
    // Threads that AfxBeginThread has started see to it at their end.
    if (AfxGetThread() == AfxGetApp())
        afxdetail::registerTermWork(&AfxOleTerm);
    return TRUE;
}

void AFXAPI AfxOleTerm()
{
    if (!t_started)
        return;
    t_started = false;
    if (COleDataSource::GetClipboardOwner())
        ::OleFlushClipboard(); // errors in rendering are ignored: no window is left to show them
    ::OleUninitialize();
}
