#include "platform/socket.h"

#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <cstring>
#include <map>

#include "platform/posix/faults.h"
#include "platform/posix/test_network.h"

namespace {
std::map<int, int> ports;  // told, real
std::atomic<int> receives{0};
}  // namespace

void TestPortSet(int told, int real) {
  ports[told] = real;
  if (real == 0) ports.erase(told);
}

int TestReceivesBegun() {
  return receives;
}

bool SocketsStart() {
  return !FaultMeets(FaultKind::Socket);
}

void SocketsEnd() {}

int SocketConnect(const char* host, int port) {
  addrinfo wanted{};
  wanted.ai_family = AF_INET;
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  if (FaultMeets(FaultKind::Socket)) return -2;
  if (getaddrinfo(host, nullptr, &wanted, &found) != 0 || !found) return -2;
  sockaddr_in address{};
  std::memcpy(&address, found->ai_addr, sizeof address);
  freeaddrinfo(found);
  address.sin_port = htons(static_cast<std::uint16_t>(ports.contains(port) ? ports[port] : port));
  if (FaultMeets(FaultKind::Socket)) return -3;
  const int handle = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (handle < 0) return -3;
  if (FaultMeets(FaultKind::Socket) ||
      connect(handle, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    close(handle);
    return -4;
  }
  return handle;
}

int SocketSend(int socket, const char* data, int size) {
  if (socket < 0 || size < 0 || FaultMeets(FaultKind::Socket)) return -1;
  return static_cast<int>(send(socket, data, static_cast<std::size_t>(size), MSG_NOSIGNAL));
}

int SocketReceive(int socket, char* buffer, int size) {
  if (socket < 0 || size < 0 || FaultMeets(FaultKind::Socket)) return -1;
  ++receives;
  return static_cast<int>(recv(socket, buffer, static_cast<std::size_t>(size), 0));
}

void SocketClose(int socket) {
  if (socket >= 0) close(socket);
}
