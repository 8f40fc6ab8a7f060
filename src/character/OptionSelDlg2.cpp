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
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/feature_dialog.h"
#include "services/panel_entry.h"
#include "services/program.h"
#include "services/rows.h"
#include "services/settings_save.h"
#include "services/text.h"
#include "world/world_list.h"

AlarmOptionState AlarmOption;

namespace {

// Rows that the user chooses, and their combo boxes. Row 0, the mail's, cannot be
// changed.
struct Choice {
  int row;
  int combo;
};
constexpr Choice kChoices[] = {{kAlarmSchedule, IDC_ALARM_SCHEDULE}, {kAlarmNote, IDC_ALARM_CLOCK}};

void NameRow(int selection, char* text, int size) {
  const char* name = selection == 0 ? "未設定" : WorldCharaName(CharaTables.AlarmCharas[selection - 1]);
  TextCopy(text, static_cast<std::size_t>(size), name);
}

void Fill(WindowHandle dialog) {
  for (const Choice& choice : kChoices) {
    const std::int32_t selection = Character.AlarmCharaSel[choice.row];
    // bounded: an alarm character beyond the list is shown as none.
    const bool listed = selection >= 0 && selection <= CharaTables.AlarmCharaCount;
    RowsShow(dialog, choice.combo, RowsOf(CharaTables.AlarmCharaCount + 1, NameRow), listed ? selection : 0);
  }
}

void Accept(WindowHandle dialog) {
  for (const Choice& choice : kChoices) {
    const int selection = ListSelected(dialog, choice.combo);
    if (selection >= 0) Character.AlarmCharaSel[choice.row] = selection;
  }
  AlarmCharaLoad();
  AlarmOption.changed = true;
  MenuDialogEnd(dialog, kOkButton);
}

void CheckMail(WindowHandle dialog) {
  AlarmCheckRun(dialog, kAlarmMail, Character.AlarmCharaSel[kAlarmMail]);
}
template <const Choice& choice>
void Check(WindowHandle dialog) {
  AlarmCheckRun(dialog, choice.row, ListSelected(dialog, choice.combo));
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Fill},
    {IDC_ALARM_CHECK_MAIL, CheckMail},
    {IDC_ALARM_CHECK_SCHEDULE, Check<kChoices[0]>},
    {IDC_ALARM_CHECK_CLOCK, Check<kChoices[1]>},
    {kOkButton, Accept},
};
bool Proc(const Event& event) {
  return DialogActRun(event, kActs);
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
