#pragma once

#include "GuiThread.h"
#include "Performance.h"
#include "Stage.h"

#include <string>
#include <vector>

namespace ovo::testkit
{

using namespace std::chrono_literals;

/// What a user can do, as verbs that are chained. Spots and windows are looked up and conditions evaluated
/// when their step comes, on the thread with the windows.
template <class Teller>
class Verbs
{
public:
    /// How long a condition is waited for.
    using Limit = Stage::Limit;

    // Mouse. A click elsewhere than the last one, or later, is never a double click unless it is meant.
    /// Moves the pointer to `spot`, through places between.
    auto moveTo(Spot spot)
    {
        return tell("move", [spot](Stage& stage) { stage.glideTo(spot); });
    }
    /// Moves the pointer on, `right` and `down` in pixels.
    auto moveBy(int right, int down)
    {
        return tell("move on", [=](Stage& stage) { stage.glideBy({right, down}); });
    }
    /// Moves to `spot` and presses `button`.
    auto press(Spot spot, Button button = Button::Left)
    {
        return tell("press", [=](Stage& stage) {
            stage.glideTo(spot);
            stage.press(button);
        });
    }
    /// Lets go of `button`.
    auto release(Button button = Button::Left)
    {
        return tell("release", [=](Stage& stage) { stage.release(button); });
    }
    /// Moves to `spot`, presses `button` and lets go.
    auto click(Spot spot, Button button = Button::Left)
    {
        return tell("click", [=](Stage& stage) {
            stage.glideTo(spot);
            stage.press(button);
            stage.release(button);
        });
    }
    /// A click at `spot` with the right button.
    auto rightClick(Spot spot) { return click(spot, Button::Right); }
    /// Two clicks with `button` at `spot` that count as a double click.
    auto doubleClick(Spot spot, Button button = Button::Left)
    {
        return tell("double-click", [=](Stage& stage) {
            stage.glideTo(spot);
            stage.doubleClick(button);
        });
    }
    /// Presses `button` at `from`, moves, and lets go at `to`.
    auto drag(Spot from, Spot to, Button button = Button::Left)
    {
        return tell("drag", [=](Stage& stage) {
            stage.glideTo(from);
            stage.press(button);
            stage.glideTo(to);
            stage.release(button);
        });
    }
    /// Turns the wheel by `notches`; positive is away from the user.
    auto turnWheel(int notches)
    {
        return tell("turn the wheel", [=](Stage& stage) { stage.turnWheel(notches); });
    }

    // Keyboard. Keys are VK_ codes; letters and digits are their own codes.
    /// Presses the key `virtualKey` and lets go, so many `times`.
    auto key(WORD virtualKey, int times = 1)
    {
        return tell("press a key", [=](Stage& stage) {
            for (int i = 0; i < times; ++i) {
                stage.keyDown(virtualKey);
                stage.keyUp(virtualKey);
            }
        });
    }
    /// Holds a key until letGo with the same key, or to the end of the story. The display tells a window that
    /// has come up what is held on its own keyboard, which is nothing: the key goes down afterwards.
    auto holding(WORD virtualKey)
    {
        return tell("hold a key", [=](Stage& stage) {
            GuiThread::catchUp();
            stage.keyDown(virtualKey);
        });
    }
    /// Lets go of the held key `virtualKey`.
    auto letGo(WORD virtualKey)
    {
        return tell("let a key go", [=](Stage& stage) { stage.keyUp(virtualKey); });
    }
    /// Types `text`, each character by its key where the keyboard has one.
    auto type(std::wstring text)
    {
        return tell("type", [=](Stage& stage) {
            GuiThread::catchUp(); // capitals hold Shift
            stage.type(text);
        });
    }

    /// Presses `virtualKey` while `held` is held, and again until `condition` holds, which `what` names: on a
    /// busy machine the display can report late that nothing is held.
    auto chordUntil(std::string what, WORD held, WORD virtualKey, std::function<bool()> condition)
    {
        return tell(what, [=](Stage& stage) {
            GuiThread::catchUp();
            stage.chordUntil(what, held, virtualKey, condition);
        });
    }

    // Looking.
    /// Waits until the condition holds. When it does not within `limit`, the test fails with the words of
    /// `what`, and the rest of the story is not acted.
    auto waitFor(std::string what, std::function<bool()> condition, Limit limit = 30s)
    {
        return tell(what, [=](Stage& stage) { stage.waitFor(what, condition, limit); });
    }
    /// Does `deed` at this point of the story, on the thread with the windows.
    auto then(std::function<void()> deed)
    {
        return tell("a deed of the test", [=](Stage&) { GuiThread::ask(deed); });
    }

private:
    auto tell(std::string name, std::function<void(Stage&)> act)
    {
        return static_cast<Teller&>(*this).add(Step{std::move(name), std::move(act)});
    }
};

/// A script for the robot. A story that is not started otherwise is acted out at the end of its statement,
/// while the calling thread runs the message loop.
class Story : public Verbs<Story>
{
public:
    /// Of `steps`; the robot makes stories.
    explicit Story(std::vector<Step> steps);
    Story(Story&& other) noexcept;
    Story& operator=(Story&&) = delete;

    /// Acts out what is not acted out yet. What message handlers throw comes out of here.
    ~Story() noexcept(false);

    /// Begins at once and returns: for calls that run a loop of their own, such as a modal dialog. The
    /// performance, which must be kept, waits for the story's end.
    [[nodiscard]] Performance start();

private:
    friend class Verbs<Story>;
    Story add(Step step);

    std::vector<Step> m_steps;
};

} // namespace ovo::testkit
