// FileDivKeyWordDlg and FileDivKeyWordDlg2, "暗号化キーワード入力".

#include <cstring>

#include "filetools/divide/divide_dialogs.h"
#include "filetools/divide/divide_state.h"
#include "platform/dialog.h"
#include "resources/filetools_ids.h"
#include "services/boxes.h"
#include "services/dialog_family.h"
#include "services/text.h"

namespace {

bool Dividing() {
  return Dialogs.DlgIdTool == ToolDialog::FileDivKeyWordDlg;
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
void Accept(WindowHandle dialog) {
  // kept: a double-byte character at the eighth byte of a keyword is cut in two.
  char keyword[kDivKeywordMax + 1] = {};
  ControlGetText(dialog, IDC_DIVIDE_KEYWORD, keyword, sizeof keyword);
  const std::size_t length = TextLength(keyword, kDivKeywordMax);
  if (length < kDivKeywordMin) {
    BoxTell(dialog, "キーワードは半角4文字以上8文字までで入力します。", "キーワード設定エラー");
    return;
  }
  if (Dividing() && !Confirmed(dialog, keyword)) return;
  std::memcpy(FileDivide.keyword, keyword, sizeof keyword);
  FileDivide.keywordLength = static_cast<std::int32_t>(length);
  ToolDialogEnd(dialog, 1);
}

bool Handle(const Event& event) {
  if (event.kind == EventKind::Init) {
    if (Dividing()) {
      ControlSetText(event.window, IDC_DIVIDE_KEYWORD, "");
      FileDivide.keywordLength = 0;
    }
    return true;
  }
  if (IsPressed(event, 1)) {
    Accept(event.window);
    return true;
  }
  // kept: a restore whose keyword is cancelled goes on with the one of an earlier run.
  const bool cancelled = event.kind == EventKind::Close || IsPressed(event, 2);
  if (cancelled && Dividing()) Forget();
  return false;
}

}  // namespace

void FileDivKeyWordDlgRun(WindowHandle owner) {
  ToolDialogRun(ToolDialog::FileDivKeyWordDlg, IDD_FileDivKeyWordDlg, owner, Handle);
}

void FileDivKeyWordDlg2Run(WindowHandle owner) {
  ToolDialogRun(ToolDialog::FileDivKeyWordDlg2, IDD_FileDivKeyWordDlg2, owner, Handle);
}
