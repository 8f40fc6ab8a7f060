// SetOpnFileAnimeDlg, "ファイルオープン アニメーション/サウンド設定", and SetMailAnimeDlg,
// "メール受信時アニメーション設定".

#include <cstring>

#include "character/character.h"
#include "character/character_tables.h"
#include "character/walk.h"
#include "filetools/open/open_dialogs.h"
#include "filetools/open/open_history.h"
#include "filetools/open/open_state.h"
#include "mail_music/mail/mail.h"
#include "mail_music/mail/mail_setting.h"
#include "platform/dialog.h"
#include "platform/file.h"
#include "platform/window.h"
#include "resources/filetools_ids.h"
#include "resources/mail_music_ids.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/program.h"
#include "shell/panel.h"
#include "world/world_list.h"

namespace {

// What a walk begins with.
struct Settings {
  std::uint8_t animeOn;
  std::uint8_t soundOn;
  char soundName[kOpnTextSize];
};
static_assert(sizeof MailSetting.soundName == kOpnTextSize);

bool IsMail() {
  return Panel.FuncNo == kFuncMail;
}

Settings Stored() {
  Settings s{OpnHistory.animeOn, OpnHistory.soundOn, {}};
  const char* name = OpnHistory.soundName;
  if (IsMail()) {
    s.animeOn = MailSetting.animeOn;
    s.soundOn = MailSetting.soundOn;
    name = MailSetting.soundName;
  }
  std::memcpy(s.soundName, name, sizeof s.soundName);
  return s;
}

void Store(const Settings& s) {
  (IsMail() ? MailSetting.animeOn : OpnHistory.animeOn) = s.animeOn;
  (IsMail() ? MailSetting.soundOn : OpnHistory.soundOn) = s.soundOn;
  std::memcpy(IsMail() ? MailSetting.soundName : OpnHistory.soundName, s.soundName, sizeof s.soundName);
}

// Without a chosen sound the stored one stays.
Settings FromControls(WindowHandle dialog) {
  Settings s = Stored();
  s.animeOn = ControlIsChecked(dialog, IDC_OPN_ANIME) ? 1 : 0;
  s.soundOn = ControlIsChecked(dialog, IDC_OPN_SOUND) ? 1 : 0;
  char name[kOpnTextSize] = {};
  if (ListText(dialog, IDC_OPN_SOUND_FILE, ListSelected(dialog, IDC_OPN_SOUND_FILE), name, sizeof name) > 0) {
    std::memcpy(s.soundName, name, sizeof name);
  }
  return s;
}

void SoundsShow(WindowHandle dialog, const char* current) {
  const ListQuiet quiet(dialog, IDC_OPN_SOUND_FILE);
  char pattern[kRootPathSize];
  RootPath(pattern, sizeof pattern, "\\サウンド\\*.*");
  SearchEntry entry;
  const SearchHandle search = SearchFirst(pattern, &entry);
  for (bool more = search != kNoSearch; more; more = SearchNext(search, &entry)) {
    if ((entry.attributes & kAttributeFolder) == 0) ListAdd(dialog, IDC_OPN_SOUND_FILE, entry.name);
  }
  SearchClose(search);
  const int count = ListCount(dialog, IDC_OPN_SOUND_FILE);
  for (int row = 0; row < count; ++row) {
    char name[kOpnTextSize];
    ListText(dialog, IDC_OPN_SOUND_FILE, row, name, sizeof name);
    if (std::strncmp(name, current, kOpnTextSize) == 0) ListSelect(dialog, IDC_OPN_SOUND_FILE, row);
  }
}

const char* CharacterName() {
  const bool listed = Character.CharaIndex >= 0 && Character.CharaIndex < CharaTables.MainCharaCount &&
                      Character.CharaIndex < kMainCharaMax;
  return listed ? WorldCharaName(CharaTables.MainCharas[Character.CharaIndex].charaNo) : "";
}

void Open(WindowHandle dialog) {
  const Settings s = Stored();
  ControlSetChecked(dialog, IDC_OPN_ANIME, s.animeOn != 0);
  ControlSetChecked(dialog, IDC_OPN_SOUND, s.soundOn != 0);
  ControlSetText(dialog, IDC_OPN_CHARA, CharacterName());
  SoundsShow(dialog, s.soundName);
}

// Plays what the dialog shows; the stored settings are as before when it has begun.
void Check(WindowHandle dialog) {
  if (Walk.OpeningState != 0 || Mail.MailPhase != 0 || Walk.WalkActive || Walk.WalkEndActive) return;
  const Settings stored = Stored();
  Store(FromControls(dialog));
  const int started = IsMail() ? WalkStartMail() : WalkStartOpen();
  Store(stored);
  if (started == 0) Walk.OpeningState = kOpeningCheck;
}

// Walks open their windows on top of this dialog's own loop: they are ended with it.
// A walk that ends before its time leaves nobody to end the opening state; a file
// that waits for its end, asked for from outside while this dialog stood, is opened.
void End(WindowHandle dialog, int result) {
  SubDialogEnd(dialog, result);
  WalkAbort();
  const bool fileWaits = Walk.OpeningState == kOpeningFile && Mail.MailPhase != kMailWalking;
  Walk.OpeningState = 0;
  if (fileWaits) CommandSend(Command::OpenLaunch);
}

void Set(WindowHandle dialog) {
  Store(FromControls(dialog));
  if (!IsMail()) OpnHisSave();
  End(dialog, 1);
}

bool Handle(const Event& event) {
  switch (event.kind) {
    case EventKind::Init:
      Open(event.window);
      return true;
    case EventKind::Close:
      End(event.window, 2);
      return true;
    case EventKind::Pressed:
      if (event.id == IDC_OPN_CHECK) Check(event.window);
      if (event.id == 1) Set(event.window);
      if (event.id == 2) End(event.window, 2);
      return true;
    default:
      return false;
  }
}

}  // namespace

bool SetOpnFileAnimeDlgRun(WindowHandle owner) {
  const int templateId = IsMail() ? IDD_SetMailAnimeDlg : IDD_SetOpnFileAnimeDlg;
  return SubDialogRun(SubDialog::SetOpnFileAnimeDlg, templateId, owner, Handle) == 1;
}
