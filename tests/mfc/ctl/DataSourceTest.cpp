// COleDataSource: offering data, at once or on demand.
#include "FakeDataObject.h"
#include "NextStep.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <testkit/RecordingParent.h>

#include <cstring>
#include <stdexcept>

namespace
{

/// A source that counts what it is asked for, and notes when it goes.
class Source : public COleDataSource
{
public:
    explicit Source(bool* gone = nullptr)
        : m_gone(gone)
    {
    }
    ~Source() override
    {
        if (m_gone)
            *m_gone = true;
    }

    std::wstring text = L"made on demand";
    std::vector<CLIPFORMAT> rendered;
    bool fails = false;
    bool throws = false;
    std::wstring received;

    BOOL OnRenderGlobalData(LPFORMATETC format, HGLOBAL* memory) override
    {
        rendered.push_back(format->cfFormat);
        if (throws)
            throw std::runtime_error("cannot render");
        if (fails)
            return FALSE;
        if (!*memory) {
            *memory = memoryWith(text);
            return TRUE;
        }
        const SIZE_T size = (text.size() + 1) * sizeof(wchar_t);
        if (::GlobalSize(*memory) < size)
            return FALSE;
        std::memcpy(::GlobalLock(*memory), text.c_str(), size);
        ::GlobalUnlock(*memory);
        return TRUE;
    }
    BOOL OnSetData(LPFORMATETC, LPSTGMEDIUM medium, BOOL release) override
    {
        if (throws)
            throw std::runtime_error("cannot take it");
        if (fails)
            return FALSE;
        received = textIn(medium->hGlobal);
        if (release)
            ::ReleaseStgMedium(medium);
        return TRUE;
    }

    /// What others see of it; without a reference.
    IDataObject* object() { return static_cast<IDataObject*>(GetInterface(&IID_IDataObject)); }

    std::wstring read(CLIPFORMAT format = CF_UNICODETEXT)
    {
        COleDataObject data;
        data.Attach(object(), FALSE);
        const HGLOBAL memory = data.GetGlobalData(format);
        return memory ? takeText(memory) : L"(nothing)";
    }
    HRESULT query(FORMATETC format) { return object()->QueryGetData(&format); }

private:
    bool* m_gone;
};

FORMATETC textFormat(DWORD medium = TYMED_HGLOBAL)
{
    return {CF_UNICODETEXT, nullptr, DVASPECT_CONTENT, -1, medium};
}

/// Counts how often a medium is released.
class ReleaseCounter : public IUnknown
{
public:
    int releases = 0;

