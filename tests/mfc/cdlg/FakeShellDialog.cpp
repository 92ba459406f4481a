#include "FakeShellDialog.h"

#include <objbase.h>

namespace
{

FakeShellDialog* s_current = nullptr;

LPWSTR taskText(const std::wstring& text)
{
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    auto* copy = static_cast<LPWSTR>(::CoTaskMemAlloc(bytes));
    std::copy_n(text.c_str(), text.size() + 1, copy);
    return copy;
}

/// Counts references and answers one interface.
template <class Interface>
class Counted : public Interface
{
public:
    virtual ~Counted() = default;
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override
    {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override
    {
        *object = answers(iid) ? this : nullptr;
        if (*object)
            AddRef();
        return *object ? S_OK : E_NOINTERFACE;
    }
    virtual bool answers(REFIID iid) const { return iid == IID_IUnknown; }
    ULONG m_references = 1;
};

class Item : public Counted<IShellItem>
{
public:
    explicit Item(std::wstring path)
        : m_path(std::move(path))
    {
    }
    STDMETHODIMP BindToHandler(IBindCtx*, REFGUID, REFIID, void**) override { return E_NOTIMPL; }
    STDMETHODIMP GetParent(IShellItem**) override { return E_NOTIMPL; }
    STDMETHODIMP GetDisplayName(SIGDN, LPWSTR* name) override
    {
        *name = taskText(m_path);
        return S_OK;
    }
    STDMETHODIMP GetAttributes(SFGAOF, SFGAOF*) override { return E_NOTIMPL; }
    STDMETHODIMP Compare(IShellItem*, SICHINTF, int*) override { return E_NOTIMPL; }

private:
    std::wstring m_path;
};

class Items : public Counted<IShellItemArray>
{
public:
    STDMETHODIMP BindToHandler(IBindCtx*, REFGUID, REFIID, void**) override { return E_NOTIMPL; }
    STDMETHODIMP GetPropertyStore(GETPROPERTYSTOREFLAGS, REFIID, void**) override { return E_NOTIMPL; }
    STDMETHODIMP GetPropertyDescriptionList(REFPROPERTYKEY, REFIID, void**) override { return E_NOTIMPL; }
    STDMETHODIMP GetAttributes(SIATTRIBFLAGS, SFGAOF, SFGAOF*) override { return E_NOTIMPL; }
    STDMETHODIMP GetCount(DWORD* count) override
    {
        *count = static_cast<DWORD>(s_current->results.size());
        return S_OK;
    }
    STDMETHODIMP GetItemAt(DWORD index, IShellItem** item) override
    {
        *item = new Item(s_current->results[index]);
        return S_OK;
    }
    STDMETHODIMP EnumItems(IEnumShellItems**) override { return E_NOTIMPL; }
};

} // namespace

class FakeShellDialog::Dialog : public Counted<IFileOpenDialog>
{
public:
    bool answers(REFIID iid) const override
    {
        return iid == IID_IUnknown || iid == IID_IFileDialog || iid == IID_IFileOpenDialog;
    }
    STDMETHODIMP Show(HWND) override
    {
        return s_current->onShow ? s_current->onShow(*m_events) : s_current->accept(*m_events);
    }
    STDMETHODIMP SetFileTypes(UINT, const COMDLG_FILTERSPEC*) override { return S_OK; }
    STDMETHODIMP SetFileTypeIndex(UINT index) override
    {
        s_current->type = index;
        return S_OK;
    }
    STDMETHODIMP GetFileTypeIndex(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP Advise(IFileDialogEvents* events, DWORD* cookie) override
    {
        (m_events = events)->AddRef();
        *cookie = 4711;
        return S_OK;
    }
    STDMETHODIMP Unadvise(DWORD cookie) override
    {
        if (cookie != 4711 || !m_events)
            return E_INVALIDARG;
        std::exchange(m_events, nullptr)->Release();
        return S_OK;
    }
    STDMETHODIMP SetOptions(FILEOPENDIALOGOPTIONS options) override
    {
        if (SUCCEEDED(s_current->optionsAnswer))
            s_current->options = static_cast<DWORD>(options);
        return s_current->optionsAnswer;
    }
    STDMETHODIMP GetOptions(FILEOPENDIALOGOPTIONS* options) override
    {
        *options = static_cast<FILEOPENDIALOGOPTIONS>(s_current->options);
        return S_OK;
    }
    STDMETHODIMP SetDefaultFolder(IShellItem*) override
    {
        ++s_current->defaultFolders;
        return S_OK;
    }
    STDMETHODIMP SetFolder(IShellItem*) override { return S_OK; }
    STDMETHODIMP GetFolder(IShellItem**) override { return E_FAIL; }
    STDMETHODIMP GetCurrentSelection(IShellItem**) override { return E_FAIL; }
    STDMETHODIMP SetFileName(LPCWSTR name) override
    {
        s_current->name = name;
        return S_OK;
    }
    STDMETHODIMP GetFileName(LPWSTR*) override { return E_FAIL; }
    STDMETHODIMP SetTitle(LPCWSTR) override { return S_OK; }
    STDMETHODIMP SetOkButtonLabel(LPCWSTR) override { return S_OK; }
    STDMETHODIMP SetFileNameLabel(LPCWSTR) override { return S_OK; }
    STDMETHODIMP GetResult(IShellItem** item) override
    {
        *item = new Item(s_current->results.front());
        return S_OK;
    }
    STDMETHODIMP AddPlace(IShellItem*, FDAP where) override
    {
        ++(where == FDAP_TOP ? s_current->topPlaces : s_current->bottomPlaces);
        return S_OK;
    }
    STDMETHODIMP SetDefaultExtension(LPCWSTR extension) override
    {
        s_current->extension = extension;
        return S_OK;
    }
    STDMETHODIMP Close(HRESULT result) override
    {
        s_current->closed = result;
        return S_OK;
    }
    STDMETHODIMP SetClientGuid(REFGUID client) override
    {
        s_current->client = client;
        return S_OK;
    }
    STDMETHODIMP ClearClientData() override { return S_OK; }
    STDMETHODIMP SetFilter(IShellItemFilter*) override { return S_OK; }
    STDMETHODIMP GetResults(IShellItemArray** items) override
    {
        *items = new Items;
        return S_OK;
    }
    STDMETHODIMP GetSelectedItems(IShellItemArray**) override { return E_FAIL; }

private:
    IFileDialogEvents* m_events = nullptr;
};

FakeShellDialog::FakeShellDialog()
    : m_dialog(new Dialog)
    , m_patch(L"ovomfc.dll", "CoCreateInstance", reinterpret_cast<void*>(&create))
{
    s_current = this;
}

FakeShellDialog::~FakeShellDialog()
{
    s_current = nullptr;
    m_dialog->Release();
}

int FakeShellDialog::references() const
{
    return static_cast<int>(m_dialog->m_references);
}

IFileDialog* FakeShellDialog::dialog() const
{
    return m_dialog;
}

HRESULT FakeShellDialog::accept(IFileDialogEvents& events) const
{
    return events.OnFileOk(m_dialog) == S_OK ? S_OK : HRESULT_FROM_WIN32(ERROR_CANCELLED);
}

HRESULT WINAPI FakeShellDialog::create(REFCLSID kind, LPUNKNOWN, DWORD, REFIID iid, LPVOID* object)
{
    s_current->kind = kind;
    *object = nullptr;
    return FAILED(s_current->creation) ? s_current->creation
                                       : s_current->m_dialog->QueryInterface(iid, object);
}
