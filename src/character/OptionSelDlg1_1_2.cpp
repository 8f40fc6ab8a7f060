// The motions of a main character, each behind a button.

#include "character/options.h"
#include "resources/character_ids.h"
#include "services/dialog_family.h"

namespace {

constexpr std::uint32_t kFirstButton = 2285;
constexpr std::uint32_t kLastButton = 2288;

int shown;

bool Proc(const Event& event) {
  if (event.kind != EventKind::Command || event.command < kFirstButton || event.command > kLastButton)
    return false;
  const auto place = static_cast<int>(event.command - kFirstButton);
  MotionPreviewRun(event.window, shown, static_cast<Preview>(static_cast<int>(Preview::Menu) + place));
  return true;
}

}  // namespace

void CharacterDetailRun(WindowHandle owner, int index) {
  shown = index;
  ToolDialogRun(ToolDialog::OptionSelDlg1_1, IDD_OptionSelDlg1_1_2, owner, Proc);
}
