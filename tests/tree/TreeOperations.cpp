#include "TreeOperations.h"

#include <ostream>

namespace
{

constexpr UINT kPaint = 4001;

void endEdit(Scene& scene, const wchar_t* typed)
{
    CEdit* const edit = scene.tree.EditLabel(scene.item("a"));
    if (!edit)
        return;
    edit->SetWindowText(typed);
    scene.tree.SendMessage(TVM_ENDEDITLABELNOW, FALSE);
}

LRESULT press(Scene& scene, UINT key)
{
    return scene.tree.SendMessage(WM_KEYDOWN, key, 1);
}

} // namespace

void PrintTo(const Operation& operation, std::ostream* out)
{
    *out << operation.name;
}

const std::vector<Operation>& treeOperations()
{
    static const std::vector<Operation> operations{
        {"expand",
         [](TestNode& node, auto raise) {
             node.expanding = [=](MultiTreeCtrl&) {
                 raise();
                 return true;
             };
         },
         [](Scene& scene) { scene.tree.Expand(scene.item("a"), TVE_EXPAND); }},
        {"collapse", [](TestNode& node, auto raise) { node.collapsing = [=](MultiTreeCtrl&) { raise(); }; },
         [](Scene& scene) {
             scene.tree.Expand(scene.item("a"), TVE_EXPAND);
             scene.tree.Expand(scene.item("a"), TVE_COLLAPSE);
         }},
        {"activate", [](TestNode& node, auto raise) { node.activating = [=](MultiTreeCtrl&) { raise(); }; },
         [](Scene& scene) { press(scene, VK_RETURN); }},
        {"refresh",
         [](TestNode& node, auto raise) {
             node.refreshing = [=] {
                 raise();
                 return true;
             };
         },
         [](Scene& scene) { scene.tree.SendMessage(WM_COMMAND, 5234); }},
        {"doCommand",
         [](TestNode& node, auto raise) {
             node.offer(kPaint);
             node.commanding = [=](MultiTreeCtrl&, unsigned) { raise(); };
         },
         [](Scene& scene) { scene.tree.SendMessage(WM_COMMAND, kPaint); }},
        {"infotip",
         [](TestNode& node, auto raise) {
             node.tipping = [=]() -> std::wstring {
                 raise();
                 return {};
             };
         },
         [](Scene& scene) {
             wchar_t buffer[20] = L"";
             NMTVGETINFOTIPW request{};
             request.hdr = {scene.tree.m_hWnd, 7, static_cast<UINT>(TVN_GETINFOTIPW)};
             request.pszText = buffer;
             request.cchTextMax = 20;
             request.hItem = scene.item("a");
             scene.parent().SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&request));
         }},
        {"beginLabelEdit",
         [](TestNode& node, auto raise) { node.editBegins = [=](MultiTreeCtrl&) { raise(); }; },
         [](Scene& scene) { scene.tree.EditLabel(scene.item("a")); }},
        {"renameText",
         [](TestNode& node, auto raise) {
             node.offeringText = [=]() -> std::wstring {
                 raise();
                 return {};
             };
         },
         [](Scene& scene) { scene.tree.EditLabel(scene.item("a")); }},
        {"rename",
         [](TestNode& node, auto raise) {
             node.renaming = [=](MultiTreeCtrl&, const std::wstring&) { raise(); };
         },
         [](Scene& scene) { endEdit(scene, L"new"); }},
        {"endLabelEdit", [](TestNode& node, auto raise) { node.editEnds = [=](MultiTreeCtrl&) { raise(); }; },
         [](Scene& scene) { endEdit(scene, L"a"); }},
    };
    return operations;
}

void prepareForOperations(Scene& scene)
{
    TestNode& a = scene.node("a");
    a.children = 1;
    a.childNames = {"x", "y"};
    a.renamable = true;
    scene.tree.updateUI(a);
    scene.tree.SelectItem(scene.item("a"));
    scene.tree.SetFocus();
}
