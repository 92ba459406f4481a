#include "UpdatesPage.h"

#include "model/UpdateOutcomes.h"
#include "resource.h"

#include <ovoui/update/UpdateTrust.h>

#include <ovocor/OvoError.h>

#include <algorithm>
#include <thread>

namespace
{

constexpr UINT kJobMessage = WM_APP + 1;
constexpr wchar_t kProduct[] = L"Gallery";
constexpr int kVersion[4] = {11, 2, 0, 1234};

/// Any key on the curve will do: the server has no https, so the list is refused before it counts.
constexpr char kPublicKey[] = "-----BEGIN PUBLIC KEY-----\n"
                              "MFkwEwYHKoZIzj0CAQYIKoZIzj0DAQcDQgAEmlevdBj0YX2pivugIyiH9uAIyAtg\n"
                              "4TNzWLG8iH1qV6uSI9hi6qo965tLCILVLN3IMhEymVm+1hq1dBgslriylQ==\n"
                              "-----END PUBLIC KEY-----\n";

/// The part of a list that the page shows.
std::wstring shownText(const UpdateOutcome& outcome)
{
    constexpr std::size_t kMost = 2000;
    std::string text = outcome.status + "\n\n" + outcome.body.substr(0, kMost);
    std::erase(text, '\r');
    std::wstring shown;
    for (const char c : text)
        shown += c == '\n' ? std::wstring(L"\r\n") : std::wstring(1, static_cast<wchar_t>(c));
    return outcome.body.size() > kMost ? shown + L"\x2026" : shown;
}

/// What moves down when the list gets more room.
constexpr int kBelowList[] = {IDC_UPDATES_CHECK,    IDC_UPDATES_FIND,     IDC_UPDATES_SIGNED,
                              IDC_UPDATES_POLITELY, IDC_UPDATES_FORGET,   IDC_UPDATES_BACKGROUND,
                              IDC_UPDATES_CANCEL,   IDC_UPDATES_PROGRESS, IDC_UPDATES_RESULT_LABEL,
                              IDC_UPDATES_RESULT};

} // namespace

BEGIN_MESSAGE_MAP(UpdatesPage, GalleryPage)
    ON_CBN_SELCHANGE(IDC_UPDATES_OUTCOME, &UpdatesPage::OnOutcome)
    ON_BN_CLICKED(IDC_UPDATES_CHECK, &UpdatesPage::OnCheck)
    ON_BN_CLICKED(IDC_UPDATES_FIND, &UpdatesPage::OnFind)
    ON_BN_CLICKED(IDC_UPDATES_SIGNED, &UpdatesPage::OnSigned)
    ON_BN_CLICKED(IDC_UPDATES_POLITELY, &UpdatesPage::OnPolitely)
    ON_BN_CLICKED(IDC_UPDATES_FORGET, &UpdatesPage::OnForget)
    ON_BN_CLICKED(IDC_UPDATES_BACKGROUND, &UpdatesPage::OnBackground)
    ON_BN_CLICKED(IDC_UPDATES_CANCEL, &UpdatesPage::OnCancelJob)
    ON_MESSAGE(kJobMessage, &UpdatesPage::OnJobEvent)
END_MESSAGE_MAP()

UpdatesPage::UpdatesPage()
    : GalleryPage(IDD_PAGE_UPDATES)
{
}

UpdatesPage::~UpdatesPage()
{
    endJob();
}

BOOL UpdatesPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    m_outcome.Attach(::GetDlgItem(m_hWnd, IDC_UPDATES_OUTCOME));
    m_progress.Attach(::GetDlgItem(m_hWnd, IDC_UPDATES_PROGRESS));
    for (const UpdateOutcome& outcome : updateOutcomes())
        m_outcome.AddString(outcome.title);
    choose(0);
    showRunning(false);
    stretch(IDC_UPDATES_LIST, {.growX = 100, .growY = 100});
    for (const int id : kBelowList)
        stretch(id, {.moveY = 100});
    stretch(IDC_UPDATES_RESULT, {.moveY = 100, .growX = 100});
    return FALSE;
}

void UpdatesPage::choose(int index)
{
    const UpdateOutcome& outcome = updateOutcomes()[static_cast<std::size_t>(index)];
    m_outcome.SetCurSel(index);
    m_server.answer(outcome.status, outcome.body, outcome.manner);
    SetDlgItemText(IDC_UPDATES_LIST, shownText(outcome).c_str());
}

void UpdatesPage::OnOutcome()
{
    choose(m_outcome.GetCurSel());
}

