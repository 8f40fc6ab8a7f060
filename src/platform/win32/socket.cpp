#include <winsock2.h>

#include "platform/socket.h"

#include "platform/win32/border.h"
#include "platform/win32/late.h"

namespace {

// The socket library, bound at first use.
struct Library {
  decltype(::WSAStartup)* startup = LateFind<decltype(::WSAStartup)>(L"ws2_32.dll", "WSAStartup");
  decltype(::WSACleanup)* cleanup = LateFind<decltype(::WSACleanup)>(L"ws2_32.dll", "WSACleanup");
  decltype(::gethostbyname)* hostByName = LateFind<decltype(::gethostbyname)>(L"ws2_32.dll", "gethostbyname");
  decltype(::socket)* socket = LateFind<decltype(::socket)>(L"ws2_32.dll", "socket");
  decltype(::connect)* connect = LateFind<decltype(::connect)>(L"ws2_32.dll", "connect");
  decltype(::send)* send = LateFind<decltype(::send)>(L"ws2_32.dll", "send");
  decltype(::recv)* receive = LateFind<decltype(::recv)>(L"ws2_32.dll", "recv");
  decltype(::closesocket)* close = LateFind<decltype(::closesocket)>(L"ws2_32.dll", "closesocket");

  bool IsWhole() const {
    return startup && cleanup && hostByName && socket && connect && send && receive && close;
  }
};

const Library& Sockets() {
  static const Library library;
  return library;
}

u_short NetworkOrder(int port) {
  return static_cast<u_short>(((port & 255) << 8) | ((port >> 8) & 255));
}

}  // namespace

bool SocketsStart() {
  WSADATA data{};
  return Sockets().IsWhole() && Sockets().startup(MAKEWORD(1, 1), &data) == 0;
}

void SocketsEnd() {
  if (Sockets().IsWhole()) Sockets().cleanup();
}

int SocketConnect(const char* host, int port) {
  const Library& sockets = Sockets();
  const hostent* entry = sockets.IsWhole() ? sockets.hostByName(host) : nullptr;
  if (!entry || entry->h_addrtype != AF_INET) return -2;
  const SOCKET made = sockets.socket(AF_INET, SOCK_STREAM, 0);
  if (made == INVALID_SOCKET) return -3;
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = NetworkOrder(port);
  address.sin_addr = *reinterpret_cast<const in_addr*>(entry->h_addr_list[0]);
  if (sockets.connect(made, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    sockets.close(made);
    return -4;
  }
  return static_cast<int>(made);
}

int SocketSend(int socket, const char* data, int size) {
  if (socket == kNoSocket) return -1;
  return Sockets().send(static_cast<SOCKET>(socket), data, size, 0);
}

int SocketReceive(int socket, char* buffer, int size) {
  if (socket == kNoSocket) return -1;
  return Sockets().receive(static_cast<SOCKET>(socket), buffer, size, 0);
}

void SocketClose(int socket) {
  if (socket != kNoSocket) Sockets().close(static_cast<SOCKET>(socket));
}
