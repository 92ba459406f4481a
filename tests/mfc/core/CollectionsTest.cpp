// The arrays and lists.
#include "Texts.h"

#include <afxcoll.h>
#include <afxtempl.h>

namespace
{

CString joined(const CStringArray& array)
{
    CString all;
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        all += array[i] + L" ";
    return all;
}

CString joined(const CStringList& list)
{
    CString all;
    for (POSITION at = list.GetHeadPosition(); at;)
        all += list.GetNext(at) + L" ";
    return all;
}

CString joinedBackwards(const CStringList& list)
{
    CString all;
    for (POSITION at = list.GetTailPosition(); at;)
        all += list.GetPrev(at) + L" ";
    return all;
}

} // namespace

TEST(Array, GrowsAndShrinks)
{
    CStringArray array;
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(array.GetUpperBound(), -1);
    EXPECT_EQ(array.GetData(), nullptr);
    EXPECT_EQ(array.Add(L"a"), 0);
    EXPECT_EQ(array.Add(L"b"), 1);
    array.SetAtGrow(3, L"d");
    EXPECT_EQ(joined(array), L"a b  d ");
    EXPECT_EQ(array.GetCount(), 4);
    array.RemoveAt(2);
    array.InsertAt(1, L"x", 2);
    EXPECT_EQ(joined(array), L"a x x b d ");
    array.InsertAt(6, L"y");
    EXPECT_EQ(joined(array), L"a x x b d  y ");
    array.RemoveAt(1, 5);
    EXPECT_EQ(joined(array), L"a y ");
    array.SetSize(3, 100);
    EXPECT_EQ(joined(array), L"a y  ");
    array.SetSize(1);
    array.FreeExtra();
    EXPECT_EQ(joined(array), L"a ");
    array.RemoveAll();
    EXPECT_TRUE(array.IsEmpty());
}

TEST(Array, ElementsCanBeChangedInPlace)
{
    CStringArray array;
    array.Add(L"a");
    array[0] = L"b";
    array.ElementAt(0) += L"c";
    EXPECT_EQ(array.GetAt(0), L"bc");
    array.SetAt(0, L"d");
    EXPECT_EQ(*array.GetData(), L"d");
}

TEST(Array, TakesOtherArraysAndItself)
{
    CStringArray array;
    array.Add(L"a");
    array.Add(L"b");
    EXPECT_EQ(array.Append(array), 2);
    EXPECT_EQ(joined(array), L"a b a b ");
    array.InsertAt(1, &array);
    EXPECT_EQ(joined(array), L"a a b a b b a b ");
    array.Add(array[0]);
    EXPECT_EQ(array.GetSize(), 9);
    CStringArray copy;
    copy.Add(L"gone");
    copy.Copy(array);
    EXPECT_EQ(joined(copy), joined(array));
}

TEST(Array, HoldsPointersItDoesNotOwn)
{
    int value = 5;
    CPtrArray array;
    array.Add(&value);
    EXPECT_EQ(array[0], &value);
    EXPECT_TRUE(array.IsKindOf(RUNTIME_CLASS(CPtrArray)));
}

TEST(List, AddsAndRemovesAtBothEnds)
{
    CStringList list;
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
    list.AddTail(L"b");
    list.AddHead(L"a");
    list.AddTail(L"c");
    EXPECT_EQ(joined(list), L"a b c ");
    EXPECT_EQ(joinedBackwards(list), L"c b a ");
    EXPECT_EQ(list.GetCount(), 3);
    EXPECT_EQ(list.GetHead(), L"a");
    EXPECT_EQ(list.GetTail(), L"c");
    EXPECT_EQ(list.RemoveHead(), L"a");
    EXPECT_EQ(list.RemoveTail(), L"c");
    EXPECT_EQ(list.RemoveHead(), L"b");
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.GetTailPosition(), nullptr);
}

TEST(List, PlacesStayValidWhateverHappensAround)
{
    CStringList list;
    const POSITION b = list.AddTail(L"b");
    const POSITION a = list.InsertBefore(b, L"a");
    const POSITION c = list.InsertAfter(b, L"c");
    list.RemoveAt(b);
    EXPECT_EQ(joined(list), L"a c ");
    EXPECT_EQ(list.GetAt(a), L"a");
    list.SetAt(c, L"C");
    list.InsertBefore(nullptr, L"first");
    list.InsertAfter(nullptr, L"last");
    EXPECT_EQ(joined(list), L"first a C last ");
    EXPECT_EQ(joinedBackwards(list), L"last C a first ");
}

TEST(List, FindsByValueAndByIndex)
{
    CStringList list;
    list.AddTail(L"x");
    const POSITION second = list.AddTail(L"y");
    const POSITION third = list.AddTail(L"y");
    EXPECT_EQ(list.Find(L"y"), second);
    EXPECT_EQ(list.Find(L"y", second), third);
    EXPECT_EQ(list.Find(L"y", third), nullptr);
    EXPECT_EQ(list.Find(L"z"), nullptr);
    EXPECT_EQ(list.FindIndex(0), list.GetHeadPosition());
    EXPECT_EQ(list.FindIndex(2), third);
    EXPECT_EQ(list.FindIndex(3), nullptr);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
}

TEST(List, TakesOtherListsAndItself)
{
    CStringList list;
    list.AddTail(L"a");
    list.AddTail(L"b");
    CStringList other;
    other.AddTail(L"x");
    other.AddTail(&list);
    other.AddHead(&list);
    EXPECT_EQ(joined(other), L"a b x a b ");
    list.AddTail(&list);
    EXPECT_EQ(joined(list), L"a b a b ");
    list.AddHead(&list);
    EXPECT_EQ(list.GetCount(), 8);
    list.RemoveAll();
    EXPECT_EQ(list.GetCount(), 0);
}

TEST(List, HoldsPointersItDoesNotOwn)
{
    int value = 5;
    CPtrList list;
    const POSITION at = list.AddTail(&value);
    EXPECT_EQ(list.GetAt(at), &value);
    EXPECT_EQ(list.Find(&value), at);
    CList<int> numbers;
    numbers.AddTail(1);
    EXPECT_EQ(numbers.GetHead(), 1);
}
