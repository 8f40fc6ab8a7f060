#include "mail_music/mail/mail_walk.h"

#include <cstring>

#include "character/character.h"
#include "character/character_tables.h"
#include "character/walk.h"
#include "mail_music/mail/mail_setting.h"
#include "resources/mail_music_ids.h"

namespace {

// kept: a mail's walk ends the walks of the first ten slots only, so one of a later
// slot goes on beside it.
constexpr int kFlagsCleared = 10;

static_assert(kMailSoundSize == kWalkSoundNameSize);

// The first slot with the walking character that an opening would send. -1 when there
// is none.
int MailSlot() {
  if (Character.CharaIndex < 0 || Character.CharaIndex >= kWalkSlotMax) return -1;
  for (int slot = 0; slot < Character.CharaIndex; ++slot) {
    if (CharaTables.WalkCharas[slot].number == CharaTables.WalkCharas[Character.CharaIndex].number)
      return slot;
  }
  return Character.CharaIndex;
}

// The opening state is that of a file, but nothing is opened at the end.
void Request(const WalkSettings& settings, WalkRequest& request) {
  request.settings = settings;
  request.slot = MailSlot();
  request.flagsCleared = kFlagsCleared;
  request.opening = kOpeningFile;
}

WalkSettings Stored() {
  WalkSettings s{MailSetting.animeOn, MailSetting.soundOn, {}};
  std::memcpy(s.soundName, MailSetting.soundName, sizeof s.soundName);
  return s;
}

void Store(const WalkSettings& s) {
  MailSetting.animeOn = s.animeOn;
  MailSetting.soundOn = s.soundOn;
  std::memcpy(MailSetting.soundName, s.soundName, sizeof s.soundName);
}

constexpr WalkSettingsForm kForm{IDD_SetMailAnimeDlg, Stored, Store, Request};

}  // namespace

int WalkStartMail() {
  WalkRequest request{};
  Request(Stored(), request);
  return WalkStart(request);
}

bool SetMailAnimeDlgRun(WindowHandle owner) {
  return WalkSettingsRun(owner, kForm);
}
