#include "mail_music/mail_music_commands.h"

#include "platform/window.h"
#include "shell/shell.h"

// The numbers are known and answered; their windows are not there yet, so all
// that is left of an entry is that the panel closes.
void MailMusicCommand(std::uint32_t) {
  SendClose(hDiskMenu);
  MenuPanelState = 0;
}
