// CArray: an array that grows.
#pragma once

#include <afx/Object.h>

#include <algorithm>
#include <vector>

/// Elements in a row, with indexes from 0. Elements are copied and moved as their type says; new ones are
/// made by its default constructor.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject
{
public:
    INT_PTR GetSize() const { return static_cast<INT_PTR>(m_elements.size()); }
    INT_PTR GetCount() const { return GetSize(); }
    BOOL IsEmpty() const { return m_elements.empty(); }
    INT_PTR GetUpperBound() const { return GetSize() - 1; }
    /// `growBy`: how much room to make at least when the array grows later; -1 leaves it as it is.
    void SetSize(INT_PTR size, INT_PTR growBy = -1)
    {
        ASSERT(size >= 0);
        if (growBy >= 0)
            m_growBy = growBy;
        makeRoom(size);
        m_elements.resize(static_cast<std::size_t>(size));
    }
    void FreeExtra() { m_elements.shrink_to_fit(); }
    void RemoveAll() { std::vector<TYPE>().swap(m_elements); }

    // Elements. An index outside asserts.
    TYPE& ElementAt(INT_PTR index) { return m_elements[checked(index)]; }
    const TYPE& ElementAt(INT_PTR index) const { return m_elements[checked(index)]; }
    TYPE& GetAt(INT_PTR index) { return ElementAt(index); }
    const TYPE& GetAt(INT_PTR index) const { return ElementAt(index); }
    TYPE& operator[](INT_PTR index) { return ElementAt(index); }
    const TYPE& operator[](INT_PTR index) const { return ElementAt(index); }
    void SetAt(INT_PTR index, ARG_TYPE element) { ElementAt(index) = element; }
    /// Null when there are no elements.
    TYPE* GetData() { return IsEmpty() ? nullptr : m_elements.data(); }
    const TYPE* GetData() const { return IsEmpty() ? nullptr : m_elements.data(); }

    // Growing
    /// Gives the index of the new element.
    INT_PTR Add(ARG_TYPE element)
    {
        InsertAt(GetSize(), element);
        return GetUpperBound();
    }
    void SetAtGrow(INT_PTR index, ARG_TYPE element)
    {
        const TYPE copy = element; // which may lie in this array
        if (index >= GetSize())
            SetSize(index + 1);
        ElementAt(index) = copy;
    }
    /// Gives the index of the first new element.
    INT_PTR Append(const CArray& source)
    {
        const INT_PTR first = GetSize();
        insertAll(first, source);
        return first;
    }
    void Copy(const CArray& source) { m_elements = source.m_elements; }
    /// Shifts what comes behind. An index beyond the end fills up with new elements first.
    void InsertAt(INT_PTR index, ARG_TYPE element, INT_PTR count = 1)
    {
        const TYPE copy = element;
        reach(index, count);
        m_elements.insert(m_elements.begin() + index, static_cast<std::size_t>(count), copy);
    }
    void InsertAt(INT_PTR start, CArray* source) { insertAll(start, *source); }
    void RemoveAt(INT_PTR index, INT_PTR count = 1)
    {
        ASSERT(index >= 0 && count >= 0 && index + count <= GetSize());
        m_elements.erase(m_elements.begin() + index, m_elements.begin() + index + count);
    }

private:
    std::size_t checked(INT_PTR index) const
    {
        ASSERT(index >= 0 && index < GetSize());
        return static_cast<std::size_t>(index);
    }
    void makeRoom(INT_PTR size)
    {
        const auto room = static_cast<INT_PTR>(m_elements.capacity());
        if (size > room && m_growBy > 0)
            m_elements.reserve(static_cast<std::size_t>(std::max(size, room + m_growBy)));
    }
    /// Makes room for elements at an index, and the index the end at least.
    void reach(INT_PTR index, INT_PTR count)
    {
        ASSERT(index >= 0 && count >= 0);
        makeRoom(std::max(index, GetSize()) + count);
        if (index > GetSize())
            m_elements.resize(static_cast<std::size_t>(index));
    }
    void insertAll(INT_PTR index, const CArray& source)
    {
        const std::vector<TYPE> copy = source.m_elements; // the source may be this array
        reach(index, static_cast<INT_PTR>(copy.size()));
        m_elements.insert(m_elements.begin() + index, copy.begin(), copy.end());
    }

    std::vector<TYPE> m_elements;
    INT_PTR m_growBy = 0; ///< 0: as the vector sees fit
};
