/// A small HTTP server on the loopback address, on a thread of its own.
///
///     LoopbackServer server;
///     server.answer("/list.csv", LoopbackServer::page("200 OK", "a,b\n"));
///     downloadUrlToCache(server.address(L"/list.csv"));
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

/// A SOCKET; its header does not go together with windows.h in every order.
using SocketHandle = std::uintptr_t;

/// Winsock for the time of a scope.
class Winsock
{
public:
    Winsock();
    Winsock(const Winsock&) = delete;
    Winsock& operator=(const Winsock&) = delete;
    ~Winsock();
};

/// A TCP port of the loopback address, taken but not listened on: connections are refused.
class LoopbackPort
{
public:
    LoopbackPort();
    LoopbackPort(const LoopbackPort&) = delete;
    LoopbackPort& operator=(const LoopbackPort&) = delete;
    ~LoopbackPort();

    /// The http address of a path on this port.
    std::wstring address(const std::wstring& path) const;

protected:
    SocketHandle socket() const { return m_socket; }

private:
    Winsock m_winsock;
    SocketHandle m_socket;
    unsigned short m_number = 0;
};

/// Answers each request with the bytes set for its path, then closes the connection.
class LoopbackServer : public LoopbackPort
{
public:
    LoopbackServer();
    ~LoopbackServer();

    /// The bytes to send, status line and headers included, whatever they are.
    void answer(const std::string& path, const std::string& bytes);

    /// What `next` gives, piece by piece, until it gives an empty one. It is called on the server's thread,
    /// and may wait: then the server is silent.
    void stream(const std::string& path, std::function<std::string()> next);

    /// A complete answer with a Content-Length.
    static std::string page(const std::string& status, const std::string& body);

    /// The requests so far, first lines and headers.
    std::vector<std::string> requests() const;

private:
    void serve();
    void handle(SocketHandle client, const std::string& head);

    mutable std::mutex m_mutex;
    std::map<std::string, std::string> m_answers;
    std::map<std::string, std::function<std::string()>> m_streams;
    std::vector<std::string> m_requests;
    std::thread m_thread;
};
