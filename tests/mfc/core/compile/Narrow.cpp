// Compiled with and without the two macros of a Unicode program: without, the header says what is missing.
#include <afxwin.h>
