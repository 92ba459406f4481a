/// An update check that does not keep the user waiting.
///
///     m_job = UpdateJob::start(question, *this, WM_APP + 7, [](auto work) { std::thread(work).detach(); });
///
///     LRESULT Frame::OnUpdateJob(WPARAM event, LPARAM)     // the message WM_APP + 7
///     {
///         if (event == UpdateJob::Answered && m_job->state() == UpdateJob::State::Found)
///             offer(*m_job->update());
///         return 0;
///     }
#pragma once

#include <ovoui/export.h>
#include <ovoui/update/JobAnswer.h>
#include <ovoui/update/UpdateCheck.h>
#include <ovoui/update/UpdateTrust.h>

#include <windows.h>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

/// What a check asks.
struct UpdateQuestion
{
    std::wstring address;         ///< of the list
    std::wstring product;         ///< as the list names it
    std::wstring options;         ///< as the list names them
    std::array<int, 4> version{}; ///< that is installed
    /// Given for a list that must be signed.
    std::optional<UpdateTrust> trust;
};

/// The check runs where the host lets it run: the library starts no thread. What happens is told by a message
/// that is posted to a window; the job itself, which the host keeps, holds the answer. The window and the
/// handle to the job may go while the check runs: then it ends without a trace.
class OVOUI_API UpdateJob
{
    struct Private
    {
    };

public:
    /// Runs a function once, on another thread or later on this one.
    using Runner = std::function<void(std::function<void()> work)>;

    /// wParam of the posted message; lParam is number().
    enum Event : WPARAM
    {
        Progress = 1, ///< more of the list has come; posted again only after progress() was asked for
        Answered = 2  ///< the last message: state() says more
    };

    /// How far the check has come.
    enum class State
    {
        Running,    ///< no answer yet
        Found,      ///< update() is the newer version
        NothingNew, ///< there is no newer version
        Failed,     ///< error() says why
        Cancelled   ///< by cancel()
    };

    /// How much of the list has come.
    struct Bytes
    {
        std::uint64_t received = 0; ///< so far
        std::uint64_t expected = 0; ///< 0 while it is not known
    };

    /// Hands the check of `question` to `run`, whose exceptions come out of here. `message` is posted to
    /// `window`, with an Event in wParam.
    static std::shared_ptr<UpdateJob> start(UpdateQuestion question, HWND window, UINT message,
                                            const Runner& run);

    /// For start() alone: `question`, `window` and `message` are its arguments.
    UpdateJob(Private, UpdateQuestion question, HWND window, UINT message);
    UpdateJob(const UpdateJob&) = delete;
    UpdateJob& operator=(const UpdateJob&) = delete;
    ~UpdateJob();

    /// Tells jobs of one window apart.
    LPARAM number() const { return m_number; }

    /// Ends the check. Unless another answer was there before, it is Cancelled now, and posted at once; the
    /// work itself may wait a moment longer for a silent server.
    void cancel() noexcept;

    /// How much of the list has come; from now on Progress is posted again.
    Bytes progress() noexcept;
    /// How far the check has come; may be asked on any thread.
    State state() const noexcept { return m_answer.state(); }

    // To be asked for after the answer.
    /// The newer version, for Found; to be asked for after the answer.
    const std::optional<AvailableUpdate>& update() const { return m_update; }
    /// What went wrong, for Failed; to be asked for after the answer.
    const std::wstring& error() const { return m_error; }
    /// With the number of the list that was accepted.
    const std::optional<UpdateTrust>& trust() const { return m_question.trust; }

private:
    class Control;
    struct Answer;

    void run() noexcept;
    Answer answer() const noexcept;
    Answer ask() const;
    void post(Event event) const noexcept;

    UpdateQuestion m_question;
    const HWND m_window;
    const UINT m_message;
    const LPARAM m_number;
    const std::unique_ptr<Control> m_control;
    ovoui::update::JobAnswer<State> m_answer{State::Running}; ///< by the first of the work and cancel()
    std::optional<AvailableUpdate> m_update;
    std::wstring m_error;
};
