// The update check, against a server inside the gallery: every outcome without a network.
#pragma once

#include "GalleryPage.h"
#include "model/ListServer.h"

#include <ovoui/update/PoliteCheck.h>
#include <ovoui/update/UpdateJob.h>

#include <afxcmn.h>

class UpdatesPage : public GalleryPage
{
public:
    UpdatesPage();
    ~UpdatesPage() override;

    std::vector<std::wstring> poses() const override;
    bool pose(const std::wstring& name) override;

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnOutcome();
    afx_msg void OnCheck();
    afx_msg void OnFind();
    afx_msg void OnPolitely();
    afx_msg void OnForget();
    afx_msg void OnSigned();
    afx_msg void OnBackground();
    afx_msg void OnCancelJob();
    afx_msg LRESULT OnJobEvent(WPARAM event, LPARAM number);
    DECLARE_MESSAGE_MAP()

private:
    template <class Deed>
    void attempt(const Deed& deed);
    void choose(int outcome);
    void tell(const std::wstring& result);
    void tellFound(const std::optional<AvailableUpdate>& update);
    void tellAnswer();
    void showRunning(bool running);
    void endJob();

    ListServer m_server;
    CComboBox m_outcome;
    CProgressCtrl m_progress;
    std::shared_ptr<UpdateJob> m_job;
};
