// The mail notice, as the start, the tick and the shutdown meet it.
#pragma once

#include <cstdint>

extern std::int32_t MailInterval;  // units of 6000 ticks between two checks
extern int MailSocket;
extern int MailSocketSecond;
extern int MailSocketThird;

// The settings file is written and never read: at the start there is nothing to
// read. Returns 0.
int MailSettingsRead();

// Closes the sockets that are open.
void MailSocketsClose();
