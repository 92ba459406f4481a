// Values for the debugger to show.
#include <ovocor/Angle.h>
#include <ovocor/Colour.h>
#include <ovocor/Handle.h>
#include <ovocor/Quark.h>
#include <ovocor/Vector.h>

namespace
{

struct Place : OVO::Handlable
{
};

struct Folder : Place
{
    int files = 3;
};

/// Counts nothing, and is no Handlable.
struct Ground : OVO::IHandlable
{
    void addRef() const noexcept override {}
    void release() const noexcept override {}
    int beds = 5;
};

void stopHere(const void*) {}

} // namespace

int main()
{
    const Colour warm = Colour::rgb(1, 0.5, 0);
    const Colour glass = Colour::rgba(0, 0, 0.2, 0.25);
    const Angle quarter = Angle::degrees(90);
    const Quark quark(L"Größe");
    const Quark noQuark;
    const OVO::Handle<Place> folder(new Folder);
    const OVO::Handle<Folder> same(static_cast<Folder*>(folder.get()));
    const OVO::Handle<Place> nothing;
    Ground ground;
    const OVO::Handle<Ground> uncounted(&ground);
    const Vector<3> vector(3, 2.5, -1);
    for (const void* value : {static_cast<const void*>(&warm), static_cast<const void*>(&glass),
                              static_cast<const void*>(&quarter), static_cast<const void*>(&quark),
                              static_cast<const void*>(&noQuark), static_cast<const void*>(&folder),
                              static_cast<const void*>(&same), static_cast<const void*>(&nothing),
                              static_cast<const void*>(&uncounted), static_cast<const void*>(&vector)})
        stopHere(value);
}
