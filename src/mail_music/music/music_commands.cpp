#include "mail_music/music/music_commands.h"

#include "mail_music/music/music.h"
#include "mail_music/music/music_window.h"
#include "services/modal.h"
#include "services/panel_entry.h"

// One window: an open one stays as it is. The panel may open beside it.
void MusicTableCommand() {
  if (ModalIsUp()) return;
  PanelLeave();
  if (Music.hBgmWnd) return;
  PanelEntryBegin(Feature::MusicTable);
  BgmWindowOpen();
  if (!Music.hBgmWnd) PanelEntryDone();
}
