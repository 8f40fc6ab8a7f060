#include "mail_music/mail/mail_setting.h"

#include <cstring>

#include "services/program.h"
#include "services/record_file.h"

MailSettingRec MailSetting;
MailDialogState MailDialog;
MailLiveState MailLive;

namespace {

template <class To, class From>
void Copy(To& to, const From& from) {
  to.enabled = from.enabled;
  to.reserved = from.reserved;
  to.intervalIndex = from.intervalIndex;
  std::memcpy(to.server, from.server, sizeof to.server);
  std::memcpy(to.userName, from.userName, sizeof to.userName);
  std::memcpy(to.password, from.password, sizeof to.password);
}

}  // namespace

void MailDialogFill() {
  Copy(MailDialog, MailSetting);
}

void MailDialogCommit() {
  Copy(MailSetting, MailDialog);
}

void MailLiveTake() {
  std::memcpy(MailLive.liveServer, MailDialog.server, sizeof MailLive.liveServer);
  std::memcpy(MailLive.liveUser, MailDialog.userName[0], sizeof MailLive.liveUser);
  std::memcpy(MailLive.livePassword, MailDialog.password[0], sizeof MailLive.livePassword);
}

void MailLiveGive() {
  std::memcpy(MailDialog.server, MailLive.liveServer, sizeof MailLive.liveServer);
  std::memcpy(MailDialog.userName[0], MailLive.liveUser, sizeof MailLive.liveUser);
  std::memcpy(MailDialog.password[0], MailLive.livePassword, sizeof MailLive.livePassword);
}

int MailSettingSave() {
  char path[kRootPathSize];
  RootPath(path, sizeof path, "\\MailSetting.mls");
  DataFile data;
  if (!DataReplace(data, path)) {
    DataClose(data);
    return -1;
  }
  if (!RecordWrite(data, MailSetting)) return DataFailStatus(data);
  DataClose(data);
  return 0;
}
