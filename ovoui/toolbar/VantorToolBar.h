/// A toolbar whose buttons can carry flyouts, and which hosts edits and combo boxes.
///
///     bar.CreateEx(this, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_TOOLTIPS);
///     bar.LoadToolBar(drawTools);
///     bar.AttachBar(2, shapeTools, 16, {0, 1, 3}, false); // the third button offers three shapes
///
/// The user presses such a button and holds it: its flyout opens, and the entry over which the mouse is
/// released becomes the button's command and is issued. A quick click is the button's own command as ever.
///
/// The application passes WM_ACTIVATEAPP on to ActivateApp. A control inside the bar is a child of it whose
/// number is the command of the separator that keeps its place.
#pragma once

#include <ovoui/export.h>
#include <ovoui/images/ImageStrips.h>

#include <ovocor/Quark.h>

#include <afxext.h>

#include <memory>
#include <string>
#include <vector>

class CFlyoutToolbar;

namespace ovoui::toolbar
{
enum class Interruption;
enum class WalkKey;
struct ButtonFields;
struct FlyoutEntry;
struct FlyoutRecord;
struct KeyView;
struct Press;
struct Stop;
} // namespace ovoui::toolbar

/// Posted to the thread's main window when a button of a bar is double-clicked; wParam: its command.
#define WM_OVO_TOOLBAR_DBLCLK 3586

class OVOUI_API CVantorToolBar : public CToolBar
{
    DECLARE_DYNAMIC(CVantorToolBar)

public:
    /// Told of what an embedded control notifies, after the bar's owner. Zero makes zero the answer to the
    /// control; any other result leaves the owner's. The last argument is null.
    using ControlCallback = LRESULT (*)(CVantorToolBar* bar, UINT code, UINT id, void* data);

    CVantorToolBar();
    /// Closes the flyout if it is this bar's.
    ~CVantorToolBar() override;

    // Flyouts. Buttons count from 0, separators included; of a button that the bar does not have nothing is
    // done.

    /// Buttons of the toolbar resource `toolbarId`, by their indices in it, `buttonIndices`, separators
    /// counted. Each index is also the image that the bar's button gets with the entry, as it stands. The
    /// resource's bitmap, of images `bitmapSize` pixels wide, is added to the bar's images. `styleFlag` gives
    /// the flyout's window a grip.
    void AttachBar(int button, int toolbarId, int bitmapSize, const std::vector<int>& buttonIndices,
                   bool styleFlag);

    /// A list of commands; 0 makes a separator. `images` are indices among the bar's images, and the flyout
    /// shows the same; with `shiftImages` each is counted from where the strip `bitmapIds[i]` begins
    /// (noteBitmap). An entry beyond `bitmapIds` leaves the button its image. In a bar without an image list
    /// the strips `bitmapIds` are added, to the bar and to the flyout. `names` serve as tips for commands
    /// that have no string. The image list stays the bar's; it must live as long as the flyout is attached,
    /// or be replaced by AttachBar.
    /// `bitmapSize` is the width of the images in pixels; `styleFlag` as above.
    void AttachBar(int button, int bitmapSize, const std::vector<int>& commands,
                   const std::vector<int>& bitmapIds, const std::vector<int>& images,
                   const std::vector<Quark>& names, bool styleFlag, bool shiftImages);

    /// Takes the flyout of a button away.
    void DetachBar(int button);
    /// Takes all flyouts away.
    void DetachAllBars();
    /// The flyout of another bar's button `fromButton`, or none if that has none; the image list stays the
    /// other bar's and is not followed when that gets another one. Nothing is done without `from`.
    void CopyBar(int button, const CVantorToolBar* from, int fromButton);
    /// Whether a button has a flyout.
    bool HasFlyout(int button) const;
    /// Puts the `commands` of a button's flyout in order. False for a button without a flyout; an empty list
    /// for one of a toolbar resource.
    bool GetBarCommands(int button, std::vector<int>& commands) const;
    /// The size in pixels of the images in flyouts that are lists of commands.
    void UpdateBarBitmapSize(int size);

    /// Closes the open flyout when the application is not `active` any more.
    static void ActivateApp(BOOL active);

    // What a host may ask for besides; off at first.

    /// A small triangle in the lower corner of each button that has a flyout.
    void ShowFlyoutMarks(bool show);

