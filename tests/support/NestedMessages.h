/// How deep messages can be sent from within messages.
///
/// Wine lets them be some 60 deep. An exception that flies through its code, on the way from a window
/// procedure to who has sent the message, takes one of them for as long as the thread lives.
#pragma once

/// So many, at most 100.
int nestedMessages();
