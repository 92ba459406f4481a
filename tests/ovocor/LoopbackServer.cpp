#include "LoopbackServer.h"

#include <winsock2.h>

#include <stdexcept>
#include <type_traits>

static_assert(std::is_same_v<SocketHandle, SOCKET>);

namespace
{

std::string readHead(SOCKET client)
{
    std::string head;
    char piece[1024];
    while (head.find("\r\n\r\n") == head.npos) {
        const int got = ::recv(client, piece, sizeof piece, 0);
        if (got <= 0)
            break;
        head.append(piece, static_cast<std::size_t>(got));
    }
    return head;
}

void sendAll(SOCKET client, const std::string& bytes)
{
    std::size_t sent = 0;
    while (sent < bytes.size()) {
        const int got = ::send(client, bytes.data() + sent, static_cast<int>(bytes.size() - sent), 0);
        if (got <= 0)
            return;
        sent += static_cast<std::size_t>(got);
    }
}

std::string pathOf(const std::string& head)
{
    const std::size_t begin = head.find(' ') + 1;
    return head.substr(begin, head.find(' ', begin) - begin);
}

} // namespace

Winsock::Winsock()
{
    WSADATA data{};
    if (::WSAStartup(MAKEWORD(2, 2), &data) != 0)
        throw std::runtime_error("no sockets");
}

Winsock::~Winsock()
{
    ::WSACleanup();
}

LoopbackPort::LoopbackPort()
    : m_socket(::socket(AF_INET, SOCK_STREAM, IPPROTO_TCP))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
    int size = sizeof address;
    if (::bind(m_socket, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
        ::getsockname(m_socket, reinterpret_cast<sockaddr*>(&address), &size) != 0)
        throw std::runtime_error("no port on the loopback address");
    m_number = ::ntohs(address.sin_port);
}

LoopbackPort::~LoopbackPort()
{
    ::closesocket(m_socket);
}

std::wstring LoopbackPort::address(const std::wstring& path) const
{
    return L"http://127.0.0.1:" + std::to_wstring(m_number) + path;
}

LoopbackServer::LoopbackServer()
{
    if (::listen(socket(), SOMAXCONN) != 0)
        throw std::runtime_error("the port cannot be listened on");
    m_thread = std::thread([this] { serve(); });
}

LoopbackServer::~LoopbackServer()
{
    // A request of our own ends the thread.
    const SOCKET client = ::socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in address{};
    int size = sizeof address;
    ::getsockname(socket(), reinterpret_cast<sockaddr*>(&address), &size);
    ::connect(client, reinterpret_cast<sockaddr*>(&address), size);
    sendAll(client, "END / HTTP/1.0\r\n\r\n");
    m_thread.join();
    ::closesocket(client);
}

void LoopbackServer::answer(const std::string& path, const std::string& bytes)
{
    const std::lock_guard lock(m_mutex);
    m_answers[path] = bytes;
}

void LoopbackServer::stream(const std::string& path, std::function<std::string()> next)
{
    const std::lock_guard lock(m_mutex);
    m_streams[path] = std::move(next);
}

std::string LoopbackServer::page(const std::string& status, const std::string& body)
{
    return "HTTP/1.1 " + status + "\r\nContent-Type: text/plain\r\nConnection: close\r\nContent-Length: " +
           std::to_string(body.size()) + "\r\n\r\n" + body;
}

std::vector<std::string> LoopbackServer::requests() const
{
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

void LoopbackServer::serve()
{
    while (true) {
        const SOCKET client = ::accept(socket(), nullptr, nullptr);
        if (client == INVALID_SOCKET)
            return;
        const std::string head = readHead(client);
        if (!head.starts_with("END "))
            handle(client, head);
        // The end of the answer is sent before the socket goes, so that nothing of it is lost.
        ::shutdown(client, SD_SEND);
        ::closesocket(client);
        if (head.starts_with("END "))
            return;
    }
}

void LoopbackServer::handle(SocketHandle client, const std::string& head)
{
    std::string bytes = page("404 Not Found", "nothing here");
    std::function<std::string()> next;
    {
        const std::lock_guard lock(m_mutex);
        m_requests.push_back(head);
        if (const auto found = m_streams.find(pathOf(head)); found != m_streams.end())
            next = found->second;
        if (const auto found = m_answers.find(pathOf(head)); found != m_answers.end())
            bytes = found->second;
    }
    if (!next)
        return sendAll(client, bytes);
    while (bytes = next(), !bytes.empty())
        sendAll(client, bytes);
}