// Results

void UpdatesPage::tell(const std::wstring& result)
{
    if (!m_hWnd)
        return; // another page was opened while a dialog was
    SetDlgItemText(IDC_UPDATES_RESULT, result.c_str());
    log(result);
}

void UpdatesPage::tellFound(const std::optional<AvailableUpdate>& update)
{
    tell(update ? L"Version " + update->version + L" at " + update->page + L": " + update->description
                : L"Nothing new");
}

/// Errors are told like any other result.
template <class Deed>
void UpdatesPage::attempt(const Deed& deed)
{
    try {
        deed();
    } catch (const OvoError& error) {
        tell(error.wwhat());
    }
}

// Checks that wait for the server

void UpdatesPage::OnCheck()
{
    attempt([this] {
        checkForUpdates(m_server.address(), kProduct, L"", kVersion);
        tell(L"checkForUpdates has returned");
    });
}

void UpdatesPage::OnFind()
{
    attempt([this] { tellFound(findUpdate(m_server.address(), kProduct, L"", kVersion)); });
}

void UpdatesPage::OnSigned()
{
    attempt([this] {
        UpdateTrust trust{kPublicKey, {}};
        tellFound(findTrustedUpdate(m_server.address(), kProduct, L"", kVersion, trust));
    });
}

void UpdatesPage::OnPolitely()
{
    attempt([this] {
        const bool due = UpdateMemory(kProduct).isDue(0);
        checkPolitely(m_server.address(), kProduct, L"", kVersion, {.checkEvery = 0, .remindAfter = 1});
        tell(due ? L"checkPolitely has returned" : L"checkPolitely did not ask the server: it is not due");
    });
}

void UpdatesPage::OnForget()
{
    UpdateMemory memory(kProduct);
    memory.remindLater(0);
    memory.skip({});
    tell(L"No version is skipped, and a check is due");
}

// A check in the background

void UpdatesPage::OnBackground()
{
    endJob();
    UpdateQuestion question;
    question.address = m_server.address();
    question.product = kProduct;
    std::ranges::copy(kVersion, question.version.begin());
    m_job = UpdateJob::start(question, m_hWnd, kJobMessage,
                             [](std::function<void()> work) { std::thread(std::move(work)).detach(); });
    showRunning(true);
    tell(L"The check runs");
}

void UpdatesPage::OnCancelJob()
{
    if (m_job)
        m_job->cancel();
}

LRESULT UpdatesPage::OnJobEvent(WPARAM event, LPARAM number)
{
    if (!m_job || number != m_job->number())
        return 0;
    if (event == UpdateJob::Progress) {
        const UpdateJob::Bytes bytes = m_job->progress();
        if (bytes.expected > 0)
            m_progress.SetPos(static_cast<int>(100 * bytes.received / bytes.expected));
        return 0;
    }
    tellAnswer();
    showRunning(false);
    return 0;
}

void UpdatesPage::tellAnswer()
{
    switch (m_job->state()) {
    case UpdateJob::State::Failed:
        return tell(m_job->error());
    case UpdateJob::State::Cancelled:
        return tell(L"Cancelled");
    default:
        return tellFound(m_job->update());
    }
}

void UpdatesPage::showRunning(bool running)
{
    m_progress.SetPos(0);
    CWnd* const next = GetDlgItem(running ? IDC_UPDATES_CANCEL : IDC_UPDATES_BACKGROUND);
    CWnd* const over = GetDlgItem(running ? IDC_UPDATES_BACKGROUND : IDC_UPDATES_CANCEL);
    next->EnableWindow(TRUE);
    if (GetFocus() == over)
        next->SetFocus(); // or the keyboard would have no window
    over->EnableWindow(FALSE);
}

void UpdatesPage::endJob()
{
    if (m_job)
        m_job->cancel();
    m_job.reset();
}

// Poses

std::vector<std::wstring> UpdatesPage::poses() const
{
    return {L"newer", L"none", L"long", L"offer", L"missing", L"incomplete"};
}

bool UpdatesPage::pose(const std::wstring& name)
{
    const std::wstring outcome = name == L"offer" ? L"newer" : name;
    const auto& outcomes = updateOutcomes();
    const auto found = std::ranges::find(outcomes, outcome, &UpdateOutcome::name);
    if (found == outcomes.end())
        return false;
    choose(static_cast<int>(found - outcomes.begin()));
    if (name == L"offer") {
        OnForget();
        OnPolitely();
    } else {
        OnCheck();
    }
    return true;
}
