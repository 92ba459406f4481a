// Ids of the dialogs that the tests of the frame bring along.
#define IDD_ERROR_DIALOG 301
