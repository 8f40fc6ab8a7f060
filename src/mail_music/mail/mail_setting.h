// The settings of the mail notification: the committed ones with their file, those that
// the open dialog shows, and those that the client connects with.
//
// kept: the password of the mail server stands in its file as plain text.
#pragma once

#include <cstdint>

#include "services/record.h"

inline constexpr int kMailServerSize = 256;
inline constexpr int kMailAccountMax = 3;  // only the first is used
inline constexpr int kMailAccountSize = 64;
inline constexpr int kMailCommentSize = 129;
inline constexpr int kMailSoundSize = 300;

// MailSetting.mls, 1083 bytes
//
// offset  size  field
//      0     4  enabled, 0 or 1
//      4     4  reserved
//      8     4  intervalIndex, 0 to 10
//     12   256  server
//    268   192  userName, 3 of 64
//    460   192  password, 3 of 64, as plain text
//    652   129  comment
//    781     1  animeOn
//    782     1  soundOn
//    783   300  soundName
struct MailSettingRec {
  std::int32_t enabled;
  std::int32_t reserved;  // kept: a number of the mail's settings is used by nothing
  std::int32_t intervalIndex;
  char server[kMailServerSize];
  char userName[kMailAccountMax][kMailAccountSize];
  char password[kMailAccountMax][kMailAccountSize];
  char comment[kMailCommentSize];  // text of the notice; empty: the default one
  std::uint8_t animeOn;            // the character brings the notice
  std::uint8_t soundOn;
  char soundName[kMailSoundSize];  // a file of the folder "\サウンド"
};

template <class Io>
constexpr void Fields(Io& io, MailSettingRec& setting) {
  io.BE32(setting.enabled);
  io.BE32(setting.reserved);
  io.BE32(setting.intervalIndex);
  io.Text(setting.server);
  io.Text(setting.userName);
  io.Text(setting.password);
  io.Text(setting.comment);
  io.U8(setting.animeOn);
  io.U8(setting.soundOn);
  io.Text(setting.soundName);
}
static_assert(RecordSize<MailSettingRec>() == 1083);

// What MailSettingMenuDlg shows, until it is confirmed. The comment has no copy.
struct MailDialogState {
  std::int32_t enabled;
  std::int32_t reserved;
  std::int32_t intervalIndex;
  char server[kMailServerSize];
  char userName[kMailAccountMax][kMailAccountSize];
  char password[kMailAccountMax][kMailAccountSize];
};

struct MailLiveState {
  char liveServer[kMailServerSize];
  char liveUser[kMailAccountSize];
  char livePassword[kMailAccountSize];
};

extern MailSettingRec MailSetting;
extern MailDialogState MailDialog;
extern MailLiveState MailLive;

// The dialog's copy is filled from the committed settings; and committed.
void MailDialogFill();
void MailDialogCommit();

// What the client connects with is taken from the dialog's copy; and given back to it.
void MailLiveTake();
void MailLiveGive();

// Replaces MailSetting.mls. Returns 0, -1 when there can be no new file, -2 after a short
// write; nobody is told.
int MailSettingSave();
