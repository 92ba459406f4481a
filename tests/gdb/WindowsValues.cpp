// What objects of the framework and of the tree look like in memory, for the debugger to show without a
// process.
#include <ovoui/tree/MultiTreeCtrl.h>
#include <ovoui/tree/TreeNode.h>

class FolderNode : public MultiTreeCtrl::Node
{
public:
    int files;
};

extern "C" {
const wchar_t* aString = L"Größe";
const wchar_t* emptyString = L"";

struct
{
    void* placeTable;
    void* handlableTable;
    int references;
    const void* item;
    unsigned state;
    int children, files;
} aNode = {nullptr, nullptr, 1, &aString, TVIS_SELECTED | TVIS_EXPANDED, 1, 7}, loneNode = {};
}

static_assert(sizeof(FolderNode) == sizeof aNode && sizeof(CString) == sizeof aString);

// Makes the compiler describe the classes.
void describe(CString&, FolderNode&) {}

int main() {}
