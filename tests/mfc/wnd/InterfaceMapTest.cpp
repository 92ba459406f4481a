// COM interfaces that are nested in an object.
#include <afxole.h>

#include <gtest/gtest.h>

namespace
{

/// An object with one interface.
class Persisting : public CCmdTarget
{
public:
    ~Persisting() override { ++s_deleted; }

    static int s_deleted;

    BEGIN_INTERFACE_PART(Persist, IPersist)
    STDMETHOD(GetClassID)(CLSID* id) override;
    END_INTERFACE_PART(Persist)
    DECLARE_INTERFACE_MAP()

public:
    CLSID m_id = {0x1234, 0, 0, {0}};
    AFX_MODULE_STATE* m_stateInMethod = nullptr;
};

int Persisting::s_deleted = 0;

BEGIN_INTERFACE_MAP(Persisting, CCmdTarget)
    INTERFACE_PART(Persisting, IID_IPersist, Persist)
END_INTERFACE_MAP()

STDMETHODIMP_(ULONG) Persisting::XPersist::AddRef()
{
    METHOD_PROLOGUE_EX_(Persisting, Persist)
    return pThis->ExternalAddRef();
}

STDMETHODIMP_(ULONG) Persisting::XPersist::Release()
{
    METHOD_PROLOGUE_EX_(Persisting, Persist)
    return pThis->ExternalRelease();
}

STDMETHODIMP Persisting::XPersist::QueryInterface(REFIID iid, LPVOID* object)
{
    METHOD_PROLOGUE_EX_(Persisting, Persist)
    return static_cast<HRESULT>(pThis->ExternalQueryInterface(&iid, object));
}

STDMETHODIMP Persisting::XPersist::GetClassID(CLSID* id)
{
    METHOD_PROLOGUE(Persisting, Persist)
    pThis->m_stateInMethod = AfxGetModuleState();
    *id = pThis->m_id;
    return S_OK;
}

/// A derived one with a second interface, and an inner object for others.
class Enumerating : public Persisting
{
public:
    LPUNKNOWN m_inner = nullptr;

    BEGIN_INTERFACE_PART(Window, IOleWindow)
    STDMETHOD(GetWindow)(HWND* wnd) override;
    STDMETHOD(ContextSensitiveHelp)(BOOL enter) override;
    END_INTERFACE_PART(Window)
    DECLARE_INTERFACE_MAP()
};

BEGIN_INTERFACE_MAP(Enumerating, Persisting)
    INTERFACE_PART(Enumerating, IID_IOleWindow, Window)
    INTERFACE_AGGREGATE(Enumerating, m_inner)
END_INTERFACE_MAP()

STDMETHODIMP_(ULONG) Enumerating::XWindow::AddRef()
{
    METHOD_PROLOGUE_EX_(Enumerating, Window)
    return pThis->ExternalAddRef();
}

STDMETHODIMP_(ULONG) Enumerating::XWindow::Release()
{
    METHOD_PROLOGUE_EX_(Enumerating, Window)
    return pThis->ExternalRelease();
}

STDMETHODIMP Enumerating::XWindow::QueryInterface(REFIID iid, LPVOID* object)
{
    METHOD_PROLOGUE_EX_(Enumerating, Window)
    return static_cast<HRESULT>(pThis->ExternalQueryInterface(&iid, object));
}

STDMETHODIMP Enumerating::XWindow::GetWindow(HWND* wnd)
{
    *wnd = reinterpret_cast<HWND>(static_cast<INT_PTR>(77));
    return S_OK;
}

STDMETHODIMP Enumerating::XWindow::ContextSensitiveHelp(BOOL)
{
    return E_NOTIMPL;
}

} // namespace

TEST(InterfaceMap, APartAnswersForItsObject)
{
    auto* object = new Persisting;
    IPersist* part = nullptr;
    ASSERT_EQ(static_cast<HRESULT>(object->ExternalQueryInterface(&IID_IPersist, reinterpret_cast<void**>(&part))), S_OK);
    EXPECT_EQ(part, &object->m_xPersist);
    EXPECT_EQ(object->m_dwRef, 2);
    CLSID id{};
    EXPECT_EQ(part->GetClassID(&id), S_OK);
    EXPECT_EQ(id.Data1, 0x1234u);
    part->Release();
    object->ExternalRelease();
}

