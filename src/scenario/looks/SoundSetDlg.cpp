// SoundSetDlg, "サウンド設定": the sounds of a scene, and what starts each.

#include <algorithm>

#include "platform/dialog.h"
#include "resources/scenario_looks_ids.h"
#include "scenario/cast/scenario_files.h"
#include "scenario/logic/snry_paras.h"
#include "scenario/looks/snry_looks.h"
#include "scenario/storage/snry_paths.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"
#include "services/list_editor.h"
#include "services/slots.h"
#include "services/text.h"

namespace {

constexpr int kValueDigits = 3;
constexpr int kSecondsDigits = 4;
// kept: the sixth row of a sound's repeats says the fifth's words once more.
constexpr const char* kRepeats[] = {"繰り返さない", "2 回", "3 回",  "4 回",
                                    "5 回",         "5 回", "10 回", "起動条件が一致してる間"};

// --- The sounds in use, by row

int Count() {
  return SlotsUsed(SnryScene.sounds, &SnrySoundRec::used);
}

int SlotOf(int row) {
  return SlotOfRow(SnryScene.sounds, row, &SnrySoundRec::used);
}

// The slot for another sound; -1 when there is none.
int FreeSlot() {
  return SlotFree(SnryScene.sounds, &SnrySoundRec::used);
}

void RowText(int row, char* text, int size) {
  const SnrySoundRec& sound = SnryScene.sounds[SlotOf(row)];
  const auto room = static_cast<std::size_t>(size);
  if (SnryParaRowOf(sound.start.parameter) == 0) {
    TextFormat(text, room, "%d. %s (起動条件: 未設定)", row + 1, sound.file);
  } else {
    TextFormat(text, room, "%d. %s (起動条件: %s = %d)", row + 1, sound.file,
               SnryParaName(sound.start.parameter), sound.start.value);
  }
}

constexpr ListEditor kSounds{IDC_SOUND_ROWS, Count, RowText};

// --- Fields

void ExchangeFields(Form& form, SnrySoundRec& sound) {
  SnryPairExchange(form, IDC_SOUND_PARA, IDC_SOUND_VALUE, sound.start, kValueDigits);
  form.Number(IDC_SOUND_SECONDS, sound.seconds, kSecondsDigits);
}

void Take(WindowHandle dialog, SnrySoundRec& sound) {
  FormTake(dialog, sound, ExchangeFields);
  sound.file[0] = '\0';
  ListText(dialog, IDC_SOUND_FILE, ListSelected(dialog, IDC_SOUND_FILE), sound.file, sizeof sound.file);
  sound.repeat = static_cast<std::uint8_t>(std::max(ListSelected(dialog, IDC_SOUND_REPEAT), 0));
}

// kept: when a sound is chosen, the row of its repeats is chosen in the list of files, and the
// list of repeats stays as it was; a change stores both as they stand.
void SoundChosen(WindowHandle dialog) {
  const int slot = SlotOf(ListEditorChosen(dialog, kSounds));
  if (slot < 0) return;
  SnrySoundRec sound = SnryScene.sounds[slot];
  FormShow(dialog, sound, ExchangeFields);
  ListSelect(dialog, IDC_SOUND_FILE,
             sound.repeat < ListCount(dialog, IDC_SOUND_FILE) ? static_cast<int>(sound.repeat) : -1);
}

void Open(WindowHandle dialog) {
  SnrySoundRec none{};
  FormShow(dialog, none, ExchangeFields);
  ScenarioFilesShow(dialog, IDC_SOUND_FILE, kSnrySoundFolder, "wav", nullptr);
  RowsShow(dialog, IDC_SOUND_REPEAT, RowsOf(kRepeats), 0);
  ListEditorShow(dialog, kSounds);
}

// --- What is done

bool AddSound(WindowHandle dialog, int) {
  const int slot = FreeSlot();
  if (slot < 0) return false;
  Take(dialog, SnryScene.sounds[slot]);
  SnryScene.sounds[slot].used = 1;
  return true;
}

bool ChangeSound(WindowHandle dialog, int row) {
  Take(dialog, SnryScene.sounds[SlotOf(row)]);
  return true;
}

bool DeleteSound(WindowHandle, int row) {
  SlotDrop(SnryScene.sounds, SlotOf(row));
  return true;
}

// kept: a sound too many is left out in silence.
constexpr ListDeed kAdd{.may = [] { return FreeSlot() >= 0; },
                        .question = {"サウンドを追加します", "サウンドの追加"},
                        .act = AddSound};
constexpr ListDeed kChange{.needsRow = true,
                           .keepsRow = true,
                           .question = {"サウンドを変更します", "サウンドの変更"},
                           .act = ChangeSound};
constexpr ListDeed kDelete{
    .needsRow = true, .question = {"サウンドを削除します", "サウンドの削除"}, .act = DeleteSound};

template <const ListDeed& deed>
void Edit(WindowHandle dialog) {
  ListDeedRun(dialog, kSounds, deed);
}
void Delete(WindowHandle dialog) {
  if (!ListDeedRun(dialog, kSounds, kDelete) || Count() == 0) return;
  ListSelect(dialog, IDC_SOUND_ROWS, 0);
  SoundChosen(dialog);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},     {IDC_SOUND_ROWS, EventKind::Chosen, SoundChosen},
    {IDC_SOUND_ADD, Edit<kAdd>}, {IDC_SOUND_CHANGE, Edit<kChange>},
    {IDC_SOUND_DELETE, Delete},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SoundSetDlgRun(WindowHandle owner) {
  SnryDialogRun(SnryDialog::SoundSetDlg, IDD_SoundSetDlg, owner, Handle);
}
