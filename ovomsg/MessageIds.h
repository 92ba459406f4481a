/// Numbers of the catalogue's messages. Hosts know them: never renumbered, never used again.
#pragma once

/// The comment names the arguments of the printf format, all of them wide strings.
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
};
