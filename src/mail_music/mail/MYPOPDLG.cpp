// MYPOPDLG, "メール通信設定": what the client connects with.

#include "mail_music/mail/mail_dialogs.h"
#include "mail_music/mail/mail_setting.h"
#include "platform/dialog.h"
#include "resources/mail_music_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"

namespace {

void Exchange(Form& form, MailLiveState& live) {
  form.Text(IDC_POP_SERVER, live.liveServer);
  form.Text(IDC_POP_USER, live.liveUser);
  form.Text(IDC_POP_PASSWORD, live.livePassword);
}

void Open(WindowHandle dialog) {
  FormShow(dialog, MailLive, Exchange);
}

void Set(WindowHandle dialog) {
  FormTake(dialog, MailLive, Exchange);
  DialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {kOkButton, Set},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void MYPOPDLGRun(WindowHandle owner) {
  PlainDialogRun(IDD_MYPOPDLG, owner, Handle);
}
