// MailSettingMenuDlg, "メール受信連絡".

#include "mail_music/mail/mail_dialogs.h"
#include "mail_music/mail/mail_interval.h"
#include "mail_music/mail/mail_setting.h"
#include "mail_music/mail/mail_walk.h"
#include "resources/mail_music_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"
#include "services/program.h"
#include "services/text.h"

namespace {

void IntervalRow(int row, char* text, int size) {
  TextCopy(text, static_cast<std::size_t>(size), kMailIntervals[row].label);
}

// The comment is edited in its place.
void Exchange(Form& form, MailDialogState& stage) {
  form.Check(IDC_MAIL_ENABLED, stage.enabled);
  form.Choice(IDC_MAIL_INTERVAL, stage.intervalIndex, RowsOf(kMailIntervalRows, IntervalRow));
  form.Text(IDC_MAIL_COMMENT, MailSetting.comment);
}

void Open(WindowHandle dialog) {
  MailDialogFill();
  FormShow(dialog, MailDialog, Exchange);
}

// kept: what MYPOPDLG sets is what the client connects with from then on, also when the
// mail's settings are cancelled afterwards.
void Account(WindowHandle dialog) {
  MailLiveTake();
  MYPOPDLGRun(dialog);
  MailLiveGive();
}

// kept: settling the mail's animation saves its settings at once, also when they are
// cancelled afterwards.
void Animation(WindowHandle dialog) {
  if (SetMailAnimeDlgRun(dialog)) MailSettingSave();
}

void Set(WindowHandle dialog) {
  FormTake(dialog, MailDialog, Exchange);
  MailDialogCommit();
  ToolDialogEnd(dialog, 1);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_MAIL_ACCOUNT, Account},
    {IDC_MAIL_ANIMATION, Animation},
    {kOkButton, Set},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

bool MailSettingMenuDlgRun() {
  return ToolDialogRun(ToolDialog::MailSettingMenuDlg, IDD_MailSettingMenuDlg, Program.hMainWnd, Handle) == 1;
}
