#include "AccessibleView.h"

namespace ovo::testkit
{

namespace
{

// Frees the answer, which may be an object instead of a number.
LONG numberIn(HRESULT result, VARIANT& answer)
{
    const LONG number = result == S_OK && answer.vt == VT_I4 ? answer.lVal : -1;
    ::VariantClear(&answer);
    return number;
}

} // namespace

AccessibleView::AccessibleView(HWND window)
{
    void* found = nullptr;
    ::AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &found);
    m_object.reset(static_cast<IAccessible*>(found));
}

std::wstring AccessibleView::text(AskText ask, LONG child) const
{
    BSTR answer = nullptr;
    const HRESULT result = (m_object.get()->*ask)(numbered(child), &answer);
    const std::wstring copy = result == S_OK && answer ? answer : L"";
    ::SysFreeString(answer);
    return copy;
}

std::wstring AccessibleView::name(LONG child) const
{
    return text(&IAccessible::get_accName, child);
}

std::wstring AccessibleView::value(LONG child) const
{
    return text(&IAccessible::get_accValue, child);
}

std::wstring AccessibleView::description(LONG child) const
{
    return text(&IAccessible::get_accDescription, child);
}

std::wstring AccessibleView::action(LONG child) const
{
    return text(&IAccessible::get_accDefaultAction, child);
}

LONG AccessibleView::role(LONG child) const
{
    VARIANT answer{};
    const HRESULT result = m_object->get_accRole(numbered(child), &answer);
    return numberIn(result, answer);
}

LONG AccessibleView::state(LONG child) const
{
    VARIANT answer{};
    const HRESULT result = m_object->get_accState(numbered(child), &answer);
    return numberIn(result, answer);
}

long AccessibleView::childCount() const
{
    long count = 0;
    return m_object->get_accChildCount(&count) == S_OK ? count : -1;
}

LONG AccessibleView::focused() const
{
    VARIANT answer{};
    const HRESULT result = m_object->get_accFocus(&answer);
    return numberIn(result, answer);
}

LONG AccessibleView::at(CPoint point) const
{
    VARIANT answer{};
    const HRESULT result = m_object->accHitTest(point.x, point.y, &answer);
    return numberIn(result, answer);
}

CRect AccessibleView::place(LONG child) const
{
    long left = 0;
    long top = 0;
    long width = 0;
    long height = 0;
    if (m_object->accLocation(&left, &top, &width, &height, numbered(child)) != S_OK)
        return CRect(0, 0, 0, 0);
    return CRect(CPoint(left, top), CSize(width, height));
}

VARIANT AccessibleView::numbered(LONG child)
{
    VARIANT variant{};
    variant.vt = VT_I4;
    variant.lVal = child;
    return variant;
}

} // namespace ovo::testkit
