#include "medium.h"

#include <cstring>

namespace
{

/// Locks global memory for the rest of the scope.
class GlobalBytes
{
public:
    explicit GlobalBytes(HGLOBAL memory)
        : m_memory(memory)
        , m_bytes(::GlobalLock(memory))
    {
    }
    ~GlobalBytes()
    {
        if (m_bytes)
            ::GlobalUnlock(m_memory);
    }
    GlobalBytes(const GlobalBytes&) = delete;
    GlobalBytes& operator=(const GlobalBytes&) = delete;

    void* get() const { return m_bytes; }

private:
    HGLOBAL m_memory;
    void* m_bytes;
};

HRESULT copyMemory(HGLOBAL from, HGLOBAL to)
{
    const SIZE_T size = ::GlobalSize(from);
    if (size > ::GlobalSize(to))
        return STG_E_MEDIUMFULL;
    const GlobalBytes source(from);
    const GlobalBytes target(to);
    if (!source.get() || !target.get())
        return E_OUTOFMEMORY;
    std::memcpy(target.get(), source.get(), size);
    return S_OK;
}

HRESULT copyStream(IStream* from, IStream* to)
{
    // From the beginning to the end, whatever was read before.
    LARGE_INTEGER start{};
    ULARGE_INTEGER all;
    all.QuadPart = ~0ULL;
    const HRESULT status = from->Seek(start, STREAM_SEEK_SET, nullptr);
    return FAILED(status) ? status : from->CopyTo(to, all, nullptr, nullptr);
}

LPOLESTR copyName(LPCOLESTR name)
{
    const std::size_t size = (std::wcslen(name) + 1) * sizeof *name;
    void* const copy = ::CoTaskMemAlloc(size);
    if (copy)
        std::memcpy(copy, name, size);
    return static_cast<LPOLESTR>(copy);
}

} // namespace

namespace afxdetail
{

bool duplicateMedium(CLIPFORMAT format, const STGMEDIUM& medium, STGMEDIUM& copy)
{
    copy = STGMEDIUM{};
    copy.tymed = medium.tymed;
    switch (medium.tymed) {
    case TYMED_HGLOBAL:
    case TYMED_MFPICT:
    case TYMED_ENHMF:
    case TYMED_GDI:
        copy.hGlobal = ::OleDuplicateData(medium.hGlobal, format, GMEM_MOVEABLE);
        return copy.hGlobal != nullptr;
    case TYMED_FILE:
        copy.lpszFileName = copyName(medium.lpszFileName);
        // Only the name is copied: the file goes with the medium that it came in.
        copy.pUnkForRelease = medium.pUnkForRelease;
        if (copy.pUnkForRelease)
            copy.pUnkForRelease->AddRef();
        return copy.lpszFileName != nullptr;
    case TYMED_ISTREAM:
        copy.pstm = medium.pstm;
        copy.pstm->AddRef();
        return true;
    case TYMED_ISTORAGE:
        copy.pstg = medium.pstg;
        copy.pstg->AddRef();
        return true;
    default:
        return false;
    }
}

HRESULT copyInto(const STGMEDIUM& medium, STGMEDIUM& target)
{
    if (medium.tymed != target.tymed)
        return DV_E_TYMED;
    switch (medium.tymed) {
    case TYMED_HGLOBAL:
        return copyMemory(medium.hGlobal, target.hGlobal);
    case TYMED_ISTREAM:
        return copyStream(medium.pstm, target.pstm);
    case TYMED_ISTORAGE:
        return medium.pstg->CopyTo(0, nullptr, nullptr, target.pstg);
    default:
        return DV_E_TYMED; // pictures and file names cannot be filled in place
    }
}

} // namespace afxdetail
