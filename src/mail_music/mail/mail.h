// The mail notice, as the start, the tick and the shutdown meet it.
#pragma once

#include <cstdint>

#include "platform/socket.h"
#include "platform/types.h"

struct MailState {
  std::int32_t MailInterval = 0;  // units of 6000 ticks between two checks
  int MailSocket = kNoSocket;
  int MailSocketSecond = kNoSocket;
  int MailSocketThird = kNoSocket;
  WindowHandle hMailNoticeWnd = nullptr;  // FlyingBat2X
  bool MailCheckOn = false;
  std::int32_t MailNoticeFlag = 0;  // 1: a mail has come, its walk is wanted
  std::int32_t MailTickCount = 0;   // up to 6000: one unit of the mail interval
  std::int32_t MailMinuteCount = 0;
  int MailFrame = 0;  // the picture of the notice
};
extern MailState Mail;

// The settings file is written and never read: at the start there is nothing to
// read. Returns 0.
int MailSettingsRead();

// Closes the sockets that are open.
void MailSocketsClose();

// A mail has come: the walking character brings the notice, or it opens at once. Sets
// the mail phase.
void MailNoticeStart();

// The next picture of the mail notice, and its repaint; nothing while it is closed.
void MailNoticeFrameStep();