    static constexpr UINT kMenuDelay = 0xFFFFFFFF; ///< as long as the system's menus wait
    /// How long a button is held until its flyout appears, in milliseconds or kMenuDelay; 200 at first.
    void SetHoldDelay(UINT milliseconds);

    /// A bitmap resource with images of `size` by `size` pixels side by side.
    struct Strip
    {
        UINT bitmapId; ///< the resource
        int size;      ///< of each image, in pixels
    };
    /// The images of the bar, which must have its window, come from one of these strips, which must have the
    /// same images in the same order. They are `imageSize` pixels large at 96 dots per inch, and as much
    /// larger as the monitor's resolution is higher. The host has started GDI+; without it, or without such a
    /// resource, the images stay what they were.
    void UseStrips(const std::vector<Strip>& strips, int imageSize);
    /// The same with `strips` that may come from files or be drawn at each size. What a drawing raises comes
    /// out of this call and of the message that tells of another resolution.
    void UseStrips(CImageStrips strips);
    /// Images of disabled buttons are made from those of UseStrips, in the bar and in flyouts that show the
    /// bar's images, instead of being left to the system. They follow the system's colours. See
    /// disabledStrip.
    void UseDisabledImages(bool use);

    /// Gives the bar the focus, so that keys operate it: arrows walk over the buttons, Enter and Space press
    /// one, Down or Alt+Down opens its flyout, Tab goes to the bar's controls, Escape gives the focus back to
    /// where it was. With CBRS_TOOLTIPS the tips of the buttons show as with the mouse. FALSE when there is
    /// no button to press, or the focus cannot be had.
    BOOL FocusButtons();

    /// Bar and flyouts answer IAccessible themselves, with names, roles, states and default actions of their
    /// buttons. The thread has initialised COM.
    void UseAccessibleNames(bool use);

    /// Writes into a section of the application's profile which command each button with a flyout shows.
    void SaveChoices(LPCTSTR section) const;
    /// Gives the buttons the commands and images that the `section` has. What is not in a flyout any more is
    /// skipped.
    void LoadChoices(LPCTSTR section);

    // Buttons. The flyouts stay with theirs.

    /// Inserts `button` in front of the button `index`; the result is the control's. For a null `button` only
    /// the flyouts of the buttons from `index` on move up by one, and the result is 1.
    BOOL InsertButton(int index, TBBUTTON* button);
    /// Deletes the button `index`; the result is the control's. Without such a button only the flyouts of the
    /// buttons behind it move down by one.
    BOOL DeleteButton(int index);

    /// Adds the strip of the bitmap resource `bitmapId`, with images `bitmapSize` pixels wide, to the bar's
    /// images, once. Index of its first image, -1 on failure.
    int AddBitmap(int bitmapId, int bitmapSize);

    /// Who is told of what embedded controls notify; null for none.
    void SetControlCallback(ControlCallback callback);

    /// Set by the host to GetTickCount when it restarts its command interface: for a quarter of a second
    /// after it the buttons are not updated.
    static DWORD ms_apiRestartedTickCount;

    // Layout, in pixels

    /// The bar's height in pixels while it is horizontal, borders included; 0 follows the buttons.
    void SetHeight(int height);

    /// The size in pixels of `count` `buttons` in rows that are broken where TBSTATE_WRAP says.
    CSize calcSize(const TBBUTTON* buttons, int count) const;
    /// Breaks the rows of `count` buttons, in `buttons` only, so that they are no wider, or with `vertical`
    /// no higher, than `length` in pixels.
    void sizeToolBar(TBBUTTON* buttons, int count, int length, bool vertical = false) const;
    /// The bar's size in pixels for the LM_ bits of `mode`. Without a `length`, or with LM_COMMIT, the bar
    /// takes this layout on: rows are broken, embedded controls moved to their places, and hidden while the
    /// bar is vertical.
    CSize calcLayout(DWORD mode, int length = -1);
    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    CSize CalcDynamicLayout(int length, DWORD mode) override;

    /// Asks the bar's owner, else its parent, else its parent frame; `target` is ignored, and
    /// `disableIfNoHandler` counts as in CFrameWnd.
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;
    /// Brings the buttons up to date; `disableIfNoHandler` counts as in CFrameWnd.
    LRESULT OnIdleUpdateCmdUI(WPARAM disableIfNoHandler, LPARAM);

