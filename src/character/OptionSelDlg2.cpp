// OptionSelDlg2: the choice of the alarm characters.

#include "character/alarm_images.h"
#include "character/character.h"
#include "character/character_commands.h"
#include "character/character_file.h"
#include "character/character_tables.h"
#include "character/options.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/character_ids.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/panel_entry.h"
#include "services/program.h"
#include "services/settings_save.h"
#include "world/world_list.h"

AlarmOptionState AlarmOption;

namespace {

constexpr int kOk = 1;
constexpr std::uint32_t kCheckMail = 2289;
constexpr std::uint32_t kCheckSchedule = 2290;
constexpr std::uint32_t kCheckNote = 2291;

// Rows that the user chooses, and their combo boxes. Row 0, the mail's, cannot be
// changed.
constexpr int kFirstRow = kAlarmSchedule;
constexpr int kFirstCombo = 100;
constexpr int ComboOf(int row) {
  return kFirstCombo + row - kFirstRow;
}

void Fill(WindowHandle dialog) {
  for (int row = kFirstRow; row < kAlarmRowCount; ++row) {
    const int combo = ComboOf(row);
    ListClear(dialog, combo);
    ListAdd(dialog, combo, "未設定");
    for (int i = 0; i < CharaTables.AlarmCharaCount; ++i)
      ListAdd(dialog, combo, WorldCharaName(CharaTables.AlarmCharas[i]));
    const std::int32_t selection = Character.AlarmCharaSel[row];
    // bounded: a selection beyond the list selects nobody.
    ListSelect(dialog, combo, selection >= 0 && selection <= CharaTables.AlarmCharaCount ? selection : 0);
  }
}

void Take(WindowHandle dialog) {
  for (int row = kFirstRow; row < kAlarmRowCount; ++row) {
    const int selection = ListSelected(dialog, ComboOf(row));
    if (selection >= 0) Character.AlarmCharaSel[row] = selection;
  }
  AlarmCharaLoad();
  AlarmOption.changed = true;
}

bool Press(const Event& event) {
  switch (event.id) {
    case kCheckMail:
      AlarmCheckRun(event.window, kAlarmMail, Character.AlarmCharaSel[kAlarmMail]);
      return true;
    case kCheckSchedule:
      AlarmCheckRun(event.window, kAlarmSchedule, ListSelected(event.window, ComboOf(kAlarmSchedule)));
      return true;
    case kCheckNote:
      AlarmCheckRun(event.window, kAlarmNote, ListSelected(event.window, ComboOf(kAlarmNote)));
      return true;
    case kOk:
      Take(event.window);
      MenuDialogEnd(event.window, kOk);
      return true;
    default:
      return false;
  }
}

bool Proc(const Event& event) {
  if (event.kind == EventKind::Init) {
    Fill(event.window);
    return true;
  }
  return event.kind == EventKind::Pressed && Press(event);
}

}  // namespace

void CommandOptionAlarmCharacter(Command) {
  FeatureDialogRun(PanelFeature(), [] {
    WorldListRead();
    CharaFileRead();
    AlarmOption.changed = false;
    MenuDialogRun(MenuDialog::OptionSelDlg2, IDD_OptionSelDlg2, Program.hMainWnd, Proc);
    if (AlarmOption.changed) SysFileWrite();
    AlarmCheckFree();
    return 0;
  });
}
