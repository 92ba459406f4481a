/// Numbers of the catalogue's messages. Hosts know them: never renumbered, never used again.
#pragma once

/// The comment names the arguments of the printf format, wide strings unless it says otherwise.
enum OvoMessageId : unsigned
{
    OVOMSG_URL_SCHEME = 277,             ///< an address that is not http, https or ftp: the address
    OVOMSG_URL_INVALID = 278,            ///< an address that cannot be taken apart: the address, the reason
    OVOMSG_URL_NOT_OPENED = 279,         ///< an address that the shell cannot open: the address, the reason
    OVOMSG_UPDATE_LIST_INCOMPLETE = 281, ///< a row without a required column: the list's address
    OVOMSG_UPDATE_LIST_NOT_SECURE =
        301, ///< a signed list was asked for at an address without https: the address
    OVOMSG_UPDATE_LIST_UNSIGNED = 302, ///< no signature, or none that can be read: the list's address
    OVOMSG_UPDATE_LIST_ALTERED = 303,  ///< the signature does not fit: the list's address
    OVOMSG_UPDATE_LIST_OLD = 304,      ///< older than a list that was seen before: the list's address
    OVOMSG_UPDATE_LIST_NOT_READ = 305, ///< a downloaded list that cannot be read; the system's reason follows
    OVOMSG_FILE_NOT_OPENED = 311,  ///< a file that cannot be opened: its path; the system's reason follows
    OVOMSG_FILE_NOT_READ = 312,    ///< a file that cannot be read: its path; the system's reason follows
    OVOMSG_CLIPBOARD_BUSY = 313,   ///< nothing could be copied, since another program has the clipboard
    OVOMSG_CLIPBOARD_NO_OLE = 314, ///< the same, since the host has not started OLE; the reason follows
    OVOMSG_DOWNLOAD_FAILED =
        321, ///< a download that failed: the address, the reason, which is one of those that follow
    OVOMSG_DOWNLOAD_SCHEME = 322,    ///< reason: the address is neither http nor https
    OVOMSG_DOWNLOAD_NO_SERVER = 323, ///< reason: the address has no server
    OVOMSG_DOWNLOAD_CUT =
        324, ///< reason: an answer cut short: bytes received, bytes announced (unsigned 64-bit)
    OVOMSG_DOWNLOAD_ANSWER =
        325, ///< reason: the server does not give the file: its name, its answer, what can be done
    OVOMSG_DOWNLOAD_DENIED = 326,        ///< what can be done: access denied
    OVOMSG_DOWNLOAD_NOT_FOUND = 327,     ///< what can be done: no such file
    OVOMSG_DOWNLOAD_SERVER_ERROR = 328,  ///< what can be done: the server's own error
    OVOMSG_DOWNLOAD_REFUSED = 329,       ///< what can be done: any other answer
    OVOMSG_DOWNLOAD_INVALID = 330,       ///< reason: not an address
    OVOMSG_DOWNLOAD_NOT_RESOLVED = 331,  ///< reason: no such server: its name
    OVOMSG_DOWNLOAD_NOT_CONNECTED = 332, ///< reason: no connection: the server's name
    OVOMSG_DOWNLOAD_TIMEOUT = 333,       ///< reason: no answer in time: the server's name
    OVOMSG_DOWNLOAD_LOST = 334,          ///< reason: the connection ended: the server's name
    OVOMSG_DOWNLOAD_CERTIFICATE = 335,   ///< reason: the certificate: the server's name, the system's reason
    OVOMSG_DOWNLOAD_CANCELLED = 336,     ///< a download that was cancelled
    OVOMSG_ADDRESS_INVALID =
        337, ///< an address that cannot be brought into its usual form: the address, the reason
    OVOMSG_CACHE_NOT_WRITTEN =
        338,               ///< a file of the download cache: the address; the system's reason follows
    OVOMSG_CSV_LINE = 351, ///< a text that cannot be taken apart: the line's number, the reason, which is one
                           ///< of those that follow
    OVOMSG_CSV_QUOTE_CONTINUES = 352, ///< reason: text behind a field in quotation marks
    OVOMSG_CSV_QUOTE_INSIDE = 353,    ///< reason: a quotation mark in a plain field
    OVOMSG_CSV_QUOTE_OPEN = 354,      ///< reason: the text ends in quotation marks
    OVOMSG_CSV_NO_COLUMNS = 355,      ///< a header without names of columns
    OVOMSG_CSV_HEADER_ROWS = 356,     ///< a header of several rows
    OVOMSG_NUMBER_RANGE = 361,        ///< a number that does not fit its type
    OVOMSG_SVG_NOT_WELL_FORMED = 362, ///< a drawing that is no well-formed XML: line and column
    OVOMSG_SVG_NOT_SVG = 363,         ///< a file that is no drawing: its outermost element
    OVOMSG_SVG_TOO_LARGE = 364,       ///< a drawing that is beyond the limits as a whole
    OVOMSG_SVG_TOO_INTRICATE = 365,   ///< a drawing that is beyond a limit at a line and column
};
