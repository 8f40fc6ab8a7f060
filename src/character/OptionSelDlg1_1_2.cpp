// The motions of a main character, each behind a button.

#include "character/options.h"
#include "resources/character_ids.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"

CharaDetailState CharaDetail;

namespace {

template <Preview motion>
void Play(WindowHandle dialog) {
  MotionPreviewRun(dialog, CharaDetail.shown, motion);
}

constexpr DialogAct kActs[] = {
    {IDC_CHARA_MENU, Play<Preview::Menu>},
    {IDC_CHARA_BLINK, Play<Preview::Blink>},
    {IDC_CHARA_BORED1, Play<Preview::Bored1>},
    {IDC_CHARA_BORED2, Play<Preview::Bored2>},
};
bool Proc(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void CharacterDetailRun(WindowHandle owner, int index) {
  CharaDetail.shown = index;
  ToolDialogRun(ToolDialog::OptionSelDlg1_1, IDD_OptionSelDlg1_1_2, owner, Proc);
}
