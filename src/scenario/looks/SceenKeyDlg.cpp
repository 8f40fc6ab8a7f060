// SceenKeyDlg, "キー、マウス割付": what keys and actions of the mouse change in a scene.

#include <algorithm>
#include <iterator>

#include "platform/dialog.h"
#include "resources/scenario_looks_ids.h"
#include "scenario/logic/snry_cast_choice.h"
#include "scenario/logic/snry_paras.h"
#include "scenario/logic/snry_places.h"
#include "scenario/looks/snry_looks.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"
#include "services/list_editor.h"
#include "services/text.h"

namespace {

constexpr int kNameMost = 32;
constexpr int kValueDigits = 5;
constexpr int kValueHighest = 65535;

constexpr const char* kKeys[] = {"Enter",
                                 "Space",
                                 "Esc",
                                 "↑",
                                 "↓",
                                 "←",
                                 "→",
                                 " 1",
                                 " 2",
                                 " 3",
                                 " 4",
                                 " 5",
                                 " 6",
                                 " 7",
                                 " 8",
                                 " 9",
                                 " 0",
                                 "A a",
                                 "B b",
                                 "C c",
                                 "D d",
                                 "E e",
                                 "F f",
                                 "G g",
                                 "H h",
                                 "I i",
                                 "J j",
                                 "K k",
                                 "L l",
                                 "M m",
                                 "N n",
                                 "O o",
                                 "P p",
                                 "Q q",
                                 "R r",
                                 "S s",
                                 "T t",
                                 "U u",
                                 "V v",
                                 "W w",
                                 "X x",
                                 "Y y",
                                 "Z z",
                                 "f1",
                                 "f2",
                                 "f3",
                                 "f4",
                                 "f5",
                                 "f6",
                                 "f7",
                                 "f8",
                                 "f9",
                                 "f10",
                                 "f11",
                                 "f12",
                                 "マウス左へ移動",
                                 "マウス右へ移動",
                                 "マウス上へ移動",
                                 "マウス下へ移動",
                                 "マウス左クリック",
                                 "マウス右クリック",
                                 "マウス左ドラッグ",
                                 "マウス右ドラッグ"};
static_assert(std::size(kKeys) == 63);
constexpr const char* kSpeeds[] = {"0.01秒", "0.02秒", "0.03秒", "0.04秒", "0.05秒", "0.06秒", "0.07秒",
                                   "0.08秒", "0.09秒", "0.1秒",  "0.2秒",  "0.3秒",  "0.4秒",  "0.5秒",
                                   "0.6秒",  "0.7秒",  "0.8秒",  "0.9秒",  "1.0秒",  "2.0秒"};
static_assert(std::size(kSpeeds) == 20);

// Modes of SnryKeyRec::cursorSync, and its axes.
constexpr std::uint8_t kSyncStart = 1;
constexpr std::uint8_t kSyncEnd = 2;
constexpr std::uint8_t kSidewards = 1;
constexpr std::uint8_t kUpAndDown = 2;

// --- The records in use, by row

int Count() {
  return static_cast<int>(std::count_if(std::begin(SnryScene.keys), std::end(SnryScene.keys),
                                        [](const SnryKeyRec& key) { return key.key != 0; }));
}

int SlotOfRow(int row) {
  for (int slot = 0; row >= 0 && slot < kSnryKeyMax; ++slot) {
    if (SnryScene.keys[slot].key != 0 && row-- == 0) return slot;
  }
  return -1;
}

SnryKeyRec* FirstFree() {
  auto* key = std::find_if(std::begin(SnryScene.keys), std::end(SnryScene.keys),
                           [](const SnryKeyRec& record) { return record.key == 0; });
  return key == std::end(SnryScene.keys) ? nullptr : key;
}

const char* KeyText(int key) {
  return key >= 1 && key <= static_cast<int>(std::size(kKeys)) ? kKeys[key - 1] : "";
}

void RowText(int row, char* text, int size) {
  const SnryKeyRec& key = SnryScene.keys[SlotOfRow(row)];
  TextFormat(text, static_cast<std::size_t>(size), "[ %s ] - %s", KeyText(key.key), key.name);
}

constexpr ListEditor kRecords{IDC_KEY_ROWS, Count, RowText};

// The record whose parameters are on show: that of the chosen row, or with none the first
// that is empty. Null when there is neither.
SnryKeyRec* Current(WindowHandle dialog) {
  const int slot = SlotOfRow(ListEditorChosen(dialog, kRecords));
  return slot >= 0 ? &SnryScene.keys[slot] : FirstFree();
}

// --- Fields

void ShowSync(WindowHandle dialog) {
  ControlSetChecked(dialog, IDC_KEY_SYNC_START, SnryLooks.cursorSync == kSyncStart);
  ControlSetChecked(dialog, IDC_KEY_SYNC_END, SnryLooks.cursorSync == kSyncEnd);
  ControlSetChecked(dialog, IDC_KEY_SIDEWARDS, (SnryLooks.axes & kSidewards) != 0);
  ControlSetChecked(dialog, IDC_KEY_UP_DOWN, (SnryLooks.axes & kUpAndDown) != 0);
}

void Exchange(Form& form, SnryKeyRec& key) {
  int row = key.key - 1;
  form.Choice(IDC_KEY_KEY, row, RowsOf(kKeys));
  if (form.Takes()) key.key = static_cast<std::uint8_t>(row + 1);
  form.Text(IDC_KEY_NAME, key.name, kNameMost);
  form.Choice(IDC_KEY_SPEED, key.speed, RowsOf(kSpeeds));
  SnryCastExchange(form, IDC_KEY_CAST, SnryCastShow::All, key.syncCharacter);
}

void ExchangePlace(Form& form, SnryPair& pair) {
  SnryParaExchange(form, IDC_KEY_PARA, pair.parameter);
  // kept: a value below 0 that is typed for a key is 0, unlike in the other dialogs of a scene.
  form.NumberIn(IDC_KEY_VALUE, pair.value, kValueDigits, 0, kValueHighest);
}

// --- The parameters of the current record

void PlaceText(const SnryKeyRec& key, int row, char* text, int size) {
  const int place = SnryPlaceOfRow(key.parameters, row);
  TextFormat(text, static_cast<std::size_t>(size), "%d.%s", row + 1, SnryParaName(key.parameters[place]));
}

void ShowPlaces(WindowHandle dialog) {
  const ListQuiet quiet(dialog, IDC_KEY_PLACES);
  ListClear(dialog, IDC_KEY_PLACES);
  const SnryKeyRec* key = Current(dialog);
  for (int row = 0; key && row < SnryPlaceCount(key->parameters); ++row) {
    char text[kRowTextSize];
    PlaceText(*key, row, text, sizeof text);
    ListAdd(dialog, IDC_KEY_PLACES, text);
  }
}

// The place of the chosen parameter; -1 for none.
int PlaceChosen(WindowHandle dialog, const SnryKeyRec& key) {
  return SnryPlaceOfRow(key.parameters, ListSelected(dialog, IDC_KEY_PLACES));
}

void ShowPlace(WindowHandle dialog) {
  const SnryKeyRec* key = Current(dialog);
  const int place = key ? PlaceChosen(dialog, *key) : -1;
  if (place < 0) return;
  SnryPair pair{key->parameters[place], key->values[place]};
  FormShow(dialog, pair, ExchangePlace);
}

void TakePlace(WindowHandle dialog, SnryKeyRec& key, int place) {
  SnryPair pair{};
  FormTake(dialog, pair, ExchangePlace);
  key.parameters[place] = pair.parameter;
  key.values[place] = pair.value;
}

// kept: an assignment of a key that is empty is asked about, and takes the parameter all the same
// unless the answer is to cancel.
bool EmptyIsAllowed(WindowHandle dialog, const SnryKeyRec& key, const BoxWords& question) {
  return key.key != 0 || BoxAsk(dialog, question);
}

constexpr BoxWords kAddEmpty{"キー/マウスが設定されていません", "パラメータの追加エラー"};
constexpr BoxWords kChangeEmpty{"キーコードが設定されていません", "パラメータの変更エラー"};
constexpr BoxWords kPlacesFull{"設定できるパラメータは最大20個です", "パラメータ追加エラー"};
constexpr BoxWords kAddPlace{"パラメータを追加", "パラメータの追加"};
constexpr BoxWords kChangePlace{"パラメータを変更します。", "パラメータの変更"};
constexpr BoxWords kDeletePlace{"パラメータを削除します。", "パラメータの削除"};

void AddPlace(WindowHandle dialog) {
  SnryKeyRec* key = Current(dialog);
  if (!key || !EmptyIsAllowed(dialog, *key, kAddEmpty)) return;
  const int place = SnryPlaceFree(key->parameters);
  if (place < 0) return BoxTell(dialog, kPlacesFull);
  if (!BoxAsk(dialog, kAddPlace)) return;
  TakePlace(dialog, *key, place);
  ShowPlaces(dialog);
}

void ChangePlace(WindowHandle dialog) {
  SnryKeyRec* key = Current(dialog);
  if (!key || !EmptyIsAllowed(dialog, *key, kChangeEmpty)) return;
  const int place = PlaceChosen(dialog, *key);
  if (place < 0 || !BoxAsk(dialog, kChangePlace)) return;
  TakePlace(dialog, *key, place);
  ShowPlaces(dialog);
}

void DeletePlace(WindowHandle dialog) {
  SnryKeyRec* key = Current(dialog);
  const int place = key ? PlaceChosen(dialog, *key) : -1;
  if (place < 0 || !BoxAsk(dialog, kDeletePlace)) return;
  SnryPlaceDrop(key->parameters, place);
  SnryPlaceDrop(key->values, place);
  ShowPlaces(dialog);
}

// --- The records

void RecordChosen(WindowHandle dialog) {
  const int slot = SlotOfRow(ListEditorChosen(dialog, kRecords));
  if (slot >= 0) {
    SnryKeyRec key = SnryScene.keys[slot];
    FormShow(dialog, key, Exchange);
    SnryLooks.cursorSync = key.cursorSync;
    SnryLooks.axes = key.axes;
    ShowSync(dialog);
  }
  ShowPlaces(dialog);
}

// kept: an assignment of a key that is added has no cursor sync, whatever its buttons show; a
// change gives it one.
bool AddRecord(WindowHandle dialog, int) {
  SnryKeyRec* key = FirstFree();
  if (!key) return false;
  FormTake(dialog, *key, Exchange);
  return true;
}

bool ChangeRecord(WindowHandle dialog, int row) {
  SnryKeyRec& key = SnryScene.keys[SlotOfRow(row)];
  FormTake(dialog, key, Exchange);
  key.cursorSync = SnryLooks.cursorSync;
  key.axes = SnryLooks.axes;
  return true;
}

bool DeleteRecord(WindowHandle, int row) {
  auto* key = SnryScene.keys + SlotOfRow(row);
  std::copy(key + 1, std::end(SnryScene.keys), key);
  SnryScene.keys[kSnryKeyMax - 1] = {};
  return true;
}

constexpr ListDeed kAdd{.may = [] { return FirstFree() != nullptr; },
                        .mayNot = {"設定できるキー/マウスは最大20個です", "割付の追加エラー"},
                        .question = {"キー/マウス割付を追加します", "割付の追加"},
                        .act = AddRecord};
constexpr ListDeed kChange{
    .needsRow = true, .question = {"キー/マウス割付を変更します。", "割付の変更"}, .act = ChangeRecord};
constexpr ListDeed kDelete{
    .needsRow = true, .question = {"キー/マウス割付を削除します。", "割付の削除"}, .act = DeleteRecord};

template <const ListDeed& deed>
void Edit(WindowHandle dialog) {
  const int row = ListEditorChosen(dialog, kRecords);
  if (!ListDeedRun(dialog, kRecords, deed)) return;
  if (&deed == &kChange) ListSelect(dialog, IDC_KEY_ROWS, row);
  ShowPlaces(dialog);
}

// --- Buttons that act on what is in hand

// One switch of three states: the mode that is on goes off.
template <std::uint8_t mode>
void Sync(WindowHandle dialog) {
  SnryLooks.cursorSync = SnryLooks.cursorSync == mode ? std::uint8_t{0} : mode;
  ShowSync(dialog);
}
template <std::uint8_t axis>
void Axis(WindowHandle dialog) {
  SnryLooks.axes = static_cast<std::uint8_t>(SnryLooks.axes ^ axis);
  ShowSync(dialog);
}

void Open(WindowHandle dialog) {
  SnryLooks.cursorSync = 0;
  SnryLooks.axes = 0;
  SnryKeyRec none{};
  none.key = 1;
  FormShow(dialog, none, Exchange);
  SnryPair pair{};
  FormShow(dialog, pair, ExchangePlace);
  ListEditorShow(dialog, kRecords);
  ShowSync(dialog);
  ShowPlaces(dialog);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_KEY_ROWS, EventKind::Chosen, RecordChosen},
    {IDC_KEY_PLACES, EventKind::Chosen, ShowPlace},
    {IDC_KEY_ADD, Edit<kAdd>},
    {IDC_KEY_CHANGE, Edit<kChange>},
    {IDC_KEY_DELETE, Edit<kDelete>},
    {IDC_KEY_PLACE_ADD, AddPlace},
    {IDC_KEY_PLACE_CHANGE, ChangePlace},
    {IDC_KEY_PLACE_DELETE, DeletePlace},
    {IDC_KEY_SYNC_START, Sync<kSyncStart>},
    {IDC_KEY_SYNC_END, Sync<kSyncEnd>},
    {IDC_KEY_SIDEWARDS, Axis<kSidewards>},
    {IDC_KEY_UP_DOWN, Axis<kUpAndDown>},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SceenKeyDlgRun(WindowHandle owner) {
  SnryDialogRun(SnryDialog::SceenKeyDlg, IDD_SceenKeyDlg, owner, Handle);
}
