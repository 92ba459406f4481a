#include <ovoui/update/UpdateJob.h>

#include <ovoui/frame/Exceptions.h>
#include <ovoui/update/UpdateList.h>

#include <ovocor/DownloadControl.h>

#include <atomic>
#include <utility>

using namespace ovoui::update;

namespace
{

LPARAM nextNumber()
{
    static std::atomic<LPARAM> last = 0;
    return ++last;
}

} // namespace

/// Tells the window of progress.
class UpdateJob::Control : public DownloadControl
{
public:
    explicit Control(const UpdateJob& job)
        : m_job(job)
    {
    }
    void progressed() override
    {
        if (!m_notes.toBeSent())
            return;
        m_job.post(Progress);
        if (!m_notes.sent())
            m_job.post(Answered); // cancelled meanwhile
    }
    void seen() noexcept { m_notes.seen(); }
    /// No progress is told any more. False while it is being told: then the answer follows it.
    bool end() noexcept { return m_notes.end(); }

private:
    const UpdateJob& m_job;
    ProgressNotes m_notes;
};

std::shared_ptr<UpdateJob> UpdateJob::start(UpdateQuestion question, HWND window, UINT message,
                                            const Runner& run)
{
    auto job = std::make_shared<UpdateJob>(Private(), std::move(question), window, message);
    run([job] { job->run(); });
    return job;
}

UpdateJob::UpdateJob(Private, UpdateQuestion question, HWND window, UINT message)
    : m_question(std::move(question))
    , m_window(window)
    , m_message(message)
    , m_number(nextNumber())
    , m_control(std::make_unique<Control>(*this))
{
}

UpdateJob::~UpdateJob() = default;

void UpdateJob::cancel() noexcept
{
    m_control->cancel();
    if (!m_answer.claim())
        return;
    m_answer.give(State::Cancelled);
    if (m_control->end())
        post(Answered);
}

UpdateJob::Bytes UpdateJob::progress() noexcept
{
    m_control->seen();
    return {m_control->received(), m_control->expected()};
}

struct UpdateJob::Answer
{
    State state = State::Failed;
    std::optional<AvailableUpdate> update;
    std::wstring error;
    std::optional<UpdateTrust> trust;
};

/// An answer that comes after cancel() is dropped.
void UpdateJob::run() noexcept
{
    Answer found = answer();
    if (!m_answer.claim())
        return;
    m_update = std::move(found.update);
    m_error = std::move(found.error);
    m_question.trust = std::move(found.trust);
    m_answer.give(found.state);
    post(Answered);
}

UpdateJob::Answer UpdateJob::answer() const noexcept
{
    Answer found;
    if (auto error = ovoui::frame::errorOf([&] { found = ask(); })) {
        found.trust = m_question.trust;
        found.error = std::move(*error);
    }
    return found;
}

UpdateJob::Answer UpdateJob::ask() const
{
    Answer found;
    found.trust = m_question.trust;
    const RunningProduct running =
        runningProduct(m_question.product, m_question.options, m_question.version.data());
    found.update =
        newerVersion(m_question.address, running, found.trust ? &*found.trust : nullptr, *m_control);
    found.state = found.update ? State::Found : State::NothingNew;
    return found;
}

void UpdateJob::post(Event event) const noexcept
{
    ::PostMessageW(m_window, m_message, event, m_number);
}
