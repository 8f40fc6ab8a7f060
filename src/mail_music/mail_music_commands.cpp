#include "mail_music/mail_music_commands.h"

#include "services/panel_entry.h"

// The windows are not there yet: all that is left of an entry of the panel is that
// the panel closes. The other numbers are known, and do nothing.
void MailMusicCommand(Command command) {
  if (command == Command::MailSettings || command == Command::MusicTable) PanelLeave();
}
