#include <ovocor/DownloadControl.h>

#include <ovocor/WinInet.h>
#include <ovomsg/ovomsg.h>

DownloadControl::DownloadControl() = default;
DownloadControl::~DownloadControl() = default;

/// A call that waits for the server returns with an error when its request is closed.
void DownloadControl::cancel() noexcept
{
    m_cancelled = true;
    if (void* const request = m_request.exchange(nullptr))
        OVO::WinInet::get().closeHandle(request);
}

DownloadCancelled::DownloadCancelled()
    : OvoError(ovoMsg(OVOMSG_DOWNLOAD_CANCELLED))
{
}

DownloadCancelled::DownloadCancelled(const DownloadCancelled&) noexcept = default;
DownloadCancelled& DownloadCancelled::operator=(const DownloadCancelled&) noexcept = default;
DownloadCancelled::~DownloadCancelled() = default;
