// Stream sockets of the mail client; blocking.
#pragma once

inline constexpr int kNoSocket = -1;

// Gets the network ready, and lets go of it; as often the one as the other. False when
// it cannot start.
bool SocketsStart();
void SocketsEnd();

// Connects to a host's first address by name and port. Returns the socket; -2 the host
// is unknown, -3 no socket, -4 no connection.
int SocketConnect(const char* host, int port);

// Bytes sent or received, 0 at the end of the stream, -1 on failure. What is received
// is what one call of the system gives, however little that is.
int SocketSend(int socket, const char* data, int size);
int SocketReceive(int socket, char* buffer, int size);

// Closes the socket; kNoSocket is accepted.
void SocketClose(int socket);
