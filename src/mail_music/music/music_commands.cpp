#include "mail_music/music/music_commands.h"

#include "services/panel_entry.h"

// The window is not there yet: all that is left of the panel's entry is that the panel
// closes.
void MusicTableCommand() {
  PanelLeave();
}
