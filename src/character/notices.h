// What a walk opens at its end in place of the balloon. The mail, whose notice it is,
// defines it.
#pragma once

// Opens the mail notice, FlyingBat2X, unless it is up: under the end picture of the
// mail's walk, or at the screen's corner if nobody walked.
void MailNoticeOpen();
