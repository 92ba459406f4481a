// The check on a thread of the host's: progress, cancelling, the answer posted to a window.
#include "ovocor/LoopbackServer.h"
#include <support/Raising.h>
#include <testkit/ImportPatch.h>
#include <testkit/Robot.h>

#include <ovoui/update/UpdateJob.h>

#include <gtest/gtest.h>

#include <wininet.h>

#include <future>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

using namespace ovo::testkit;

namespace
{

constexpr UINT kMessage = WM_APP + 7;
constexpr char kList[] =
    "UpdateType,Product,Options,OS,Processor,Version,UpdateVersion,UpdateInfo,UpdateDescription\n"
    "#update,Board,,,,,12,http://example.org/12,News\n";

UpdateJob* g_cancelled = nullptr;

/// Posts a message of progress after the job has been cancelled, as by another thread in between.
BOOL WINAPI postAfterCancelling(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == kMessage && wParam == UpdateJob::Progress)
        g_cancelled->cancel();
    return ::PostMessageW(window, message, wParam, lParam);
}

/// The window that the answer is posted to.
class Host : public CWnd
{
public:
    Host() { CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPED, CRect(), nullptr, 0); }
    ~Host() override { DestroyWindow(); }

    std::vector<std::pair<WPARAM, LPARAM>> events;
    std::function<void(WPARAM)> onEvent;

    bool answered() const { return !events.empty() && events.back().first == UpdateJob::Answered; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != kMessage)
            return CWnd::WindowProc(message, wParam, lParam);
        events.emplace_back(wParam, lParam);
        if (onEvent)
            onEvent(wParam);
        return 0;
    }
};

class UpdateJobs : public ::testing::Test
{
protected:
    ~UpdateJobs() override
    {
        endThreads();
        DWORD size = 0;
        EXPECT_FALSE(::GetUrlCacheEntryInfoW(server.address(L"/updates.csv").c_str(), nullptr, &size));
        EXPECT_EQ(::GetLastError(), DWORD{ERROR_FILE_NOT_FOUND}) << "no copy is left, whatever the outcome";
    }

    void endThreads()
    {
        for (std::thread& thread : threads)
            thread.join();
        threads.clear();
    }

    UpdateQuestion question(int major = 11)
    {
        UpdateQuestion question;
        question.address = server.address(L"/updates.csv");
        question.product = L"Board";
        question.version = {major, 0, 0, 0};
        return question;
    }
    std::shared_ptr<UpdateJob> start(const UpdateQuestion& question)
    {
        return UpdateJob::start(question, host, kMessage, [this](std::function<void()> work) {
            threads.emplace_back(std::move(work));
        });
    }
    void waitForAnswer()
    {
        Robot().waitFor("the answer", [this] { return host.answered(); });
    }
    /// The server is silent from now on; gives what ends the silence.
    std::shared_ptr<std::promise<void>> silence(const std::string& before = {})
    {
        auto over = std::make_shared<std::promise<void>>();
        server.stream("/updates.csv", [waiting = over->get_future().share(), before, first = true]() mutable {
            if (std::exchange(first, false) && !before.empty())
                return before;
            waiting.wait();
            return std::string();
        });
        return over;
    }
    bool asked() const { return !server.requests().empty(); }

    Host host;
    LoopbackServer server;
    std::vector<std::thread> threads;
};

} // namespace

TEST_F(UpdateJobs, TheAnswerIsPostedWhenItIsThere)
{
    server.answer("/updates.csv", LoopbackServer::page("200 OK", kList));
    const auto job = start(question());
    waitForAnswer();
    EXPECT_EQ(job->state(), UpdateJob::State::Found);
    ASSERT_TRUE(job->update());
    EXPECT_EQ(job->update()->version, L"12");
    EXPECT_EQ(job->update()->page, L"http://example.org/12");
    for (const auto& event : host.events)
        EXPECT_EQ(event.second, job->number());
}

TEST_F(UpdateJobs, NothingNewIsAnAnswerToo)
{
    server.answer("/updates.csv", LoopbackServer::page("200 OK", kList));
    const auto job = start(question(12));
    waitForAnswer();
    EXPECT_EQ(job->state(), UpdateJob::State::NothingNew);
    EXPECT_FALSE(job->update());
    EXPECT_EQ(job->error(), L"");
}

TEST_F(UpdateJobs, AFailureNamesTheAddress)
{
    server.answer("/updates.csv", LoopbackServer::page("404 Not Found", ""));
    const auto job = start(question());
    waitForAnswer();
    EXPECT_EQ(job->state(), UpdateJob::State::Failed);
    EXPECT_NE(job->error().find(question().address), std::wstring::npos);
}

