// Call-outs of the images that follow the resolution: the host's drawing, and what it is told.
#include "CallOutScene.h"

#include <testkit/GdiPlusSession.h>

#include <ovoui/images/ImageStrips.h>

using namespace ovo::testkit;

namespace
{

HBITMAP drawing(int size)
{
    Raising::here("Drawing");
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, size, -size, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    return ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

class LoadScene : public CallOutScene
{
public:
    LoadScene() { images.Load(96); }
    void provoke() override { images.Load(144); }
    void expectSound() override
    {
        EXPECT_EQ(images.GetSize(), 16) << "what was loaded before stays";
        EXPECT_TRUE(images.Load(144));
        EXPECT_EQ(images.GetSize(), 24);
    }

protected:
    const GdiPlusSession gdiPlus;
    CImageStrips images{&drawing, 16};
};

class FollowScene : public LoadScene
{
public:
    FollowScene()
    {
        images.Follow(parent, [this] {
            Raising::here("changed");
            told = images.GetSize();
        });
    }
    void provoke() override { moveTo(144); }
    void expectSound() override
    {
        EXPECT_EQ(told, 0);
        moveTo(192);
        EXPECT_EQ(told, 32);
    }

private:
    void moveTo(int dots) { parent.SendMessage(WM_DPICHANGED, MAKEWPARAM(dots, dots)); }

    int told = 0;
};

const std::vector<CallOut> kImages{
    {"Drawing", &make<LoadScene>, kToCaller},
    {"Drawing", &make<FollowScene>, kAsAHandler},
    {"changed", &make<FollowScene>, kAsAHandler},
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Images, CallOuts, ::testing::ValuesIn(kImages), &nameOfCallOut);