    BOOL PreTranslateMessage(MSG* message) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void DrawGripper(CDC* dc, const CRect& rect) override;

protected:
    /// The flyout that is open. One is open at a time, whichever bar it belongs to.
    static std::shared_ptr<CFlyoutToolbar> ms_popupBar;
    static bool ms_dragging;         ///< from the press on a flyout button to the release
    static int ms_dragButton;        ///< whose flyout is open; -1 for none
    static bool ms_idleTimerPending; ///< a bar waits to update its buttons

    /// The button at a client `point`: its `index`, its rectangle `rect` on the screen, and `hasFlyout`.
    /// False where there is none; the results are left alone.
    bool ButtonHitTest(CPoint point, int& index, CRect& rect, bool& hasFlyout) const;
    /// Opens the flyout of the button `index`, whose rectangle `rect` on the screen is given, in place of the
    /// one that is open. `held` makes it show itself after the hold delay. What an update handler raises comes
    /// out of here, and the flyout is closed then.
    void CreatePopup(int index, const CRect& rect, int held);
    /// The images of the strip `bitmapId` begin at the index `offset` of the bar's images.
    void noteBitmap(int bitmapId, int offset);
    /// Puts the button `index` into `button`.
    void _getButton(int index, TBBUTTON* button) const;
    /// Replaces the button `index` that differs in more than being enabled.
    void _setButton(int index, const TBBUTTON* button);
    /// Draws the gripper of a docked bar into `rect` on `dc`.
    virtual void DrawNCGripper(CDC* dc, const CRect& rect);

    // mouse
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* now);
    // keyboard in the bar itself
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSysKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* now);
    // painting, controls that draw themselves
    afx_msg void OnPaint();
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item);
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT item);
    // the rest
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    friend class CFlyoutToolbar;
    struct State;

    static ovoui::toolbar::Press press();
    static void closeFlyout();
    static void endPress();
    bool isPressed() const;
    void interrupt(ovoui::toolbar::Interruption interruption);
    void slide(CPoint point);
    bool choose(CPoint point);
    bool takeEntry(const ovoui::toolbar::Press& press, const ovoui::toolbar::FlyoutEntry& entry);
    void releaseQuietly(UINT flags, CPoint point);
    void showChoice(int index, int command, int image);
    void restoreChoice(int index, int command);
    void erasePlaces();
    void drawFlyoutMarks();
    void drawFocus();
    UINT holdDelay() const;
    // keyboard
    std::vector<ovoui::toolbar::Stop> stops() const;
    ovoui::toolbar::KeyView keyView() const;
    std::vector<ovoui::toolbar::ButtonFields> allFields() const;
    HWND promptFrame() const;
    void goToButton(int index);
    void makeHot(int index);
    void redrawButton(int index);
    bool onOperatingKey(UINT key, bool alt);
    void walkBar(ovoui::toolbar::WalkKey key);
    void walkFlyout(ovoui::toolbar::WalkKey key);
    void openByKey();
    void pressByKey();
    void clickButton(int index);
    void chooseEntry(const ovoui::toolbar::FlyoutEntry& entry);
    void goToControl(bool previous);
    void giveFocusBack();
    void leaveKeyboard();
    void awaitTip();
    void showTip();
    void hideTip();
    bool onTipTimer(UINT_PTR id);
    std::wstring tipOfButton(int index) const;
    // accessibility
    void announceFocus(int index) const;
    LRESULT onGetObject(WPARAM wParam, LPARAM lParam);
    // images, layout, commands
    void loadStrip(int dotsPerInch);
    void renewImages();
    void showImages(int dotsPerInch, int sizeBefore);
    bool isPlacedBy(const CFrameWnd& frame) const;
    bool onResolutionChanged(int resolution);
    bool isHorizontal() const;
    LRESULT onControlCommand(WPARAM wParam, LPARAM lParam);
    void postEndOfInput(HWND target);
    bool hasButton(int index) const;
    int buttonCount() const;
    std::vector<TBBUTTON> allButtons() const;
    void takeLayout(const std::vector<TBBUTTON>& buttons, bool horizontal);
    void layOutControl(HWND control, int id, int index, bool horizontal);
    void putIntoPlace(HWND control, int index);
    HWND controlAt(const TBBUTTON& button) const;
    HWND commandTarget() const;

    static CVantorToolBar* ms_activeBar; ///< whose button is pressed, or whose flyout is open

    std::shared_ptr<State> m_state;
};
