// Values for the debugger to show.
#include <ovocor/Angle.h>
#include <ovocor/Colour.h>
#include <ovocor/Handle.h>
#include <ovocor/Quark.h>

namespace
{

struct Place : OVO::Handlable
{
};

struct Folder : Place
{
    int files = 3;
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
    for (const void* value : {static_cast<const void*>(&warm), static_cast<const void*>(&glass),
                              static_cast<const void*>(&quarter), static_cast<const void*>(&quark),
                              static_cast<const void*>(&noQuark), static_cast<const void*>(&folder),
                              static_cast<const void*>(&same), static_cast<const void*>(&nothing)})
        stopHere(value);
}
