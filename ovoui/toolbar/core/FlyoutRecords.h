/// Which buttons of a bar carry a flyout, and what is in it. Plain values, no windows.
#pragma once

#include <ovocor/Quark.h>

#include <cstddef>
#include <vector>

namespace ovoui::toolbar
{

/// The flyout of one button: buttons of a toolbar resource, or a list of commands.
struct FlyoutRecord
{
    bool hasFlyout = false;
    bool captioned = false; ///< its window has a grip across its top
    int toolbarId = 0;      ///< the toolbar resource; 0: a list of commands
    int bitmapSize = 0;     ///< width and height of an image, in pixels

    std::vector<int> buttonIndices; ///< of the resource's buttons, separators counted

    // One element for each command of the list
    std::vector<int> commands;
    std::vector<int> bitmapIds; ///< the strip that holds the command's image
    std::vector<int> images;    ///< among the bar's images
    std::vector<Quark> names;

    void* imageList = nullptr; ///< the bar's when the commands were attached; never owned

    bool fromResource() const { return toolbarId != 0; }

    friend bool operator==(const FlyoutRecord&, const FlyoutRecord&) = default;
};

/// The image that the bar's button gets with a chosen entry; `present` when the record names none.
int imageOfEntry(const FlyoutRecord& record, int entry, int present);

/// Counts each image of a list of commands from where its strip begins: `offsetOf(strip)` tells.
template <class OffsetOf>
void countFromStrips(FlyoutRecord& record, const OffsetOf& offsetOf)
{
    for (std::size_t i = 0; i < record.commands.size() && i < record.images.size(); ++i)
        record.images[i] += offsetOf(i < record.bitmapIds.size() ? record.bitmapIds[i] : 0);
}

/// The records of a bar by the index of their button. Buttons behind the last record have no flyout.
class FlyoutRecords
{
public:
    /// Raises IntCastError for more records than an int can count.
    int count() const;

    /// Null for a button without a flyout.
    const FlyoutRecord* find(int button) const;

    /// Replaces the record of a button; those up to it come into being. `button` must not be negative.
    void set(int button, FlyoutRecord record);

    /// The button has no flyout from now on; nothing happens behind the last record.
    void clear(int button);
    void clearAll();

    /// Inserts an empty record. False, and nothing is done, behind the last record.
    bool insert(int button);
    /// The later ones move down; nothing happens behind the last record.
    void erase(int button);

    /// For flyouts that are lists of commands.
    void setBitmapSize(int size);
    void replaceImageList(const void* before, void* after);

private:
    bool isIndex(int button) const;

    std::vector<FlyoutRecord> m_records;
};

/// Raises IntCastError when the number does not fit.
int toCount(std::size_t size);

} // namespace ovoui::toolbar
