// An edit control into which text can be dropped.
#pragma once

#include <afxole.h>
#include <afxwin.h>

class TextDropEdit : public CEdit
{
public:
    TextDropEdit();
    ~TextDropEdit() override;

    /// To be called when the window exists.
    void takeDrops() { m_target.Register(this); }

private:
    class Target : public COleDropTarget
    {
    public:
        DROPEFFECT OnDragEnter(CWnd* window, COleDataObject* data, DWORD keys, CPoint point) override;
        DROPEFFECT OnDragOver(CWnd* window, COleDataObject* data, DWORD keys, CPoint point) override;
        BOOL OnDrop(CWnd* window, COleDataObject* data, DROPEFFECT effect, CPoint point) override;
    };

    Target m_target;
};
