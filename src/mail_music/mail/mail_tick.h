// The mail notification's steps of the tick.
#pragma once

#include "mail_music/mail/mail.h"
#include "services/tick_step.h"

// Begins the interval anew.
void MailResetInterval();

// While the notification is on: counts the interval, sends command 2079 at its end, and
// lets a mail that has come be told.
void MailTick();
int MailDue();
inline constexpr TickStep kMailStep{MailTick, MailDue};

int MailNoticeFrameDue();
inline constexpr TickStep kMailNoticeFrames{MailNoticeFrameStep, MailNoticeFrameDue};
