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
    using Limit = Stage::Limit;

    // Mouse. A click elsewhere than the last one, or later, is never a double click unless it is meant.
    auto moveTo(Spot spot)
    {
        return tell("move", [spot](Stage& stage) { stage.glideTo(spot); });
    }
    auto moveBy(int right, int down)
    {
        return tell("move on", [=](Stage& stage) { stage.glideBy({right, down}); });
    }
    auto press(Spot spot, Button button = Button::Left)
    {
        return tell("press", [=](Stage& stage) {
            stage.glideTo(spot);
            stage.press(button);
        });
    }
    auto release(Button button = Button::Left)
    {
        return tell("release", [=](Stage& stage) { stage.release(button); });
    }
    auto click(Spot spot, Button button = Button::Left)
    {
        return tell("click", [=](Stage& stage) {
            stage.glideTo(spot);
            stage.press(button);
            stage.release(button);
        });
    }
    auto rightClick(Spot spot) { return click(spot, Button::Right); }
    auto doubleClick(Spot spot, Button button = Button::Left)
    {
        return tell("double-click", [=](Stage& stage) {
            stage.glideTo(spot);
            stage.doubleClick(button);
        });
    }
    /// Press at one spot, move, release at the other.
    auto drag(Spot from, Spot to, Button button = Button::Left)
    {
        return tell("drag", [=](Stage& stage) {
            stage.glideTo(from);
            stage.press(button);
            stage.glideTo(to);
            stage.release(button);
        });
    }
    /// Positive is away from the user.
    auto turnWheel(int notches)
    {
        return tell("turn the wheel", [=](Stage& stage) { stage.turnWheel(notches); });
    }

    // Keyboard. Keys are VK_ codes; letters and digits are their own codes.
    auto key(WORD virtualKey, int times = 1)
    {
        return tell("press a key", [=](Stage& stage) {
            for (int i = 0; i < times; ++i) {
                stage.keyDown(virtualKey);
                stage.keyUp(virtualKey);
            }
        });
    }
    /// Holds a key until letGo with the same key, or to the end of the story.
    auto holding(WORD virtualKey)
    {
        return tell("hold a key", [=](Stage& stage) { stage.keyDown(virtualKey); });
    }
    auto letGo(WORD virtualKey)
    {
        return tell("let a key go", [=](Stage& stage) { stage.keyUp(virtualKey); });
    }
    auto type(std::wstring text)
    {
        return tell("type", [=](Stage& stage) { stage.type(text); });
    }

    /// Presses a key while another is held, and again as long as nothing comes of it: on a busy machine the
    /// display can report late that nothing is held.
    auto chordUntil(std::string what, WORD held, WORD virtualKey, std::function<bool()> condition)
    {
        return tell(what, [=](Stage& stage) { stage.chordUntil(what, held, virtualKey, condition); });
    }

    // Looking.
    /// Waits until the condition holds. When it does not in time, the test fails with the words of `what`,
    /// and the rest of the story is not acted.
    auto waitFor(std::string what, std::function<bool()> condition, Limit limit = 30s)
    {
        return tell(what, [=](Stage& stage) { stage.waitFor(what, condition, limit); });
    }
    /// Does something else at this point of the story, on the thread with the windows.
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
