/// Publish and subscribe on one thread.
///
///     const auto changes = EVSubscriptionList<int>::create();
///     EVSubscription seen = changes->subscribe([](const int& id) { show(id); });
///     changes->notify(5146);   // calls the subscribers in the order of their subscriptions
///
/// Subscribers may change the list during a notification. A new subscriber is called from the next
/// notification on; one that has unsubscribed is not called any more. Notifications may nest. A list whose
/// last handle goes is destroyed when the notification is over.
#pragma once

#include <ovocor/Handle.h>
#include <ovocor/export.h>

#include <exception>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

/// One subscriber, shared by its list and its EVSubscription.
class OVOCOR_API EVSlot
{
public:
    EVSlot() = default;
    EVSlot(const EVSlot&) = delete;
    EVSlot& operator=(const EVSlot&) = delete;
    virtual ~EVSlot();

    /// Whether the subscriber would be called.
    bool active() const noexcept { return m_active; }

    /// No call any more. The function is let go of at once, or after its running call.
    void cancel() noexcept;

protected:
    /// Marks a call as running, for its own lifetime.
    class OVOCOR_API Call
    {
    public:
        /// For a call to the function of `slot`, which must live longer.
        explicit Call(EVSlot& slot) noexcept;
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;
        ~Call();

    private:
        EVSlot& m_slot;
    };

private:
    virtual void dropFunction() noexcept = 0;

    bool m_active = true;
    int m_runningCalls = 0;
};

/// Keeps a subscription; it ends when this object is destroyed, or the list. Either may go first.
class OVOCOR_API EVSubscription
{
public:
    /// A subscription to nothing.
    EVSubscription() noexcept;
    /// Keeps what `slot` stands for. EVSubscriptionList::subscribe makes these.
    explicit EVSubscription(std::shared_ptr<EVSlot> slot) noexcept;
    /// Takes the subscription over from `other`, which then keeps none.
    EVSubscription(EVSubscription&& other) noexcept;
    EVSubscription& operator=(EVSubscription&& other) noexcept;
    ~EVSubscription();

    /// Ends the subscription; nothing happens when it has ended before.
    void unsubscribe() noexcept;

    /// Whether the subscriber would be called.
    explicit operator bool() const noexcept;

private:
    std::shared_ptr<EVSlot> m_slot;
};

/// A list of subscribers to events of type T.
template <class T>
class EVSubscriptionList : public OVO::Handlable
{
public:
    /// What a subscriber is; the first exception of a notification reaches the caller of `notify`.
    using Function = std::function<void(const T&)>;

    /// A new list without subscribers; it lives while a handle refers to it.
    static OVO::Handle<EVSubscriptionList> create()
    {
        return OVO::Handle<EVSubscriptionList>(new EVSubscriptionList);
    }

    /// Calls `function` at every notification until the result is destroyed. An empty function subscribes
    /// nothing.
    [[nodiscard]] EVSubscription subscribe(Function function)
    {
        if (!function)
            return EVSubscription();
        forgetCancelled();
        m_slots.push_back(std::make_shared<Slot>(std::move(function)));
        return EVSubscription(m_slots.back());
    }

    /// Calls every subscriber with `event`, also when one raises an exception. The first exception reaches
    /// the caller when all have been called, others are lost; the subscriptions stay.
    void notify(const T& event)
    {
        const OVO::Handle<EVSubscriptionList> alive(this);
        forgetCancelled();
        // A copy, since subscribers may change the list.
        const std::vector<std::shared_ptr<Slot>> slots = m_slots;
        std::exception_ptr raised;
        for (const std::shared_ptr<Slot>& slot : slots)
            try {
                slot->call(event);
            } catch (...) {
                if (!raised)
                    raised = std::current_exception();
            }
        if (raised)
            std::rethrow_exception(raised);
    }

protected:
    EVSubscriptionList() = default;
    ~EVSubscriptionList() override
    {
        for (const std::shared_ptr<Slot>& slot : m_slots)
            slot->cancel();
    }

private:
    class Slot : public EVSlot
    {
    public:
        explicit Slot(Function function)
            : m_function(std::move(function))
        {
        }

        void call(const T& event)
        {
            if (!active())
                return;
            const Call running(*this);
            m_function(event);
        }

    private:
        // Swapped out first: what the function holds may come back to this slot while it is destroyed.
        void dropFunction() noexcept override { Function().swap(m_function); }

        Function m_function;
    };

    void forgetCancelled()
    {
        std::erase_if(m_slots, [](const std::shared_ptr<Slot>& slot) { return !slot->active(); });
    }

    std::vector<std::shared_ptr<Slot>> m_slots;
};
