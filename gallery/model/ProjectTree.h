// The tree of a project: where its errors go, and what the user drags and copies.
#pragma once

#include "ProjectData.h"

#include <ovoui/tree/MultiTreeCtrl.h>

#include <functional>
#include <string>

class ProjectTree : public MultiTreeCtrl
{
public:
    using Log = std::function<void(const std::wstring&)>;

    ProjectTree();
    ~ProjectTree() override;

    void setLog(Log log) { m_log = std::move(log); }
    void setReadOnly(bool readOnly) { m_readOnly = readOnly; }

    /// Drags the whole selection, until the button is released.
    void dragSelection();

    /// Puts the selection onto the clipboard; to be moved by the next paste, or to be copied.
    void copySelection(bool cut);

    void reportError(const wchar_t* message) override;
    bool isCommandDisabled(unsigned id) override;

private:
    std::vector<OVO::Handle<Node>> selectedNodes() const;
    static ProjectData::Items itemsOf(const std::vector<OVO::Handle<Node>>& nodes);
    DWORD allowedBy(const std::vector<OVO::Handle<Node>>& nodes);
    void log(const std::wstring& line) const;

    Log m_log;
    bool m_readOnly = false;
    EVSubscription m_gestures;
};
