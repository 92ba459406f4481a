#include <ovoui/files/core/DialogFlags.h>

namespace ovoui
{
namespace
{

// The platform's values
constexpr unsigned kOverwritePrompt = 0x2;
constexpr unsigned kHideReadOnly = 0x4;
constexpr unsigned kNoChangeDir = 0x8;
constexpr unsigned kAllowMultiSelect = 0x200;
constexpr unsigned kPathMustExist = 0x800;
constexpr unsigned kFileMustExist = 0x1000;
constexpr unsigned kShareAware = 0x4000;
constexpr unsigned kExplorer = 0x80000;

constexpr unsigned kAlways = kHideReadOnly | kNoChangeDir | kPathMustExist | kShareAware;

} // namespace

unsigned dialogFlags(const FileWish& wish)
{
    return kAlways | (wish.mustExist ? kFileMustExist : 0) | (wish.saves ? kOverwritePrompt : 0) |
           (wish.several ? kAllowMultiSelect | kExplorer : 0);
}

} // namespace ovoui
