#include <winsock2.h>

#include "ListServer.h"

#include <algorithm>

namespace
{

constexpr std::size_t kSlowPiece = 64 * 1024;
constexpr int kPause = 100; // milliseconds

SOCKET listeningSocket(unsigned short& port)
{
    const SOCKET result = ::socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
    int size = sizeof address;
    if (::bind(result, reinterpret_cast<sockaddr*>(&address), size) == 0 &&
        ::getsockname(result, reinterpret_cast<sockaddr*>(&address), &size) == 0 &&
        ::listen(result, SOMAXCONN) == 0)
        port = ::ntohs(address.sin_port);
    return result;
}

/// Whether there is something to read, or the other side has gone, within the pause.
bool readable(SOCKET socket)
{
    fd_set sockets;
    FD_ZERO(&sockets);
    FD_SET(socket, &sockets);
    timeval pause{0, kPause * 1000};
    return ::select(0, &sockets, nullptr, nullptr, &pause) > 0;
}

bool sendAll(SOCKET client, const char* bytes, std::size_t size)
{
    while (size > 0) {
        const int sent = ::send(client, bytes, static_cast<int>(size), 0);
        if (sent <= 0)
            return false;
        bytes += sent;
        size -= static_cast<std::size_t>(sent);
    }
    return true;
}

} // namespace

ListServer::ListServer()
{
    WSADATA data{};
    ::WSAStartup(MAKEWORD(2, 2), &data);
    m_socket = listeningSocket(m_port);
    if (m_port != 0)
        m_thread = std::thread([this] { serve(); });
}

ListServer::~ListServer()
{
    m_ending = true;
    if (m_thread.joinable())
        m_thread.join();
    ::closesocket(m_socket);
    ::WSACleanup();
}

std::wstring ListServer::address() const
{
    return m_port == 0 ? std::wstring() : L"http://127.0.0.1:" + std::to_wstring(m_port) + L"/updates.csv";
}

void ListServer::answer(const std::string& status, const std::string& body, Manner manner)
{
    const std::lock_guard lock(m_mutex);
    m_answer = {status, body, manner};
}

ListServer::Answer ListServer::current() const
{
    const std::lock_guard lock(m_mutex);
    return m_answer;
}

void ListServer::serve()
{
    while (!m_ending) {
        if (!readable(m_socket))
            continue;
        const SOCKET client = ::accept(m_socket, nullptr, nullptr);
        if (client == INVALID_SOCKET)
            continue;
        handle(client);
        ::shutdown(client, SD_SEND);
        ::closesocket(client);
    }
}

void ListServer::handle(Socket client)
{
    std::string head;
    char piece[1024];
    while (head.find("\r\n\r\n") == std::string::npos) {
        if (m_ending)
            return;
        if (!readable(client))
            continue;
        const int got = ::recv(client, piece, sizeof piece, 0);
        if (got <= 0)
            return;
        head.append(piece, static_cast<std::size_t>(got));
    }
    send(client, current());
}

void ListServer::send(Socket client, const Answer& answer)
{
    while (answer.manner == Manner::Never)
        if (!waitALittle(client))
            return;
    const std::size_t announced = answer.body.size() * (answer.manner == Manner::CutShort ? 2 : 1);
    const std::string all = "HTTP/1.1 " + answer.status +
                            "\r\nConnection: close\r\nContent-Length: " + std::to_string(announced) +
                            "\r\n\r\n" + answer.body;
    if (answer.manner != Manner::Slowly) {
        sendAll(client, all.data(), all.size());
        return;
    }
    for (std::size_t at = 0; at < all.size(); at += kSlowPiece)
        if (!sendAll(client, all.data() + at, std::min(kSlowPiece, all.size() - at)) || !waitALittle(client))
            return;
}

/// False when the client has gone or the server is to end.
bool ListServer::waitALittle(Socket client) const
{
    char byte;
    return !m_ending && !(readable(client) && ::recv(client, &byte, 1, MSG_PEEK) <= 0);
}
