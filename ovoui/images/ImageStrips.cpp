#include <ovoui/images/ImageStrips.h>

#include <ovoui/images/ResolutionWatch.h>
#include <ovoui/images/StripReader.h>
#include <ovoui/images/core/PictureSize.h>
#include <ovoui/images/core/StripChoice.h>
#include <ovoui/images/core/StripScaling.h>

#include <algorithm>
#include <utility>

using namespace ovoui::images;

namespace
{

/// The image lists of one size.
struct Lists
{
    CAlphaImageList images;
    CImageList disabled;
};

std::unique_ptr<Lists> listsOf(StripPixels pixels, bool withDisabled)
{
    const int size = pixels.image.width;
    const CSize same(size, size);
    auto lists = std::make_unique<Lists>();
    const UniqueBitmap normal = bitmapOf(pixels);
    if (!normal || !lists->images.Create(size, size, pixels.count) ||
        lists->images.AddBitmap(0, false, -1, same, same, normal.get(), nullptr) < 0)
        return nullptr;
    if (!withDisabled)
        return lists;
    disable(pixels);
    const UniqueBitmap grey = bitmapOf(pixels);
    if (!grey || !lists->disabled.Create(size, size, ILC_COLOR32, pixels.count, 1) ||
        ::ImageList_Add(lists->disabled.GetSafeHandle(), grey.get(), nullptr) < 0)
        return nullptr;
    return lists;
}

} // namespace

struct CImageStrips::State
{
    bool load(int size);
    /// Whether the images change with the system's colours.
    bool goesByColours() const { return usesDisabled || draw; }
    std::optional<StripPixels> pixels(int size) const;
    std::optional<StripPixels> drawn(int size) const;
    std::optional<StripPixels> chosen(int size) const;

    std::vector<Strip> strips;
    Drawing draw;
    int imageSize = 0; ///< at 96 dots per inch
    bool usesDisabled = false;
    int size = 0; ///< of the images loaded
    std::unique_ptr<Lists> lists;
    std::unique_ptr<Lists> before; ///< which controls may still show
    std::shared_ptr<ResolutionWatch> watch;
};

bool CImageStrips::State::load(int wanted)
{
    std::optional<StripPixels> made = wanted > 0 ? pixels(wanted) : std::nullopt;
    std::unique_ptr<Lists> now = made ? listsOf(*std::move(made), usesDisabled) : nullptr;
    if (!now)
        return false;
    before = std::exchange(lists, std::move(now));
    size = wanted;
    return true;
}

std::optional<StripPixels> CImageStrips::State::pixels(int wanted) const
{
    return draw ? drawn(wanted) : chosen(wanted);
}

std::optional<StripPixels> CImageStrips::State::drawn(int wanted) const
{
    const UniqueBitmap strip(draw(wanted));
    const std::optional<ovoui::images::Strip> read = ovoui::images::Strip::passed(strip.get());
    return read ? pixelsOf(*read, wanted) : std::nullopt;
}

std::optional<StripPixels> CImageStrips::State::chosen(int wanted) const
{
    if (strips.empty())
        return std::nullopt;
    std::vector<int> sizes;
    for (const Strip& strip : strips)
        sizes.push_back(strip.size);
    const Strip& best = strips[chooseStrip(sizes, wanted)];
    const std::optional<ovoui::images::Strip> read = best.file.empty()
                                                         ? ovoui::images::Strip::resource(best.bitmapId)
                                                         : ovoui::images::Strip::fromFile(best.file);
    std::optional<StripPixels> own = read ? pixelsOf(*read, best.size) : std::nullopt;
    if (!own || best.size == wanted)
        return own;
    if (!isPictureSize(std::int64_t{wanted} * own->count, wanted))
        return std::nullopt;
    return scaledStrip(*own, {wanted, wanted});
}

CImageStrips::CImageStrips()
    : m_state(std::make_shared<State>())
{
}

CImageStrips::CImageStrips(std::vector<Strip> strips, int imageSize)
    : CImageStrips()
{
    m_state->strips = std::move(strips);
    m_state->imageSize = imageSize;
}

CImageStrips::CImageStrips(Drawing draw, int imageSize)
    : CImageStrips()
{
    m_state->draw = std::move(draw);
    m_state->imageSize = imageSize;
}

CImageStrips::~CImageStrips()
{
    if (m_state && m_state->watch)
        m_state->watch->stop();
}

CImageStrips::CImageStrips(CImageStrips&& other) noexcept
    : CImageStrips()
{
    std::swap(m_state, other.m_state);
}

CImageStrips& CImageStrips::operator=(CImageStrips&& other) noexcept
{
    std::swap(m_state, other.m_state);
    return *this;
}

void CImageStrips::UseDisabledImages(bool use)
{
    m_state->usesDisabled = use;
}

BOOL CImageStrips::Load(int dotsPerInch)
{
    const std::shared_ptr<State> state = m_state; // the drawing may destroy this object
    const int size = atResolution(state->imageSize, dotsPerInch);
    const bool complete = state->lists && (!state->usesDisabled || state->lists->disabled.GetSafeHandle());
    return (complete && size == state->size) || state->load(size);
}

BOOL CImageStrips::Load(const CWnd& window)
{
    return Load(resolutionOf(window.m_hWnd));
}

BOOL CImageStrips::Reload()
{
    const std::shared_ptr<State> state = m_state;
    return state->load(state->size);
}

int CImageStrips::GetSize() const
{
    return m_state->size;
}

CImageList* CImageStrips::ImageList()
{
    return m_state->lists ? m_state->lists->images.ImageList() : nullptr;
}

HIMAGELIST CImageStrips::GetImageList() const
{
    return m_state->lists ? m_state->lists->images.GetImageList() : nullptr;
}

HIMAGELIST CImageStrips::GetDisabledImageList() const
{
    return m_state->lists ? m_state->lists->disabled.GetSafeHandle() : nullptr;
}

BOOL CImageStrips::Follow(CWnd& window, std::function<void()> changed)
{
    if (m_state->watch)
        m_state->watch->stop();
    const auto heard = [weak = std::weak_ptr(m_state), changed = std::move(changed)](int dotsPerInch) {
        const std::shared_ptr<State> state = weak.lock();
        if (!state)
            return;
        const LoadedImages loaded{state->imageSize, state->size, state->goesByColours()};
        const std::optional<int> size = sizeAfterChange(dotsPerInch, loaded);
        const std::shared_ptr<ResolutionWatch> watch = state->watch; // the drawing may end it
        if (size && state->load(*size) && changed && !watch->isStopped())
            changed();
    };
    m_state->watch = ResolutionWatch::begin(window.m_hWnd, heard);
    return m_state->watch != nullptr;
}
