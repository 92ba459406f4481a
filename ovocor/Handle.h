/// Objects that live while a handle refers to them.
///
///     class Folder : public Place, public OVO::Handlable { ... };
///
///     OVO::Handle<Folder> folder(new Folder);   // count 1
///     OVO::Handle<OVO::Handlable> other = folder;  // count 2
///
/// The count is a plain integer: an object and its handles belong to one thread.
#pragma once

#include <ovocor/export.h>

#include <compare>
#include <concepts>
#include <cstddef>
#include <functional>
#include <utility>

namespace OVO
{

/// What a handle needs of an object.
class OVOCOR_API IHandlable
{
public:
    /// One more reference.
    virtual void addRef() const noexcept = 0;
    /// One reference less; the object is destroyed with the last one.
    virtual void release() const noexcept = 0;

protected:
    IHandlable() = default;
    IHandlable(const IHandlable&) = default;
    IHandlable& operator=(const IHandlable&) = default;
    virtual ~IHandlable();
};

/// The base of objects that are made with `new` and held by handles; it may stand at any place among the
/// bases.
///
/// A new object has no reference yet. Without ever getting one it may be deleted by hand. A copy of an object
/// starts with no reference too.
class OVOCOR_API Handlable : public IHandlable
{
public:
    Handlable() = default;
    Handlable(const Handlable&) noexcept {}
    Handlable& operator=(const Handlable&) noexcept { return *this; }
    virtual ~Handlable();

    void addRef() const noexcept override;
    /// Handles that the destructor makes and drops on its way do not destroy the object again.
    void release() const noexcept override;

    /// Takes back an addRef that came to nothing: one reference less, and the object stays even without any.
    void giveBack() const noexcept { --m_references; }

private:
    mutable int m_references = 0;
};

/// The part of a handle that does not depend on the class of its object.
class OVOCOR_API HandleBase
{
public:
    /// Whether it refers to an object.
    explicit operator bool() const noexcept { return m_object != nullptr; }

    /// Whether `a` and `b` refer to the same object, or both to nothing.
    friend bool operator==(const HandleBase& a, const HandleBase& b) noexcept
    {
        return a.m_object == b.m_object;
    }
    /// The order of the addresses that `a` and `b` refer to.
    friend std::strong_ordering operator<=>(const HandleBase& a, const HandleBase& b) noexcept
    {
        return std::compare_three_way{}(a.m_object, b.m_object);
    }

protected:
    HandleBase() = default;
    /// Refers to `object`, which may be null.
    explicit HandleBase(const IHandlable* object) noexcept
        : m_object(object)
    {
        if (m_object)
            m_object->addRef();
    }
    HandleBase(const HandleBase& other) noexcept
        : HandleBase(other.m_object)
    {
    }
    HandleBase(HandleBase&& other) noexcept
        : m_object(std::exchange(other.m_object, nullptr))
    {
    }
    HandleBase& operator=(const HandleBase& other) noexcept { return take(HandleBase(other)); }
    HandleBase& operator=(HandleBase&& other) noexcept { return take(HandleBase(std::move(other))); }
    ~HandleBase()
    {
        // Emptied first: the destructor of the object may look at this handle.
        if (const IHandlable* object = std::exchange(m_object, nullptr))
            object->release();
    }

    /// The object, or null.
    const IHandlable* object() const noexcept { return m_object; }

private:
    /// The old object is released last, with `other`: its destructor may look at this handle.
    HandleBase& take(HandleBase&& other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }

    const IHandlable* m_object = nullptr;
};

/// A reference to a T, which derives from IHandlable (not virtually), or to nothing.
template <class T>
class Handle : public HandleBase
{
public:
    Handle() = default;
    /// Refers to nothing.
    Handle(std::nullptr_t) noexcept {}

    /// Refers to `object`, which may be null. Explicit, since a temporary handle to a new object destroys it.
    explicit Handle(T* object) noexcept
        : HandleBase(static_cast<const IHandlable*>(object))
    {
    }

    /// Refers to the object of `other`, a handle to a derived class.
    template <class U>
    requires std::convertible_to<U*, T*> Handle(const Handle<U>& other)
    noexcept
        : HandleBase(other)
    {
    }
    /// Takes over from `other`, a handle to a derived class, which then refers to nothing.
    template <class U>
    requires std::convertible_to<U*, T*> Handle(Handle<U>&& other)
    noexcept
        : HandleBase(std::move(other))
    {
    }

    /// The object, or null.
    T* get() const noexcept { return static_cast<T*>(const_cast<IHandlable*>(object())); }
    /// The object; not to be used on a handle that refers to nothing.
    T* operator->() const noexcept { return get(); }
    /// The object; not to be used on a handle that refers to nothing.
    T& operator*() const noexcept { return *get(); }

    /// Lets go of the object.
    void reset() noexcept { *this = Handle(); }

    /// Whether `handle` refers to `object`.
    friend bool operator==(const Handle& handle, const T* object) noexcept { return handle.get() == object; }
    /// Whether `handle` refers to nothing.
    friend bool operator==(const Handle& handle, std::nullptr_t) noexcept { return !handle; }
};

} // namespace OVO

/// Lets handles be keys of unordered containers.
template <class T>
struct std::hash<OVO::Handle<T>>
{
    /// By the address of the object of `handle`.
    std::size_t operator()(const OVO::Handle<T>& handle) const noexcept
    {
        return std::hash<const void*>{}(handle.get());
    }
};
