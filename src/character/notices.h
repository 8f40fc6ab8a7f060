// The notice windows: small topmost windows in which an alarm character tells
// something.
#pragma once

// Opens the mail notice, FlyingBat2X: under the end picture of the mail's walk, or
// at the screen's corner if nobody walked. The caller has seen that hMailNoticeWnd
// is null.
void MailNoticeOpen();

// The next picture of the mail notice, and its repaint; nothing while it is closed.
void MailNoticeFrameStep();

// A mail has come: the walking character brings the notice, or it opens at once.
// Sets the opening state and the mail phase.
void MailNoticeStart();
