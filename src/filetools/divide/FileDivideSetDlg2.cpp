// FileDivideSetDlg2, "ファイル 分割", and FileDivideSetDlg3, "ファイル 復元".

#include "filetools/divide/divide_dialogs.h"
#include "filetools/divide/divide_state.h"
#include "filetools/path_row.h"
#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/filetools_ids.h"
#include "services/decimal.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/drawing_objects.h"
#include "services/program.h"
#include "services/text.h"

namespace {

constexpr Colour kRed = MakeColour(255, 0, 0);
constexpr int kRowSize = 1100;

// Where the two dialogs differ.
struct Kind {
  MenuDialog dialogId;
  int templateId;
  Command pickCommand;
  Command folderCommand;
  const char* banner;
  Rect bannerBox;  // in pixels; wiped when there is no banner
};
constexpr Kind kDivide{MenuDialog::FileDivideSetDlg2, IDD_FileDivideSetDlg2,  Command::DividePick,
                       Command::DivideFolder,         "ファイル分割中です !", {430, 216, 750, 286}};
constexpr Kind kRestore{MenuDialog::FileDivideSetDlg3, IDD_FileDivideSetDlg3, Command::RestorePick,
                        Command::RestoreFolder,        "ファイル合成中です!", {554, 116, 740, 186}};
constexpr int kBannerInset = 2;

// The two sizes of a division, in pixels: beside their labels, as large as the longest
// one.
constexpr Rect kSourceSize{210, 136, 330, 152};
constexpr Rect kPieceSize{210, 180, 330, 196};

// The kind that is open; null if none is.
const Kind* OpenKind() {
  if (!Dialogs.hMenuDlg) return nullptr;
  if (Dialogs.DlgIdMenu == kDivide.dialogId) return &kDivide;
  if (Dialogs.DlgIdMenu == kRestore.dialogId) return &kRestore;
  return nullptr;
}

// Without a pen the last row and column are left out.
void Wipe(Canvas* canvas, const Rect& box) {
  CanvasRectangle(canvas, box.left, box.top, box.right, box.bottom);
}

void DrawSize(Canvas* canvas, const Rect& at, std::uint32_t size) {
  char text[24];
  TextFormat(text, sizeof text, "%u Byte", static_cast<unsigned>(size));
  Wipe(canvas, {at.left, at.top, at.right + 1, at.bottom + 1});
  CanvasText(canvas, at.left, at.top, text);
}

void DrawBanner(Canvas* canvas, const char* banner, const Rect& box) {
  if (FileDivide.banner) {
    CanvasTextColour(canvas, kRed);
    CanvasText(canvas, box.left + kBannerInset, box.top + kBannerInset, banner);
  } else {
    Wipe(canvas, box);
  }
}

void Paint(WindowHandle dialog) {
  const Kind& kind = *OpenKind();
  Canvas* canvas = CanvasGet(dialog);
  if (!canvas) return;
  CanvasBrush(canvas, Drawing.FaceBrush);
  CanvasPen(canvas, PenNothing());
  CanvasBackTransparent(canvas, true);
  if (kind.dialogId == MenuDialog::FileDivideSetDlg2) {
    DrawSize(canvas, kSourceSize, FileDivide.sourceSize);
    // kept: the size of the pieces on show is that of the last division until a new one begins.
    DrawSize(canvas, kPieceSize, FileDivide.pieceSize);
  }
  DrawBanner(canvas, kind.banner, kind.bannerBox);
  CanvasRelease(canvas);
}

void Show(WindowHandle dialog) {
  char text[kRowSize];
  PathRow(FileDivide.sourcePath, text, sizeof text);
  ControlSetText(dialog, IDC_DIVIDE_SOURCE, text);
  ControlSetText(dialog, IDC_DIVIDE_FOLDER, FileDivide.storeDir);
}

void Open(WindowHandle dialog) {
  Show(dialog);
  // The other dialog has no more than these.
  if (OpenKind() != &kDivide) return;
  char count[16];
  TextFormat(count, sizeof count, "%d", static_cast<int>(FileDivide.divideCount));
  ControlSetText(dialog, IDC_DIVIDE_NAME, FileDivide.baseName);
  ControlSetText(dialog, IDC_DIVIDE_COUNT, count);
  ControlSetChecked(dialog, IDC_DIVIDE_ENCRYPT, FileDivide.encryptFlag != 0);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {EventKind::Paint, Paint},
    {IDC_DIVIDE_PICK, [] { CommandSend(OpenKind()->pickCommand); }},
    {IDC_DIVIDE_PICK_FOLDER, [] { CommandSend(OpenKind()->folderCommand); }},
    {IDC_DIVIDE_RUN, Command::DivideRun},
    {IDC_DIVIDE_ENCRYPT,
     [](WindowHandle dialog) {
       FileDivide.encryptFlag = ControlIsChecked(dialog, IDC_DIVIDE_ENCRYPT) ? 1 : 0;
     }},
};

bool Handle(const Event& event) {
  return OpenKind() && DialogActRun(event, kActs);
}

}  // namespace

int FileDivideSetDlg2Run() {
  return MenuDialogRun(kDivide.dialogId, kDivide.templateId, Program.hMainWnd, Handle);
}

int FileDivideSetDlg3Run() {
  return MenuDialogRun(kRestore.dialogId, kRestore.templateId, Program.hMainWnd, Handle);
}

void DivideDialogShow() {
  if (OpenKind()) Show(Dialogs.hMenuDlg);
}

void DivideDialogPaint() {
  if (OpenKind()) SendPaint(Dialogs.hMenuDlg);
}

void FileDivideSetDlg2Take() {
  char count[3];  // two characters are seen
  ControlGetText(Dialogs.hMenuDlg, IDC_DIVIDE_NAME, FileDivide.baseName, sizeof FileDivide.baseName);
  ControlGetText(Dialogs.hMenuDlg, IDC_DIVIDE_COUNT, count, sizeof count);
  FileDivide.divideCount = DecimalParse(count);
  // kept: a number of pieces beyond 200 becomes 200, which two characters reach only when
  // they are no digits.
  if (FileDivide.divideCount > kDivCountMax) FileDivide.divideCount = kDivCountMax;
}
