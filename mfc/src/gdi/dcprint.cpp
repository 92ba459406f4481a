// CDC: documents, escapes and metafiles.
#include <afxwin.h>

int CDC::StartDoc(LPDOCINFO info)
{
    return ::StartDocW(m_hDC, info);
}

int CDC::StartDoc(LPCTSTR name)
{
    DOCINFO info{};
    info.cbSize = sizeof info;
    info.lpszDocName = name;
    return StartDoc(&info);
}

int CDC::StartPage()
{
    return ::StartPage(m_hDC);
}

int CDC::EndPage()
{
    return ::EndPage(m_hDC);
}

int CDC::EndDoc()
{
    return ::EndDoc(m_hDC);
}

int CDC::AbortDoc()
{
    return ::AbortDoc(m_hDC);
}

int CDC::SetAbortProc(BOOL(CALLBACK* abort)(HDC, int))
{
    m_pfnAbort = abort;
    return ::SetAbortProc(m_hDC, abort);
}

BOOL CDC::QueryAbort() const
{
    return !m_pfnAbort || m_pfnAbort(m_hDC, 0);
}

int CDC::Escape(int escape, int count, LPCSTR inData, LPVOID outData)
{
    return ::Escape(m_hDC, escape, count, inData, outData);
}

int CDC::Escape(int escape, int inputSize, LPCSTR inputData, int outputSize, LPSTR outputData)
{
    return ::ExtEscape(m_hDC, escape, inputSize, inputData, outputSize, outputData);
}

int CDC::DrawEscape(int escape, int inputSize, LPCSTR inputData)
{
    return ::DrawEscape(m_hDC, escape, inputSize, inputData);
}

BOOL CDC::PlayMetaFile(HMETAFILE metafile)
{
    return ::PlayMetaFile(m_hDC, metafile);
}

BOOL CDC::PlayMetaFile(HENHMETAFILE metafile, LPCRECT bounds)
{
    return ::PlayEnhMetaFile(m_hDC, metafile, bounds);
}

BOOL CDC::AddMetaFileComment(UINT size, const BYTE* data)
{
    return ::GdiComment(m_hDC, size, data);
}
