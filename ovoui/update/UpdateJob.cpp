#include <ovoui/update/UpdateJob.h>

#include <ovoui/update/UpdateList.h>

#include <ovocor/DownloadControl.h>
#include <ovocor/OvoError.h>
#include <ovocor/Text.h>

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

/// Tells the job of progress. One message at a time is on its way.
class UpdateJob::Control : public DownloadControl
{
public:
    explicit Control(const UpdateJob& job)
        : m_job(job)
    {
    }
    void progressed() override
    {
        if (!m_told.exchange(true))
            m_job.post(Progress);
    }
    void seen() noexcept { m_told = false; }

private:
    const UpdateJob& m_job;
    std::atomic<bool> m_told = false;
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
}

UpdateJob::Bytes UpdateJob::progress() noexcept
{
    m_control->seen();
    return {m_control->received(), m_control->expected()};
}

void UpdateJob::run() noexcept
{
    State state = State::Failed;
    try {
        state = answer();
    } catch (const DownloadCancelled&) {
        state = State::Cancelled;
    } catch (const OvoError& error) {
        m_error = error.wwhat();
    } catch (const std::exception& error) {
        m_error = getWCS(error.what());
    }
    m_state = state; // what the answer consists of is written before
    post(Answered);
}

UpdateJob::State UpdateJob::answer()
{
    const RunningProduct running =
        runningProduct(m_question.product, m_question.options, m_question.version.data());
    UpdateTrust* const trust = m_question.trust ? &*m_question.trust : nullptr;
    m_update = newerVersion(m_question.address, running, trust, *m_control);
    return m_update ? State::Found : State::NothingNew;
}

void UpdateJob::post(Event event) const noexcept
{
    ::PostMessageW(m_window, m_message, event, m_number);
}
