// SceenKeyDlg, "キー、マウス割付": what keys and actions of the mouse change in a scene.

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
#include "services/slots.h"
#include "services/text.h"

namespace {

constexpr int kNameMost = 32;

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
  return SlotsUsed(SnryScene.keys, &SnryKeyRec::key);
}

int SlotOf(int row) {
  return SlotOfRow(SnryScene.keys, row, &SnryKeyRec::key);
}

// The slot for another record; -1 when there is none.
int FreeSlot() {
  return SlotFree(SnryScene.keys, &SnryKeyRec::key);
}

const char* KeyText(int key) {
  return key >= 1 && key <= static_cast<int>(std::size(kKeys)) ? kKeys[key - 1] : "";
}

void RowText(int row, char* text, int size) {
  const SnryKeyRec& key = SnryScene.keys[SlotOf(row)];
  TextFormat(text, static_cast<std::size_t>(size), "[ %s ] - %s", KeyText(key.key), key.name);
}

constexpr ListEditor kRecords{IDC_KEY_ROWS, Count, RowText};

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
  SnryUnsignedPairExchange(form, IDC_KEY_PARA, IDC_KEY_VALUE, pair);
}

// --- The parameters of the current record

bool HasKey() {
  return SnryLooks.key >= 0;
}

// The current record; the first while there is none, which nobody asks for.
SnryKeyRec& Key() {
  return SnryScene.keys[HasKey() ? SnryLooks.key : 0];
}

// The place of a row of its parameters; -1 for a row that there is not.
int PlaceOf(int row) {
  return HasKey() ? SlotOfRow(Key().parameters, row) : -1;
}

SnryPair PairOf(int place) {
  return {Key().parameters[place], Key().values[place]};
}

constexpr ListEditor kPlaces{
    IDC_KEY_PLACES, [] { return HasKey() ? SlotsUsed(Key().parameters) : 0; },
    [](int row, char* text, int size) { SnryPlaceRowText(Key().parameters, row, text, size); }};

void ShowPlace(WindowHandle dialog) {
  const int place = PlaceOf(ListEditorChosen(dialog, kPlaces));
  if (place < 0) return;
  SnryPair pair = PairOf(place);
  FormShow(dialog, pair, ExchangePlace);
}

bool TakePlace(WindowHandle dialog, int place) {
  if (place < 0) return false;
  SnryPair pair = PairOf(place);
  FormTake(dialog, pair, ExchangePlace);
  Key().parameters[place] = pair.parameter;
  Key().values[place] = pair.value;
  return true;
}

constexpr ListDeed kAddPlace{
    .may = [] { return SlotFree(Key().parameters) >= 0; },
    .mayNot = {"設定できるパラメータは最大20個です", "パラメータ追加エラー"},
    .question = {"パラメータを追加", "パラメータの追加"},
    .act = [](WindowHandle dialog, int) { return TakePlace(dialog, SlotFree(Key().parameters)); }};
constexpr ListDeed kChangePlace{
    .needsRow = true,
    .question = {"パラメータを変更します。", "パラメータの変更"},
    .act = [](WindowHandle dialog, int row) { return TakePlace(dialog, PlaceOf(row)); }};
constexpr ListDeed kDeletePlace{.needsRow = true,
                                .question = {"パラメータを削除します。", "パラメータの削除"},
                                .act = [](WindowHandle, int row) {
                                  const int place = PlaceOf(row);
                                  SlotDrop(Key().parameters, place);
                                  SlotDrop(Key().values, place);
                                  return true;
                                }};

constexpr BoxWords kAddEmpty{"キー/マウスが設定されていません", "パラメータの追加エラー"};
constexpr BoxWords kChangeEmpty{"キーコードが設定されていません", "パラメータの変更エラー"};
constexpr BoxWords kUnasked{};

// kept: an assignment of a key that is empty is asked about, and takes the parameter all the same
// unless the answer is to cancel.
template <const ListDeed& deed, const BoxWords& empty>
void EditPlace(WindowHandle dialog) {
  if (!HasKey() || (Key().key == 0 && !BoxAsk(dialog, empty))) return;
  ListDeedRun(dialog, kPlaces, deed);
}

// --- The records

// Shows the parameters of the chosen record, or with none chosen those of the first that is
// empty.
void ShowPlaces(WindowHandle dialog) {
  const int slot = SlotOf(ListEditorChosen(dialog, kRecords));
  SnryLooks.key = slot >= 0 ? slot : FreeSlot();
  ListEditorShow(dialog, kPlaces);
}

void RecordChosen(WindowHandle dialog) {
  ShowPlaces(dialog);
  if (ListEditorChosen(dialog, kRecords) < 0) return;
  FormShow(dialog, Key(), Exchange);
  SnryLooks.cursorSync = Key().cursorSync;
  SnryLooks.axes = Key().axes;
  ShowSync(dialog);
}

// kept: an assignment of a key that is added has no cursor sync, whatever its buttons show; a
// change gives it one.
// settled: a key assignment is not added while no key is chosen, as it is behind one whose key
// the list does not have.
bool AddRecord(WindowHandle dialog, int) {
  const int slot = FreeSlot();
  if (slot < 0 || ListSelected(dialog, IDC_KEY_KEY) < 0) return false;
  FormTake(dialog, SnryScene.keys[slot], Exchange);
  return true;
}

bool ChangeRecord(WindowHandle dialog, int row) {
  SnryKeyRec& key = SnryScene.keys[SlotOf(row)];
  FormTake(dialog, key, Exchange);
  key.cursorSync = SnryLooks.cursorSync;
  key.axes = SnryLooks.axes;
  return true;
}

bool DeleteRecord(WindowHandle, int row) {
  SlotDrop(SnryScene.keys, SlotOf(row));
  return true;
}

constexpr ListDeed kAdd{.may = [] { return FreeSlot() >= 0; },
                        .mayNot = {"設定できるキー/マウスは最大20個です", "割付の追加エラー"},
                        .question = {"キー/マウス割付を追加します", "割付の追加"},
                        .act = AddRecord};
constexpr ListDeed kChange{.needsRow = true,
                           .keepsRow = true,
                           .question = {"キー/マウス割付を変更します。", "割付の変更"},
                           .act = ChangeRecord};
constexpr ListDeed kDelete{
    .needsRow = true, .question = {"キー/マウス割付を削除します。", "割付の削除"}, .act = DeleteRecord};

template <const ListDeed& deed>
void Edit(WindowHandle dialog) {
  if (ListDeedRun(dialog, kRecords, deed)) ShowPlaces(dialog);
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
    {IDC_KEY_PLACE_ADD, EditPlace<kAddPlace, kAddEmpty>},
    {IDC_KEY_PLACE_CHANGE, EditPlace<kChangePlace, kChangeEmpty>},
    {IDC_KEY_PLACE_DELETE, EditPlace<kDeletePlace, kUnasked>},
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
