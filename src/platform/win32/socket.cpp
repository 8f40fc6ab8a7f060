#include <winsock2.h>

#include "platform/socket.h"

#include "platform/win32/border.h"

int SocketConnect(const char* host, int port) {
  WSADATA data{};
  if (WSAStartup(MAKEWORD(2, 2), &data) != 0) return -1;
  const hostent* entry = gethostbyname(host);
  if (!entry || entry->h_addrtype != AF_INET) {
    WSACleanup();
    return -2;
  }
  const SOCKET made = ::socket(AF_INET, SOCK_STREAM, 0);
  if (made == INVALID_SOCKET) {
    WSACleanup();
    return -3;
  }
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<u_short>(port));
  address.sin_addr = *reinterpret_cast<const in_addr*>(entry->h_addr_list[0]);
  if (connect(made, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    closesocket(made);
    WSACleanup();
    return -4;
  }
  return static_cast<int>(made);
}

int SocketSend(int socket, const char* data, int size) {
  return send(static_cast<SOCKET>(socket), data, size, 0);
}

int SocketReceive(int socket, char* buffer, int size) {
  return recv(static_cast<SOCKET>(socket), buffer, size, 0);
}

void SocketClose(int socket) {
  if (socket == kNoSocket) return;
  closesocket(static_cast<SOCKET>(socket));
  WSACleanup();
}
