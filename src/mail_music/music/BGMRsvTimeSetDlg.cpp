// BGMRsvTimeSetDlg, "時間設定".
#include "mail_music/music/BGMRsvTimeSetDlg.h"

#include "resources/mail_music_ids.h"
#include "services/dialog_family.h"

// kept: for a music row the lists of hours, minutes and seconds are empty, and both buttons only close: the
// time of a music row stays as it was loaded.
void BGMRsvTimeSetDlgRun(WindowHandle owner) {
  ToolDialogRun(ToolDialog::BGMRsvTimeSetDlg, IDD_BGMRsvTimeSetDlg, owner,
                [](const Event&) { return false; });
}
