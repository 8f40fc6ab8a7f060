// SetOpnFileAnimeDlg and SetMailAnimeDlg: what a feature's walks begin with. One piece
// of code; the feature gives the template and its settings.

#include "character/character.h"
#include "character/character_tables.h"
#include "character/walk.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/character_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/sound_list.h"
#include "world/world_list.h"

namespace {

// Without a chosen sound the stored one stays.
WalkSettings FromControls(WindowHandle dialog) {
  WalkSettings s = Walk.SettingsForm->stored();
  s.animeOn = ControlIsChecked(dialog, IDC_WALK_ANIME) ? 1 : 0;
  s.soundOn = ControlIsChecked(dialog, IDC_WALK_SOUND) ? 1 : 0;
  SoundListTake(dialog, IDC_WALK_SOUND_FILE, s.soundName);
  return s;
}

const char* CharacterName() {
  const bool listed = Character.CharaIndex >= 0 && Character.CharaIndex < CharaTables.MainCharaCount &&
                      Character.CharaIndex < kMainCharaMax;
  return listed ? WorldCharaName(CharaTables.MainCharas[Character.CharaIndex].charaNo) : "";
}

void Open(WindowHandle dialog) {
  const WalkSettings s = Walk.SettingsForm->stored();
  ControlSetChecked(dialog, IDC_WALK_ANIME, s.animeOn != 0);
  ControlSetChecked(dialog, IDC_WALK_SOUND, s.soundOn != 0);
  ControlSetText(dialog, IDC_WALK_CHARA, CharacterName());
  SoundListShow(dialog, IDC_WALK_SOUND_FILE, s.soundName);
}

// Plays what the dialog shows; the stored settings stay.
void Check(WindowHandle dialog) {
  if (Walk.OpeningState != 0 || Walk.mailState != 0 || Walk.WalkActive || Walk.WalkEndActive) return;
  WalkRequest request{};
  Walk.SettingsForm->request(FromControls(dialog), request);
  request.opening = kOpeningCheck;
  WalkStart(request);
}

// Walks open their windows on top of this dialog's own loop: they are ended with it.
void End(WindowHandle dialog, int result) {
  SubDialogEnd(dialog, result);
  WalkAbort();
}

void Set(WindowHandle dialog) {
  Walk.SettingsForm->store(FromControls(dialog));
  End(dialog, 1);
}

void Cancel(WindowHandle dialog) {
  End(dialog, 2);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open}, {EventKind::Close, Cancel}, {IDC_WALK_CHECK, Check}, {1, Set}, {2, Cancel},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

bool WalkSettingsRun(WindowHandle owner, const WalkSettingsForm& asked) {
  Walk.SettingsForm = &asked;
  return SubDialogRun(SubDialog::SetOpnFileAnimeDlg, asked.templateId, owner, Handle) == 1;
}
