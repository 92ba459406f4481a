/// Controls with hosts that raise what is armed, for the table of call-outs: a scene for each call-out, a
/// file of them for each subject.
#pragma once

#include <support/Raising.h>
#include <testkit/RecordingParent.h>

#include <gtest/gtest.h>

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>

/// A control and its host, which raises what is armed.
class CallOutScene
{
public:
    virtual ~CallOutScene() = default;
    CallOutScene(const CallOutScene&) = delete;
    CallOutScene& operator=(const CallOutScene&) = delete;

    /// Leads to the call.
    virtual void provoke() = 0;
    /// What a user could do before can still be done.
    virtual void expectSound() {}

protected:
    CallOutScene();

    ovo::testkit::RecordingParent parent;
};

struct CallOut
{
    const char* name; ///< as Raising::here says it
    std::function<std::unique_ptr<CallOutScene>()> make;
    Outcomes outcomes;
};

void PrintTo(const CallOut& callOut, std::ostream* out);

template <class Scene>
std::unique_ptr<CallOutScene> make()
{
    return std::make_unique<Scene>();
}

/// Where the user, a message or the framework leads to the call.
constexpr Outcomes kAsAHandler{Outcome::Passes, Outcome::Shown, Outcome::Passes};
/// The same within WM_PAINT, where the framework drops what is its own.
constexpr Outcomes kInPainting{Outcome::Passes, Outcome::Quiet, Outcome::Passes};
/// Where the host's own call leads to it.
constexpr Outcomes kToCaller{Outcome::Passes, Outcome::Passes, Outcome::Passes};

/// Each file of scenes is a part of the table.
class CallOuts : public ::testing::TestWithParam<CallOut>
{
};

std::string nameOfCallOut(const ::testing::TestParamInfo<CallOut>& info);

// What users do

constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;

void click(CWnd& window, CPoint point);
void press(CWnd& window, UINT key);
void paint(CWnd& window);
