// FileDivKeyWordDlg and FileDivKeyWordDlg2, "暗号化キーワード入力".

#include <cstring>

#include "filetools/divide/divide_dialogs.h"
#include "filetools/divide/divide_state.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/text.h"

namespace {

// A dialog is opened with whether it is a division's.
bool Dividing(const Event& event) {
  return *static_cast<const bool*>(event.context);
}

void Forget() {
  std::memset(FileDivide.keyword, 0, sizeof FileDivide.keyword);
  FileDivide.keywordLength = 0;
}

bool Confirmed(WindowHandle dialog, const char* keyword) {
  char text[160];
  TextFormat(text, sizeof text, "重要: キーワード \"%s\" はファイル復元時にも必要です。 分割を開始します。",
             keyword);
  return BoxAsk(dialog, text, "ファイル分割の実行");
}

// kept: a keyword is never tested; a wrong one gives a wrong file, or a failure that says
// nothing of keywords.
void Accept(const Event& event) {
  const WindowHandle dialog = event.window;
  // kept: a double-byte character at the eighth byte of a keyword is cut in two.
  char keyword[kDivKeywordMax + 1] = {};
  ControlGetText(dialog, IDC_DIVIDE_KEYWORD, keyword, sizeof keyword);
  const std::size_t length = TextLength(keyword, kDivKeywordMax);
  if (length < kDivKeywordMin) {
    BoxTell(dialog, "キーワードは半角4文字以上8文字までで入力します。", "キーワード設定エラー");
    return;
  }
  if (Dividing(event) && !Confirmed(dialog, keyword)) return;
  std::memcpy(FileDivide.keyword, keyword, sizeof keyword);
  FileDivide.keywordLength = static_cast<std::int32_t>(length);
  ToolDialogEnd(dialog, 1);
}

void Open(const Event& event) {
  if (!Dividing(event)) return;
  ControlSetText(event.window, IDC_DIVIDE_KEYWORD, "");
  FileDivide.keywordLength = 0;
}

// kept: a restore whose keyword is cancelled goes on with the one of an earlier run.
void Cancel(const Event& event) {
  if (Dividing(event)) Forget();
  ToolDialogEnd(event.window, 2);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {kOkButton, Accept},
    {kCancelButton, Cancel},
    {EventKind::Close, Cancel},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void FileDivKeyWordDlgRun(WindowHandle owner) {
  bool dividing = true;
  ToolDialogRun(ToolDialog::FileDivKeyWordDlg, IDD_FileDivKeyWordDlg, owner, Handle, &dividing);
}

void FileDivKeyWordDlg2Run(WindowHandle owner) {
  bool dividing = false;
  ToolDialogRun(ToolDialog::FileDivKeyWordDlg2, IDD_FileDivKeyWordDlg2, owner, Handle, &dividing);
}