TEST_F(UpdateJobs, ProgressIsToldOnceUntilItIsAskedFor)
{
    const std::string rows(40 * 64 * 1024, '\n');
    const std::string body = kList + rows;
    server.answer("/updates.csv", LoopbackServer::page("200 OK", body));
    const auto job = start(question());
    waitForAnswer();
    EXPECT_EQ(host.events.size(), 2u) << "one progress, which was not asked for, and the answer";
    EXPECT_EQ(host.events.front().first, UpdateJob::Progress);
    EXPECT_EQ(job->progress().received, body.size());
    EXPECT_EQ(job->progress().expected, body.size());

    host.events.clear();
    std::shared_ptr<UpdateJob> second;
    std::uint64_t last = 0;
    host.onEvent = [&](WPARAM) {
        const std::uint64_t now = second->progress().received;
        EXPECT_GE(now, last);
        last = now;
    };
    second = start(question());
    waitForAnswer();
    EXPECT_EQ(last, body.size());
    EXPECT_NE(second->number(), job->number());
}

TEST_F(UpdateJobs, CancellingEndsTheWaitForASilentServer)
{
    const auto over = silence();
    const auto job = start(question());
    Robot().waitFor("the request", [this] { return asked(); });
    job->cancel();
    waitForAnswer();
    EXPECT_EQ(job->state(), UpdateJob::State::Cancelled);
    over->set_value();
    endThreads();
    EXPECT_EQ(host.events.size(), 1u) << "what comes later is dropped";
}

TEST_F(UpdateJobs, CancellingEndsAListThatStopsInTheMiddle)
{
    const auto over = silence(std::string("HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\n") + kList +
                              std::string(100'000, '\n'));
    const auto job = start(question());
    Robot().waitFor("the first part", [&] { return !host.events.empty(); });
    EXPECT_GT(job->progress().received, 0u);
    EXPECT_EQ(job->progress().expected, 1000000u);
    job->cancel();
    waitForAnswer();
    EXPECT_EQ(job->state(), UpdateJob::State::Cancelled);
    over->set_value();
}

TEST_F(UpdateJobs, TheAnswerIsTheLastMessageAlsoWhenItIsCancelledWhileProgressIsTold)
{
    server.answer("/updates.csv", LoopbackServer::page("200 OK", kList));
    std::function<void()> later;
    const auto job =
        UpdateJob::start(question(), host, kMessage, [&](std::function<void()> work) { later = work; });
    g_cancelled = job.get();
    const ImportPatch patch(L"ovoui.dll", "PostMessageW", reinterpret_cast<void*>(&postAfterCancelling));
    later();
    g_cancelled = nullptr;
    EXPECT_EQ(job->state(), UpdateJob::State::Cancelled);
    MSG message;
    while (::PeekMessageW(&message, host, kMessage, kMessage, PM_REMOVE))
        ::DispatchMessageW(&message);
    ASSERT_EQ(host.events.size(), 2u);
    EXPECT_EQ(host.events[0].first, UpdateJob::Progress);
    EXPECT_EQ(host.events[1].first, UpdateJob::Answered);
}

TEST_F(UpdateJobs, CancelledBeforeItBeginsItSendsNoRequest)
{
    std::function<void()> later;
    const auto job =
        UpdateJob::start(question(), host, kMessage, [&](std::function<void()> work) { later = work; });
    EXPECT_EQ(job->state(), UpdateJob::State::Running);
    job->cancel();
    later();
    waitForAnswer();
    EXPECT_EQ(job->state(), UpdateJob::State::Cancelled);
    EXPECT_FALSE(asked());
    EXPECT_EQ(host.events.size(), 1u) << "one answer";
}

TEST_F(UpdateJobs, WindowAndHostMayGoMeanwhile)
{
    server.answer("/updates.csv", LoopbackServer::page("200 OK", kList));
    std::function<void()> later;
    std::weak_ptr<UpdateJob> job =
        UpdateJob::start(question(), host, kMessage, [&](std::function<void()> work) { later = work; });
    EXPECT_FALSE(job.expired()) << "the work keeps it";
    host.DestroyWindow();
    later();
    EXPECT_TRUE(host.events.empty());
    later = nullptr;
    EXPECT_TRUE(job.expired());
}

TEST_F(UpdateJobs, ARunnerThatFailsSaysSo)
{
    for (const Raising::Kind& kind : Raising::kinds()) {
        SCOPED_TRACE(kind.name);
        const Raising raising("Runner", kind);
        const auto start = [&] {
            UpdateJob::start(question(), host, kMessage, [](const auto&) { Raising::here("Runner"); });
        };
        EXPECT_EQ(outcomeOf(start), Outcome::Passes);
        EXPECT_TRUE(host.events.empty());
    }
}
