#include "formatenumerator.h"

#include "comobject.h"

#include <cstring>
#include <new>

namespace
{

/// A copy that belongs to the caller, NULL for NULL.
DVTARGETDEVICE* copyDevice(const DVTARGETDEVICE* device)
{
    if (!device)
        return nullptr;
    void* const copy = ::CoTaskMemAlloc(device->tdSize);
    if (copy)
        std::memcpy(copy, device, device->tdSize);
    return static_cast<DVTARGETDEVICE*>(copy);
}

FORMATETC copyFormat(const FORMATETC& format)
{
    FORMATETC copy = format;
    copy.ptd = copyDevice(format.ptd);
    return copy;
}

class FormatEnumerator final : public afxdetail::ComObject<IEnumFORMATETC, IID_IEnumFORMATETC>
{
public:
    FormatEnumerator(const std::vector<FORMATETC>& formats, std::size_t next)
        : m_next(next)
    {
        m_formats.reserve(formats.size());
        for (const FORMATETC& format : formats)
            m_formats.push_back(copyFormat(format));
    }

    ~FormatEnumerator() override
    {
        for (const FORMATETC& format : m_formats)
            ::CoTaskMemFree(format.ptd);
    }

    STDMETHODIMP Next(ULONG count, FORMATETC* formats, ULONG* fetched) override
    {
        ULONG given = 0;
        while (given < count && m_next < m_formats.size())
            formats[given++] = copyFormat(m_formats[m_next++]);
        if (fetched)
            *fetched = given;
        return given == count ? S_OK : S_FALSE;
    }

    STDMETHODIMP Skip(ULONG count) override
    {
        const std::size_t left = m_formats.size() - m_next;
        m_next += std::min<std::size_t>(count, left);
        return count <= left ? S_OK : S_FALSE;
    }

    STDMETHODIMP Reset() override
    {
        m_next = 0;
        return S_OK;
    }

    STDMETHODIMP Clone(IEnumFORMATETC** clone) override
    {
        try {
            *clone = new FormatEnumerator(m_formats, m_next);
            return S_OK;
        } catch (const std::bad_alloc&) {
            *clone = nullptr;
            return E_OUTOFMEMORY;
        }
    }

private:
    std::vector<FORMATETC> m_formats;
    std::size_t m_next;
};

} // namespace

namespace afxdetail
{

IEnumFORMATETC* enumerateFormats(const std::vector<FORMATETC>& formats)
{
    return new FormatEnumerator(formats, 0);
}

} // namespace afxdetail