    STDMETHODIMP QueryInterface(REFIID, void** object) override
    {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override
    {
        ++releases;
        return 0;
    }
};

void cacheCounted(COleDataSource& source, CLIPFORMAT format, ReleaseCounter& counter)
{
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = memoryWith(L"counted");
    medium.pUnkForRelease = &counter;
    source.CacheData(format, &medium);
}

} // namespace

TEST(DataSource, CachedDataIsGivenOutInCopies)
{
    Source source;
    source.CacheGlobalData(CF_UNICODETEXT, memoryWith(L"cached"));

    EXPECT_EQ(source.read(), L"cached");
    EXPECT_EQ(source.read(), L"cached") << "the first reader's copy was its own";
    EXPECT_EQ(source.read(CF_TEXT), L"(nothing)");
    EXPECT_TRUE(source.rendered.empty());
}

TEST(DataSource, OfferingAFormatAgainReplacesIt)
{
    Source source;
    ReleaseCounter counter;
    cacheCounted(source, CF_UNICODETEXT, counter);

    source.CacheGlobalData(CF_UNICODETEXT, memoryWith(L"newer"));

    EXPECT_EQ(counter.releases, 1);
    EXPECT_EQ(source.read(), L"newer");
    COleDataObject data;
    data.Attach(source.object(), FALSE);
    data.BeginEnumFormats();
    FORMATETC format{};
    EXPECT_TRUE(data.GetNextFormat(&format));
    EXPECT_FALSE(data.GetNextFormat(&format)) << "there is one entry";
}

TEST(DataSource, EmptyAndTheDestructorFreeTheData)
{
    ReleaseCounter counter;
    {
        Source source;
        cacheCounted(source, CF_UNICODETEXT, counter);
        cacheCounted(source, CF_TEXT, counter);
        source.Empty();
        EXPECT_EQ(counter.releases, 2);
        EXPECT_EQ(source.query(textFormat()), DV_E_FORMATETC);
        cacheCounted(source, CF_TEXT, counter);
    }
    EXPECT_EQ(counter.releases, 3);
}

TEST(DataSource, AStreamIsShared)
{
    Source source;
    IStream* stream = nullptr;
    ASSERT_EQ(::CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    stream->Write("flow", 4, nullptr);
    STGMEDIUM medium{};
    medium.tymed = TYMED_ISTREAM;
    medium.pstm = stream;
    stream->AddRef();
    source.CacheData(CF_TEXT, &medium);
    COleDataObject data;
    data.Attach(source.object(), FALSE);
    STGMEDIUM got{};

    ASSERT_TRUE(data.GetData(CF_TEXT, &got));
    EXPECT_EQ(got.tymed, static_cast<DWORD>(TYMED_ISTREAM));
    EXPECT_EQ(got.pstm, stream);
    ::ReleaseStgMedium(&got);
    EXPECT_EQ(data.GetGlobalData(CF_TEXT), nullptr) << "it is no memory";
    source.Empty();
    EXPECT_EQ(stream->Release(), 0u) << "no other reference to the stream is left";
}

TEST(DataSource, APictureIsCopied)
{
    Source source;
    STGMEDIUM medium{};
    medium.tymed = TYMED_GDI;
    medium.hBitmap = ::CreateBitmap(5, 6, 1, 1, nullptr);
    source.CacheData(CF_BITMAP, &medium);
    COleDataObject data;
    data.Attach(source.object(), FALSE);
    STGMEDIUM got{};

    ASSERT_TRUE(data.GetData(CF_BITMAP, &got));
    EXPECT_NE(got.hBitmap, medium.hBitmap);
    BITMAP description{};
    ::GetObjectW(got.hBitmap, sizeof description, &description);
    EXPECT_EQ(description.bmWidth, 5);
    ::ReleaseStgMedium(&got);
}

TEST(DataSource, AQuestionNamesWhatDoesNotFit)
{
    Source source;
    source.CacheGlobalData(CF_UNICODETEXT, memoryWith(L"x"));

    EXPECT_EQ(source.query(textFormat()), S_OK);
    EXPECT_EQ(source.query(textFormat(TYMED_HGLOBAL | TYMED_ISTREAM)), S_OK) << "one of the media is enough";
    EXPECT_EQ(source.query(textFormat(TYMED_ISTREAM)), DV_E_TYMED);
    FORMATETC format = textFormat();
    format.dwAspect = DVASPECT_ICON;
    EXPECT_EQ(source.query(format), DV_E_DVASPECT);
    format = textFormat();
    format.lindex = 3;
    EXPECT_EQ(source.query(format), DV_E_LINDEX);
    format = textFormat();
    format.cfFormat = CF_TEXT;
    EXPECT_EQ(source.query(format), DV_E_FORMATETC);
    STGMEDIUM medium{};
    EXPECT_EQ(source.object()->GetData(&format, &medium), DV_E_FORMATETC);
}

TEST(DataSource, DelayedDataIsMadeForEveryReader)
{
    Source source;
    source.DelayRenderData(CF_UNICODETEXT);

    EXPECT_EQ(source.query(textFormat()), S_OK);
    EXPECT_TRUE(source.rendered.empty()) << "a question makes nothing";
    EXPECT_EQ(source.read(), L"made on demand");
    source.text = L"changed";
    EXPECT_EQ(source.read(), L"changed");
    EXPECT_EQ(source.rendered, (std::vector<CLIPFORMAT>{CF_UNICODETEXT, CF_UNICODETEXT}));
}

TEST(DataSource, DelayedDataThatCannotBeMadeIsNotThere)
{
    Source source;
    source.DelayRenderData(CF_UNICODETEXT);
    source.fails = true;

    EXPECT_EQ(source.read(), L"(nothing)");
    EXPECT_EQ(COleDataSource().OnRenderGlobalData(nullptr, nullptr), FALSE);
}

TEST(DataSource, AMediumThatIsThereIsFilled)
{
    Source source;
    source.CacheGlobalData(CF_UNICODETEXT, memoryWith(L"cached"));
    source.DelayRenderData(CF_TEXT);
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = ::GlobalAlloc(GMEM_MOVEABLE, 100);
    FORMATETC format = textFormat();

    EXPECT_EQ(source.object()->GetDataHere(&format, &medium), S_OK);
    EXPECT_EQ(textIn(medium.hGlobal), L"cached");
    format.cfFormat = CF_TEXT;
    EXPECT_EQ(source.object()->GetDataHere(&format, &medium), S_OK);
    EXPECT_EQ(textIn(medium.hGlobal), L"made on demand");
    ::GlobalFree(medium.hGlobal);

    medium.hGlobal = ::GlobalAlloc(GMEM_MOVEABLE, 2);
    format.cfFormat = CF_UNICODETEXT;
    EXPECT_EQ(source.object()->GetDataHere(&format, &medium), STG_E_MEDIUMFULL);
    ::GlobalFree(medium.hGlobal);
}

TEST(DataSource, AStreamThatIsThereIsFilled)
{
    Source source;
    IStream* from = nullptr;
    IStream* to = nullptr;
    ::CreateStreamOnHGlobal(nullptr, TRUE, &from);
    ::CreateStreamOnHGlobal(nullptr, TRUE, &to);
    from->Write("flow", 4, nullptr);
    STGMEDIUM cached{};
    cached.tymed = TYMED_ISTREAM;
    cached.pstm = from;
    source.CacheData(CF_TEXT, &cached);
    STGMEDIUM target{};
    target.tymed = TYMED_ISTREAM;
    target.pstm = to;
    FORMATETC format{CF_TEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_ISTREAM};

    EXPECT_EQ(source.object()->GetDataHere(&format, &target), S_OK);

    char text[5]{};
    to->Seek({}, STREAM_SEEK_SET, nullptr);
    to->Read(text, 4, nullptr);
    EXPECT_STREQ(text, "flow");
    to->Release();
}

TEST(DataSource, TheFormatsAreEnumeratedInOrder)
{
    Source source;
    source.CacheGlobalData(CF_UNICODETEXT, memoryWith(L"x"));
    source.DelayRenderData(CF_TEXT);
    source.DelaySetData(CF_OEMTEXT);
    COleDataObject data;
    data.Attach(source.object(), FALSE);
    FORMATETC format{};
    std::vector<CLIPFORMAT> formats;

    data.BeginEnumFormats();
    while (data.GetNextFormat(&format))
        formats.push_back(format.cfFormat);
    EXPECT_EQ(formats, (std::vector<CLIPFORMAT>{CF_UNICODETEXT, CF_TEXT}))
        << "what is only taken is not offered";
    data.BeginEnumFormats();
    EXPECT_TRUE(data.GetNextFormat(&format)) << "from the beginning again";
}

TEST(DataSource, AnEnumeratorSkipsResetsAndIsCloned)
{
    Source source;
    for (const CLIPFORMAT format : {CF_TEXT, CF_UNICODETEXT, CF_OEMTEXT})
        source.DelayRenderData(format);
    IEnumFORMATETC* formats = nullptr;
    IEnumFORMATETC* clone = nullptr;
    FORMATETC got[3]{};
    ULONG count = 0;
    ASSERT_EQ(source.object()->EnumFormatEtc(DATADIR_GET, &formats), S_OK);

    EXPECT_EQ(formats->Skip(1), S_OK);
    EXPECT_EQ(formats->Clone(&clone), S_OK);
    EXPECT_EQ(clone->Next(3, got, &count), S_FALSE);
    EXPECT_EQ(count, 2u);
    EXPECT_EQ(got[0].cfFormat, CF_UNICODETEXT);
    EXPECT_EQ(formats->Skip(5), S_FALSE);
    EXPECT_EQ(formats->Reset(), S_OK);
    EXPECT_EQ(formats->Next(3, got, nullptr), S_OK);
    EXPECT_EQ(got[0].cfFormat, CF_TEXT);
    EXPECT_EQ(clone->Release(), 0u);
    EXPECT_EQ(formats->Release(), 0u);
}

TEST(DataSource, ATargetDeviceIsTheSourcesAndIsCopiedOut)
{
    Source source;
    FORMATETC format = textFormat();
    format.ptd = static_cast<DVTARGETDEVICE*>(::CoTaskMemAlloc(sizeof(DVTARGETDEVICE)));
    *format.ptd = DVTARGETDEVICE{sizeof(DVTARGETDEVICE), 0, 0, 0, 0, {0}};
    source.CacheGlobalData(CF_UNICODETEXT, memoryWith(L"x"), &format);
    COleDataObject data;
    data.Attach(source.object(), FALSE);
    FORMATETC got{};

    data.BeginEnumFormats();
    ASSERT_TRUE(data.GetNextFormat(&got));
    ASSERT_NE(got.ptd, nullptr);
    EXPECT_NE(got.ptd, format.ptd);
    EXPECT_EQ(got.ptd->tdSize, sizeof(DVTARGETDEVICE));
    ::CoTaskMemFree(got.ptd);
}

TEST(DataSource, DataIsTakenOnlyInFormatsThatWereAnnounced)
{
    Source source;
    FORMATETC format = textFormat();
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = memoryWith(L"from others");

    EXPECT_EQ(source.object()->SetData(&format, &medium, FALSE), DV_E_FORMATETC);
    source.DelaySetData(CF_UNICODETEXT);
    EXPECT_EQ(source.object()->SetData(&format, &medium, FALSE), S_OK);
    EXPECT_EQ(source.received, L"from others");
    source.fails = true;
    EXPECT_EQ(source.object()->SetData(&format, &medium, TRUE), E_FAIL);
    source.fails = false;
    EXPECT_EQ(source.object()->SetData(&format, &medium, TRUE), S_OK)
        << "the medium is still the caller's after a failure";
}

TEST(DataSource, AdvisingIsRefusedAndFormatsAreTheirOwnCanonicalForm)
{
    Source source;
    FORMATETC format = textFormat();
    FORMATETC canonical{};
    DWORD connection = 5;
    IEnumSTATDATA* advises = nullptr;

    EXPECT_EQ(source.object()->DAdvise(&format, 0, nullptr, &connection), OLE_E_ADVISENOTSUPPORTED);
    EXPECT_EQ(source.object()->DUnadvise(1), OLE_E_ADVISENOTSUPPORTED);
    EXPECT_EQ(source.object()->EnumDAdvise(&advises), OLE_E_ADVISENOTSUPPORTED);
    EXPECT_EQ(source.object()->GetCanonicalFormatEtc(&format, &canonical), DATA_S_SAMEFORMATETC);
    EXPECT_EQ(canonical.cfFormat, CF_UNICODETEXT);
}

TEST(DataSource, AnExceptionWhileRenderingComesOutOfTheReader)
{
    Source source;
    source.DelayRenderData(CF_UNICODETEXT);
    source.throws = true;
    COleDataObject data;
    data.Attach(source.object(), FALSE);

    EXPECT_THROW(data.GetGlobalData(CF_UNICODETEXT), std::runtime_error);
    source.throws = false;
    EXPECT_EQ(source.read(), L"made on demand") << "nothing is left over";
}

TEST(DataSource, NoExceptionLeavesAMethodThatTheSystemCalls)
{
    ovo::testkit::RecordingParent window;
    Source source;
    source.DelayRenderData(CF_UNICODETEXT);
    source.throws = true;
    FORMATETC format = textFormat();
    STGMEDIUM medium{};

    EXPECT_EQ(source.object()->GetData(&format, &medium), E_UNEXPECTED);
    EXPECT_NO_THROW(window.SendMessage(WM_NULL)) << "no call of another matter raises it";
    EXPECT_THROW(nextStep(window), std::runtime_error) << "it waits for the message loop";
    EXPECT_NO_THROW(nextStep(window));
}

TEST(DataSource, LivesAsLongAsItsReferences)
{
    bool gone = false;
    auto* source = new Source(&gone);
    source->CacheGlobalData(CF_UNICODETEXT, memoryWith(L"lasting"));
    COleDataObject data;
    IDataObject* object = nullptr;
    ASSERT_EQ(source->object()->QueryInterface(IID_IDataObject, reinterpret_cast<void**>(&object)), S_OK);
    data.Attach(object);

    source->InternalRelease();
    EXPECT_FALSE(gone);
    EXPECT_EQ(takeText(data.GetGlobalData(CF_UNICODETEXT)), L"lasting");
    data.Release();
    EXPECT_TRUE(gone);
}

TEST(DataSource, KnowsItsInterfaces)
{
    Source source;
    IUnknown* unknown = nullptr;
    void* other = &source;

    EXPECT_EQ(source.object()->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&unknown)), S_OK);
    EXPECT_EQ(unknown->Release(), 1u);
    EXPECT_EQ(source.object()->QueryInterface(IID_IDropTarget, &other), E_NOINTERFACE);
    EXPECT_EQ(other, nullptr);
}
