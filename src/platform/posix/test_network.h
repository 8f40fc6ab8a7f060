// The network of the native build, as tests arrange it.
#pragma once

// From now on a connection to port `told` goes to `real`; `real` 0 takes that back.
void TestPortSet(int told, int real);

// How many calls of SocketReceive have begun, ever. May be asked from another thread: a
// server that waits for the next one knows that what it sends is received by itself.
int TestReceivesBegun();
