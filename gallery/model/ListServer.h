// A web server on the loopback address, for the update lists of the gallery.
#pragma once

#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>

/// Answers every request with the answer that is set, on a thread of its own.
class ListServer
{
public:
    enum class Manner
    {
        AtOnce,
        CutShort, ///< announces more than it sends
        Slowly,   ///< a piece at a time
        Never     ///< keeps the connection and says nothing
    };

    ListServer();
    ~ListServer();
    ListServer(const ListServer&) = delete;
    ListServer& operator=(const ListServer&) = delete;

    /// The address of the list; empty when there is no loopback network.
    std::wstring address() const;

    /// `status` is such as "200 OK".
    void answer(const std::string& status, const std::string& body, Manner manner);

private:
    using Socket = std::uintptr_t;
    struct Answer
    {
        std::string status = "200 OK";
        std::string body;
        Manner manner = Manner::AtOnce;
    };

    void serve();
    void handle(Socket client);
    void send(Socket client, const Answer& answer);
    bool waitALittle(Socket client) const;
    Answer current() const;

    Socket m_socket;
    unsigned short m_port = 0;
    std::atomic<bool> m_ending = false;
    mutable std::mutex m_mutex;
    Answer m_answer;
    std::thread m_thread;
};
