// The check for mail.
#pragma once

// Asks the server and shows each of its replies in a box, which goes on when the user has
// answered it; a reply that reads as mail makes the mail's state kMailSeen. A check that
// fails says so and stops all further ones. Nothing happens while they are stopped.
void MailCheck();
