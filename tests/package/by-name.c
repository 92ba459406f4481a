// A program of another compiler, with another ABI for classes: it calls the library by the names in the list of exports, which
// stand in the import library. Arguments that are numbers and pointers are passed in the same way by both.
typedef struct
{
    long left, top, right, bottom;
} Rect;

void _Z17EnsureRectVisibleR7tagRECT(Rect* rect);
__declspec(dllimport) void ExitProcess(unsigned code);

int main(void)
{
    Rect rect = {-50, -50, 50, 50};
    _Z17EnsureRectVisibleR7tagRECT(&rect);
    return rect.left == 0 && rect.top == 0 && rect.right == 100 && rect.bottom == 100 ? 0 : 1;
}

// Where a program begins that has no runtime to call main.
void begin(void)
{
    ExitProcess((unsigned)main());
}
