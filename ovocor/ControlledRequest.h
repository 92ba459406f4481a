/// Not exported. A request of WinINet that another thread may end.
#pragma once

#include <ovocor/DownloadControl.h>
#include <ovocor/WinInet.h>

#include <cstdint>

namespace OVO
{

/// Owns the request's handle together with the control: the one that takes it out of the control closes it.
class ControlledRequest
{
public:
    ControlledRequest(HINTERNET request, DownloadControl& control)
        : m_request(request)
        , m_control(control)
    {
        m_control.m_received = 0;
        m_control.m_expected = 0;
        m_control.m_request = request;
        throwIfCancelled(); // the control may have been cancelled before it knew the request
    }
    ControlledRequest(const ControlledRequest&) = delete;
    ControlledRequest& operator=(const ControlledRequest&) = delete;
    ~ControlledRequest() { close(); }

    HINTERNET get() const { return m_request; }

    void expect(std::uint64_t size) { m_control.m_expected = size; }
    /// Throws DownloadCancelled.
    void receive(std::uint64_t total)
    {
        m_control.m_received = total;
        m_control.progressed();
        throwIfCancelled();
    }

private:
    void close()
    {
        if (void* const request = m_control.m_request.exchange(nullptr))
            WinInet::get().closeHandle(request);
    }
    void throwIfCancelled()
    {
        if (m_control.cancelled()) {
            close(); // the destructor is not called when the constructor throws
            throw DownloadCancelled();
        }
    }

    HINTERNET m_request;
    DownloadControl& m_control;
};

} // namespace OVO
