// The committed settings of the mail notification.
#pragma once

#include <cstdint>

inline constexpr int kMailServerSize = 256;
inline constexpr int kMailAccountMax = 3;  // only the first is used
inline constexpr int kMailAccountSize = 64;
inline constexpr int kMailCommentSize = 129;
inline constexpr int kMailSoundSize = 300;

struct MailSettingRec {
  std::int32_t enabled;
  std::int32_t reserved;
  std::int32_t intervalIndex;  // 0 to 10
  char server[kMailServerSize];
  char userName[kMailAccountMax][kMailAccountSize];
  char password[kMailAccountMax][kMailAccountSize];
  char comment[kMailCommentSize];  // text of the notice; empty: the default one
  std::uint8_t animeOn;            // the character brings the notice
  std::uint8_t soundOn;
  char soundName[kMailSoundSize];  // a file of the folder "\サウンド"
};
extern MailSettingRec MailSetting;
