// The mail notice, as the start, the tick and the shutdown meet it.
#pragma once

#include <cstdint>

#include "platform/socket.h"
#include "platform/types.h"

// MailPhase; 1 is a check that is wanted.
inline constexpr std::int32_t kMailWalking = 2;
inline constexpr std::int32_t kMailAlone = 3;  // the walk could not start

struct MailState {
  std::int32_t MailInterval = 0;  // units of 6000 ticks between two checks
  int MailSocket = kNoSocket;
  int MailSocketSecond = kNoSocket;
  int MailSocketThird = kNoSocket;
  WindowHandle hMailNoticeWnd = nullptr;  // FlyingBat2X
  bool MailCheckOn = false;
  std::int32_t MailNoticeFlag = 0;  // 1: a mail has come, its walk is wanted
  std::int32_t MailPhase = 0;       // 0: none
  std::int32_t MailTickCount = 0;   // up to 6000: one unit of the mail interval
  std::int32_t MailMinuteCount = 0;
};
extern MailState Mail;

// The settings file is written and never read: at the start there is nothing to
// read. Returns 0.
int MailSettingsRead();

// Closes the sockets that are open.
void MailSocketsClose();
