// A data object of a foreign program: text in global memory, and a count of its references.
#pragma once

#include <afxole.h>

#include <string>

/// Lives on the stack; its references are only counted. Offers CF_UNICODETEXT.
class FakeDataObject : public IDataObject
{
public:
    explicit FakeDataObject(std::wstring text = L"text");

    long references = 1;
    bool keepsMemory = false; ///< gives out its own memory, to be released through the medium only
    int freed = 0;            ///< how often that memory was given back

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetData(FORMATETC* format, STGMEDIUM* medium) override;
    STDMETHODIMP GetDataHere(FORMATETC* format, STGMEDIUM* medium) override;
    STDMETHODIMP QueryGetData(FORMATETC* format) override;
    STDMETHODIMP GetCanonicalFormatEtc(FORMATETC* in, FORMATETC* out) override;
    STDMETHODIMP SetData(FORMATETC* format, STGMEDIUM* medium, BOOL release) override;
    STDMETHODIMP EnumFormatEtc(DWORD direction, IEnumFORMATETC** enumerator) override;
    STDMETHODIMP DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink, DWORD* connection) override;
    STDMETHODIMP DUnadvise(DWORD connection) override;
    STDMETHODIMP EnumDAdvise(IEnumSTATDATA** enumerator) override;

private:
    /// Stands in the medium for the object that the memory belongs to.
    class Owner : public IUnknown
    {
    public:
        explicit Owner(FakeDataObject& object)
            : m_object(object)
        {
        }
        STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
        STDMETHODIMP_(ULONG) AddRef() override;
        STDMETHODIMP_(ULONG) Release() override;

    private:
        FakeDataObject& m_object;
    };

    std::wstring m_text;
    Owner m_owner{*this};
};

/// Global memory with a text and its terminating zero.
HGLOBAL memoryWith(const std::wstring& text);

/// The text in global memory, which is not freed.
std::wstring textIn(HGLOBAL memory);

/// The same, freed.
std::wstring takeText(HGLOBAL memory);
