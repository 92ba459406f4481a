// Labels of the message box's buttons: for the string table, and for the box in case that a string is missing there.
#pragma once

#define BUTTON_LABEL_ABORT "&Abort"
#define BUTTON_LABEL_OK "OK"
#define BUTTON_LABEL_CANCEL "Cancel"
#define BUTTON_LABEL_RETRY "&Retry"
#define BUTTON_LABEL_IGNORE "&Ignore"
#define BUTTON_LABEL_YES "&Yes"
#define BUTTON_LABEL_NO "&No"
#define BUTTON_LABEL_YES_TO_ALL "Yes to &All"
#define BUTTON_LABEL_NO_TO_ALL "N&o to All"
#define BUTTON_LABEL_HELP "&Help"
