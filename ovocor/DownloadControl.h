/// Watching a download, and ending it before its time.
#pragma once

#include <ovocor/OvoError.h>
#include <ovocor/export.h>

#include <atomic>
#include <cstdint>

namespace OVO
{
class ControlledRequest;
}

/// Belongs to one download at a time. Everything in it may be called from any thread.
class OVOCOR_API DownloadControl
{
public:
    DownloadControl();
    DownloadControl(const DownloadControl&) = delete;
    DownloadControl& operator=(const DownloadControl&) = delete;
    virtual ~DownloadControl();

    /// Ends the running download, however long its server is silent, and every later one with this object:
    /// they throw DownloadCancelled.
    void cancel() noexcept;
    /// Whether `cancel` was called.
    bool cancelled() const noexcept { return m_cancelled; }

    /// Bytes that have come so far.
    std::uint64_t received() const noexcept { return m_received; }
    /// Bytes that the server has announced; 0 while that is not known.
    std::uint64_t expected() const noexcept { return m_expected; }

    /// Called by the download, on its thread, when it has got more.
    virtual void progressed() {}

private:
    friend class OVO::ControlledRequest;

    std::atomic<bool> m_cancelled = false;
    std::atomic<void*> m_request = nullptr; ///< closed by the thread that takes it out of here
    std::atomic<std::uint64_t> m_received = 0;
    std::atomic<std::uint64_t> m_expected = 0;
};

/// A download was cancelled.
class OVOCOR_API DownloadCancelled : public OvoError
{
public:
    DownloadCancelled();
    DownloadCancelled(const DownloadCancelled&) noexcept;
    DownloadCancelled& operator=(const DownloadCancelled&) noexcept;
    ~DownloadCancelled() override;
};