TEST(InterfaceMap, TheLastReferenceDeletesTheObject)
{
    Persisting::s_deleted = 0;
    auto* object = new Persisting;
    auto* part = static_cast<IPersist*>(object->GetInterface(&IID_IPersist));
    EXPECT_EQ(object->m_dwRef, 1) << "GetInterface counts nothing";
    EXPECT_EQ(part->AddRef(), 2u);
    EXPECT_EQ(part->Release(), 1u);
    EXPECT_EQ(Persisting::s_deleted, 0);
    EXPECT_EQ(part->Release(), 0u);
    EXPECT_EQ(Persisting::s_deleted, 1);
}

TEST(InterfaceMap, AnInterfaceThatIsNotImplementedIsRefused)
{
    Persisting object;
    void* part = &object;
    EXPECT_EQ(static_cast<HRESULT>(object.ExternalQueryInterface(&IID_IStream, &part)), E_NOINTERFACE);
    EXPECT_EQ(part, nullptr);
    EXPECT_EQ(object.m_dwRef, 1);
}

TEST(InterfaceMap, ADerivedClassAddsToItsBase)
{
    Enumerating object;
    EXPECT_EQ(object.GetInterface(&IID_IOleWindow), &object.m_xWindow);
    EXPECT_EQ(object.GetInterface(&IID_IPersist), &object.m_xPersist);
}

TEST(InterfaceMap, TheFirstPartOfTheMostDerivedClassIsTheIdentity)
{
    Enumerating object;
    const LPUNKNOWN identity = object.GetInterface(&IID_IUnknown);
    EXPECT_EQ(identity, static_cast<LPUNKNOWN>(&object.m_xWindow));
    LPUNKNOWN asked = nullptr;
    object.m_xPersist.QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&asked));
    EXPECT_EQ(asked, identity) << "whichever part is asked";
    EXPECT_EQ(object.GetControllingUnknown(), identity);
    asked->Release();
}

TEST(InterfaceMap, AnInnerObjectAnswersForTheRest)
{
    Enumerating object;
    void* part = nullptr;
    EXPECT_EQ(static_cast<HRESULT>(object.ExternalQueryInterface(&IID_IStream, &part)), E_NOINTERFACE) << "none yet";

    IStream* stream = nullptr;
    ASSERT_EQ(::CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    object.m_inner = stream;
    EXPECT_EQ(static_cast<HRESULT>(object.ExternalQueryInterface(&IID_IStream, &part)), S_OK);
    EXPECT_EQ(part, stream);
    static_cast<IUnknown*>(part)->Release();
    EXPECT_EQ(object.GetInterface(&IID_IPersist), &object.m_xPersist) << "the object's own parts come first";
    stream->Release();
}

TEST(InterfaceMap, ReferencesOfAnObjectInAnotherGoToTheOuterOne)
{
    Persisting outer;
    Persisting inner;
    inner.m_pOuterUnknown = outer.GetInterface(&IID_IUnknown);
    EXPECT_EQ(inner.ExternalAddRef(), 2u);
    EXPECT_EQ(outer.m_dwRef, 2);
    EXPECT_EQ(inner.m_dwRef, 1);
    EXPECT_EQ(inner.ExternalRelease(), 1u);
    EXPECT_EQ(inner.GetControllingUnknown(), outer.GetInterface(&IID_IUnknown));
}

TEST(InterfaceMap, AMethodWorksInTheStateOfItsModule)
{
    AFX_MODULE_STATE* const program = AfxGetModuleState();
    Persisting object;
    EXPECT_EQ(object.m_pModuleState, program);
    int place = 0; // nothing looks into a state that only stands for another
    auto* const other = reinterpret_cast<AFX_MODULE_STATE*>(&place);
    object.m_pModuleState = other;
    CLSID id{};
    object.m_xPersist.GetClassID(&id);
    EXPECT_EQ(object.m_stateInMethod, other);
    EXPECT_EQ(AfxGetModuleState(), program) << "again";
}
