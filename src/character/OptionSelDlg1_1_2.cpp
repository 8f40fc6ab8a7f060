// The motions of a main character, each behind a button.

#include "character/options.h"
#include "resources/character_ids.h"
#include "services/dialog_family.h"

CharaDetailState CharaDetail;

namespace {

constexpr int kFirstButton = 2285;
constexpr int kLastButton = 2288;

bool Proc(const Event& event) {
  if (event.kind != EventKind::Pressed || event.id < kFirstButton || event.id > kLastButton) return false;
  const int place = event.id - kFirstButton;
  MotionPreviewRun(event.window, CharaDetail.shown,
                   static_cast<Preview>(static_cast<int>(Preview::Menu) + place));
  return true;
}

}  // namespace

void CharacterDetailRun(WindowHandle owner, int index) {
  CharaDetail.shown = index;
  ToolDialogRun(ToolDialog::OptionSelDlg1_1, IDD_OptionSelDlg1_1_2, owner, Proc);
}
