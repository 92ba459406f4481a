// Internal: which object stands for a handle.
#pragma once

#include <afx.h>
#include <detail/threadstate.h>

#include <array>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace afxdetail
{

/// Has the running thread call `purge(map)` when its temporary objects are to go, and `destroy` at its end if
/// the framework has started it.
OVOMFC_API void registerThreadMap(void (*purge)(void* map), void (*destroy)(), void* map);

/// Handles of one kind and their objects, for one thread.
///
/// The permanent map holds objects that were attached to their handle; it does not own them. The temporary
/// map owns objects made for handles that were not attached; they never close the handle and go in idle time.
/// `Traits` gives `Object`, `Handle`, `static std::unique_ptr<Object> make(Handle)` (an object that holds the
/// handle) and `static void forget(Object&)` (takes the handle out again, so that the destructor leaves it).
template <class Traits>
class HandleMap
{
public:
    using Object = typename Traits::Object;
    using Handle = typename Traits::Handle;

    ~HandleMap() { deleteTemporary(); }

    /// NULL for NULL; never fails otherwise.
    Object* fromHandle(Handle handle)
    {
        if (!handle)
            return nullptr;
        if (Object* permanent = fromHandlePermanent(handle))
            return permanent;
        const auto found = m_temporary.find(handle);
        if (found != m_temporary.end())
            return found->second.get();
        return m_temporary.emplace(handle, Traits::make(handle)).first->second.get();
    }

    Object* fromHandlePermanent(Handle handle) const
    {
        Recent& recent = recentOf(handle);
        if (recent.handle != handle) {
            const auto found = m_permanent.find(handle);
            recent = {handle, found != m_permanent.end() ? found->second : nullptr};
        }
        return recent.object;
    }

    void setPermanent(Handle handle, Object* object)
    {
        m_permanent[handle] = object;
        recentOf(handle) = {};
    }

    /// Forgets a handle that no longer exists. Pointers to its temporary object stay good until the next
    /// purge; the object has no handle any more.
    void remove(Handle handle)
    {
        removePermanent(handle);
        const auto found = m_temporary.find(handle);
        if (found == m_temporary.end())
            return;
        Traits::forget(*found->second);
        m_stale.push_back(std::move(found->second));
        m_temporary.erase(found);
    }

    /// Forgets whose a handle is that goes on existing.
    void removePermanent(Handle handle)
    {
        m_permanent.erase(handle);
        recentOf(handle) = {};
    }

    void deleteTemporary()
    {
        // Taken out first: a destructor may ask for another temporary object.
        const auto temporary = std::exchange(m_temporary, {});
        const auto stale = std::exchange(m_stale, {});
        for (const auto& [handle, object] : temporary)
            Traits::forget(*object);
    }

    std::size_t temporaryCount() const { return m_temporary.size(); }

private:
    /// What was asked for lately, by some bits of the handle: every message asks for its window.
    struct Recent
    {
        Handle handle = nullptr;
        Object* object = nullptr;
    };

    Recent& recentOf(Handle handle) const
    {
        return m_recent[(reinterpret_cast<std::uintptr_t>(handle) >> 1) % m_recent.size()];
    }

    mutable std::array<Recent, 64> m_recent{};
    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, std::unique_ptr<Object>> m_temporary;
    std::vector<std::unique_ptr<Object>> m_stale;
};

template <class Traits>
HandleMap<Traits>*& handleMapSlot()
{
    thread_local HandleMap<Traits>* map = nullptr;
    return map;
}

/// The map for `Traits` of the running thread. Threads that the framework has started delete theirs; others
/// are never destroyed: windows may outlive everything else.
template <class Traits>
HandleMap<Traits>& handleMap()
{
    HandleMap<Traits>*& map = handleMapSlot<Traits>();
    if (!map) {
        map = new HandleMap<Traits>;
        registerThreadMap([](void* self) { static_cast<HandleMap<Traits>*>(self)->deleteTemporary(); },
                          [] { delete std::exchange(handleMapSlot<Traits>(), nullptr); }, map);
    }
    return *map;
}

/// Deletes the temporary objects of all kinds, unless a message is being handled on this thread: its handler
/// may hold pointers to them.
OVOMFC_API void purgeTemporaryObjects();

} // namespace afxdetail
