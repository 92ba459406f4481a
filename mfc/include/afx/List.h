// CList: a list with places that stay valid.
#pragma once

#include <afx/Object.h>

#include <utility>

/// A list in both directions. A POSITION names an element until it is removed, whatever happens around it.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public CObject
{
public:
    /// `blockSize` is there for compatibility; elements are allocated one by one.
    explicit CList(INT_PTR blockSize = 10) { UNUSED_ALWAYS(blockSize); }
    ~CList() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_count; }
    INT_PTR GetSize() const { return m_count; }
    BOOL IsEmpty() const { return m_count == 0; }

    // Ends; the list must not be empty.
    TYPE& GetHead() { return checked(m_head)->element; }
    const TYPE& GetHead() const { return checked(m_head)->element; }
    TYPE& GetTail() { return checked(m_tail)->element; }
    const TYPE& GetTail() const { return checked(m_tail)->element; }
    TYPE RemoveHead() { return taken(m_head); }
    TYPE RemoveTail() { return taken(m_tail); }

    POSITION AddHead(ARG_TYPE element) { return insert(nullptr, m_head, element); }
    POSITION AddTail(ARG_TYPE element) { return insert(m_tail, nullptr, element); }
    /// All elements of another list, in their order.
    void AddHead(CList* source)
    {
        POSITION at = source->GetTailPosition();
        for (INT_PTR left = source->GetCount(); left > 0; --left) // the source may be this list
            AddHead(source->GetPrev(at));
    }
    void AddTail(CList* source)
    {
        POSITION at = source->GetHeadPosition();
        for (INT_PTR left = source->GetCount(); left > 0; --left)
            AddTail(source->GetNext(at));
    }
    void RemoveAll()
    {
        while (m_head)
            remove(m_head);
    }

    // Walking: gives the element and moves on; null is the end.
    POSITION GetHeadPosition() const { return position(m_head); }
    POSITION GetTailPosition() const { return position(m_tail); }
    TYPE& GetNext(POSITION& at) { return step(at, &Node::next)->element; }
    const TYPE& GetNext(POSITION& at) const { return step(at, &Node::next)->element; }
    TYPE& GetPrev(POSITION& at) { return step(at, &Node::previous)->element; }
    const TYPE& GetPrev(POSITION& at) const { return step(at, &Node::previous)->element; }

    // At a place
    TYPE& GetAt(POSITION at) { return node(at)->element; }
    const TYPE& GetAt(POSITION at) const { return node(at)->element; }
    void SetAt(POSITION at, ARG_TYPE element) { node(at)->element = element; }
    void RemoveAt(POSITION at) { remove(node(at)); }
    /// A null place: before everything.
    POSITION InsertBefore(POSITION at, ARG_TYPE element)
    {
        return at ? insert(node(at)->previous, node(at), element) : AddHead(element);
    }
    /// A null place: behind everything.
    POSITION InsertAfter(POSITION at, ARG_TYPE element)
    {
        return at ? insert(node(at), node(at)->next, element) : AddTail(element);
    }

    // Looking for one; null when there is none.
    POSITION Find(ARG_TYPE value, POSITION startAfter = nullptr) const
    {
        for (Node* at = startAfter ? node(startAfter)->next : m_head; at; at = at->next)
            if (at->element == value)
                return position(at);
        return nullptr;
    }
    POSITION FindIndex(INT_PTR index) const
    {
        if (index < 0)
            return nullptr;
        Node* at = m_head;
        for (; at && index > 0; --index)
            at = at->next;
        return position(at);
    }

private:
    struct Node
    {
        Node* previous;
        Node* next;
        TYPE element;
    };

    static POSITION position(Node* node) { return reinterpret_cast<POSITION>(node); }
    static Node* checked(Node* node)
    {
        ASSERT(node);
        return node;
    }
    static Node* node(POSITION at) { return checked(reinterpret_cast<Node*>(at)); }
    static Node* step(POSITION& at, Node* Node::*direction)
    {
        Node* const here = node(at);
        at = position(here->*direction);
        return here;
    }

    POSITION insert(Node* previous, Node* next, const TYPE& element)
    {
        Node* const fresh = new Node{previous, next, element};
        (previous ? previous->next : m_head) = fresh;
        (next ? next->previous : m_tail) = fresh;
        ++m_count;
        return position(fresh);
    }
    void remove(Node* gone)
    {
        (gone->previous ? gone->previous->next : m_head) = gone->next;
        (gone->next ? gone->next->previous : m_tail) = gone->previous;
        --m_count;
        delete gone;
    }
    TYPE taken(Node* end)
    {
        TYPE element = std::move(checked(end)->element);
        remove(end);
        return element;
    }

    Node* m_head = nullptr;
    Node* m_tail = nullptr;
    INT_PTR m_count = 0;
};
