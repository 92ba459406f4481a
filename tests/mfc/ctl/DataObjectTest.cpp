// COleDataObject: asking others for their data.
#include "FakeDataObject.h"

#include <gtest/gtest.h>

TEST(DataObject, AnOwnedReferenceIsReleasedOnce)
{
    FakeDataObject object;
    {
        COleDataObject data;
        object.AddRef();
        data.Attach(&object);
        EXPECT_EQ(object.references, 2);
    }
    EXPECT_EQ(object.references, 1);
}

TEST(DataObject, ABorrowedReferenceStaysTheCallers)
{
    FakeDataObject object;
    {
        COleDataObject data;
        data.Attach(&object, FALSE);
        data.Release();
        EXPECT_EQ(data.m_lpDataObject, nullptr);
        data.Attach(&object, FALSE);
    }
    EXPECT_EQ(object.references, 1);
}

TEST(DataObject, DetachGivesTheReferenceAway)
{
    FakeDataObject object;
    COleDataObject data;
    object.AddRef();
    data.Attach(&object);

    EXPECT_EQ(data.Detach(), &object);
    EXPECT_EQ(object.references, 2);
    EXPECT_EQ(data.Detach(), nullptr);
}

TEST(DataObject, AttachTakesThePlaceOfWhatWasThere)
{
    FakeDataObject first;
    FakeDataObject second;
    COleDataObject data;
    first.AddRef();
    data.Attach(&first);

    data.Attach(&second, FALSE);

    EXPECT_EQ(first.references, 1);
    EXPECT_EQ(data.m_lpDataObject, &second);
}

TEST(DataObject, TellsWhatIsAvailable)
{
    FakeDataObject object;
    COleDataObject data;
    data.Attach(&object, FALSE);
    FORMATETC stream{CF_UNICODETEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_ISTREAM};

    EXPECT_TRUE(data.IsDataAvailable(CF_UNICODETEXT));
    EXPECT_FALSE(data.IsDataAvailable(CF_BITMAP));
    EXPECT_FALSE(data.IsDataAvailable(CF_UNICODETEXT, &stream));
    stream.tymed = TYMED_HGLOBAL;
    stream.cfFormat = CF_BITMAP;
    EXPECT_TRUE(data.IsDataAvailable(CF_UNICODETEXT, &stream)) << "the format given replaces the structure's";
    EXPECT_FALSE(data.IsDataAvailable(0, &stream));
}

TEST(DataObject, GlobalDataIsTheCallers)
{
    FakeDataObject object(L"hello");
    COleDataObject data;
    data.Attach(&object, FALSE);

    EXPECT_EQ(takeText(data.GetGlobalData(CF_UNICODETEXT)), L"hello");
    EXPECT_EQ(data.GetGlobalData(CF_BITMAP), nullptr);
}

TEST(DataObject, MemoryThatBelongsToOthersIsCopied)
{
    FakeDataObject object(L"lent");
    object.keepsMemory = true;
    COleDataObject data;
    data.Attach(&object, FALSE);

    const HGLOBAL memory = data.GetGlobalData(CF_UNICODETEXT);

    EXPECT_EQ(object.freed, 1) << "the owner gets its own back";
    EXPECT_EQ(takeText(memory), L"lent");
}

TEST(DataObject, GetDataFillsAMedium)
{
    FakeDataObject object(L"medium");
    COleDataObject data;
    data.Attach(&object, FALSE);
    STGMEDIUM medium{};

    ASSERT_TRUE(data.GetData(CF_UNICODETEXT, &medium));
    EXPECT_EQ(medium.tymed, static_cast<DWORD>(TYMED_HGLOBAL));
    EXPECT_EQ(textIn(medium.hGlobal), L"medium");
    ::ReleaseStgMedium(&medium);
    EXPECT_FALSE(data.GetData(CF_TEXT, &medium));
}

TEST(DataObject, WithoutAnEnumerationThereIsNoNextFormat)
{
    FakeDataObject object;
    COleDataObject data;
    data.Attach(&object, FALSE);
    FORMATETC format{};

    EXPECT_FALSE(data.GetNextFormat(&format));
    data.BeginEnumFormats(); // the object has none to give
    EXPECT_FALSE(data.GetNextFormat(&format));
}
