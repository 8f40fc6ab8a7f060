// Stream sockets of the mail client; blocking.
#pragma once

inline constexpr int kNoSocket = -1;

// Connects to a host by name and port. Returns the socket; -1 the network
// cannot start, -2 the host is unknown, -3 no socket, -4 no connection.
int SocketConnect(const char* host, int port);

// Bytes sent or received, 0 at the end of the stream, -1 on failure.
int SocketSend(int socket, const char* data, int size);
int SocketReceive(int socket, char* buffer, int size);

// Closes the socket; kNoSocket is accepted.
void SocketClose(int socket);
