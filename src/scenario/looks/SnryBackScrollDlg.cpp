// SnryBackScrollDlg, "スクロール設定": the backgrounds that scroll behind a scene, and when
// they scroll which way.

#include <algorithm>
#include <iterator>
#include <span>

#include "platform/dialog.h"
#include "resources/scenario_looks_ids.h"
#include "scenario/cast/scenario_files.h"
#include "scenario/logic/snry_paras.h"
#include "scenario/logic/snry_places.h"
#include "scenario/looks/snry_looks.h"
#include "scenario/storage/snry_paths.h"
#include "services/dialog_acts.h"
#include "services/dialog_family.h"
#include "services/form.h"
#include "services/list_editor.h"
#include "services/slots.h"
#include "services/text.h"

namespace {

constexpr int kCharacterRows = 255;  // that the record's byte can tell

constexpr const char* kSpeeds[] = {
    "End",     "ReStart", "Pause On", "Pause Off", "0.01 sec", "0.02 sec", "0.03 sec", "0.04 sec", "0.05 sec",
    "0.1 sec", "0.2 sec", "0.3 sec",  "0.4 sec",   "0.5 sec",  "0.6 sec",  "0.7 sec",  "0.8 sec",  "0.9 sec",
    "1.0 sec", "1.5 sec", "2 sec",    "2.5 sec",   "3 sec",    "5 sec",    "10 sec",   "20 sec"};
static_assert(std::size(kSpeeds) == 26);
// In the order of SnryScrollRec::directions.
constexpr int kDirections[] = {IDC_SCROLL_UP, IDC_SCROLL_DOWN, IDC_SCROLL_RIGHT, IDC_SCROLL_LEFT};

SnryScrollRec& Scroll() {
  return SnryScene.scroll;
}

// --- The backgrounds

// bounded: a scene scrolls ten backgrounds at most, whatever the count says.
int Count() {
  return std::min<int>(Scroll().count, kSnryScrollMax);
}

constexpr ListEditor kBackgrounds{IDC_SCROLL_CHOSEN, Count, [](int row, char* text, int size) {
                                    TextCopy(text, static_cast<std::size_t>(size), Scroll().backgrounds[row]);
                                  }};

// The chosen file into a background; false without one.
bool TakeFile(WindowHandle dialog, int background) {
  const int row = ListSelected(dialog, IDC_SCROLL_FILES);
  if (row < 0) return false;
  char(&name)[kSnryScrollNameSize + 1] = Scroll().backgrounds[background];
  std::fill(std::begin(name), std::end(name), '\0');
  ListText(dialog, IDC_SCROLL_FILES, row, name, sizeof name);
  return true;
}

bool AddBackground(WindowHandle dialog, int) {
  if (Count() >= kSnryScrollMax || !TakeFile(dialog, Count())) return false;
  Scroll().count = static_cast<std::uint8_t>(Count() + 1);
  return true;
}

bool DeleteBackground(WindowHandle, int row) {
  std::span chosen(Scroll().backgrounds, static_cast<std::size_t>(Count()));
  SlotDrop(chosen, row);
  Scroll().count = static_cast<std::uint8_t>(Count() - 1);
  return true;
}

constexpr ListDeed kAdd{.may = [] { return Count() < kSnryScrollMax; },
                        .mayNot = {"設定できるスクロール背景は最大10個です", "スクロール背景追加エラー"},
                        .question = {"スクロール背景を追加します", "スクロール背景追加"},
                        .act = AddBackground};
// bounded: a change of a scrolling background needs one that is chosen; without it nothing is
// done.
constexpr ListDeed kChange{
    .needsRow = true, .question = {"スクロール背景を変更します", "スクロール背景変更"}, .act = TakeFile};
constexpr ListDeed kDeleteAsked{.needsRow = true,
                                .question = {"スクロール背景を削除します", "スクロール背景削除"},
                                .act = DeleteBackground};
constexpr ListDeed kDeleteUnasked{.needsRow = true, .act = DeleteBackground};

void Add(WindowHandle dialog) {
  ListDeedRun(dialog, kBackgrounds, kAdd);
}
void Change(WindowHandle dialog) {
  if (ListSelected(dialog, IDC_SCROLL_FILES) >= 0) ListDeedRun(dialog, kBackgrounds, kChange);
}
// kept: a scrolling background is taken out without a question while there are fewer than ten.
void Delete(WindowHandle dialog) {
  ListDeedRun(dialog, kBackgrounds, Count() == kSnryScrollMax ? kDeleteAsked : kDeleteUnasked);
}

// --- The conditions

constexpr ListEditor kPlaces{
    IDC_SCROLL_PLACES, [] { return SlotsUsed(Scroll().parameters); },
    [](int row, char* text, int size) { SnryPlaceRowText(Scroll().parameters, row, text, size); }};

struct Condition {
  SnryPair pair;
  std::uint8_t speed;
};

Condition ConditionOf(int place) {
  return {{Scroll().parameters[place], Scroll().values[place]}, Scroll().speeds[place]};
}

void ExchangePlace(Form& form, Condition& condition) {
  SnryUnsignedPairExchange(form, IDC_SCROLL_PARA, IDC_SCROLL_VALUE, condition.pair);
  form.Choice(IDC_SCROLL_SPEED, condition.speed, RowsOf(kSpeeds));
}

void ShowDirection(WindowHandle dialog) {
  for (int direction = 0; direction < static_cast<int>(std::size(kDirections)); ++direction) {
    ControlSetChecked(dialog, kDirections[direction], SnryLooks.direction == direction);
  }
}

template <std::uint8_t direction>
void Direct(WindowHandle dialog) {
  SnryLooks.direction = direction;
  ShowDirection(dialog);
}

void TakePlace(WindowHandle dialog, int place) {
  Condition condition = ConditionOf(place);
  FormTake(dialog, condition, ExchangePlace);
  Scroll().parameters[place] = condition.pair.parameter;
  Scroll().values[place] = condition.pair.value;
  Scroll().speeds[place] = condition.speed;
  Scroll().directions[place] = SnryLooks.direction;
}

void PlaceChosen(WindowHandle dialog) {
  const int place = SlotOfRow(Scroll().parameters, ListEditorChosen(dialog, kPlaces));
  if (place < 0) return;
  Condition condition = ConditionOf(place);
  FormShow(dialog, condition, ExchangePlace);
  SnryLooks.direction = Scroll().directions[place];
  ShowDirection(dialog);
}

constexpr ListDeed kAddPlace{.may = [] { return SlotFree(Scroll().parameters) >= 0; },
                             .mayNot = {"設定できるパラメータは最大20個です", "条件パラメータ追加エラー"},
                             .question = {"パラメータを追加します", "パラメータ追加"},
                             .act =
                                 [](WindowHandle dialog, int) {
                                   const int place = SlotFree(Scroll().parameters);
                                   if (place >= 0) TakePlace(dialog, place);
                                   return place >= 0;
                                 }};
constexpr ListDeed kChangePlace{.needsRow = true,
                                .question = {"パラメータを変更します", "パラメータ変更"},
                                .act = [](WindowHandle dialog, int row) {
                                  TakePlace(dialog, SlotOfRow(Scroll().parameters, row));
                                  return true;
                                }};
constexpr ListDeed kDeletePlace{.needsRow = true,
                                .question = {"パラメータを削除します", "パラメータ削除"},
                                .act = [](WindowHandle, int row) {
                                  const int place = SlotOfRow(Scroll().parameters, row);
                                  SlotDrop(Scroll().parameters, place);
                                  SlotDrop(Scroll().values, place);
                                  SlotDrop(Scroll().speeds, place);
                                  SlotDrop(Scroll().directions, place);
                                  return true;
                                }};

template <const ListDeed& deed>
void EditPlace(WindowHandle dialog) {
  ListDeedRun(dialog, kPlaces, deed);
}

// --- What acts at once, and the character

void ExchangeFlags(Form& form, SnryScrollRec& scroll) {
  form.Check(IDC_SCROLL_ENABLED, scroll.enabled);
  form.Check(IDC_SCROLL_MANUAL_UP, scroll.manualUp);
  form.Check(IDC_SCROLL_MANUAL_DOWN, scroll.manualDown);
  form.Check(IDC_SCROLL_MANUAL_RIGHT, scroll.manualRight);
  form.Check(IDC_SCROLL_MANUAL_LEFT, scroll.manualLeft);
}

void TakeFlags(WindowHandle dialog) {
  FormTake(dialog, Scroll(), ExchangeFlags);
}

void CharacterText(int row, char* text, int size) {
  TextCopy(text, static_cast<std::size_t>(size), row == 0 ? "未設定" : SnryMain.charaNames[row - 1].text);
}

// bounded: for scrolling only characters whose row a byte can tell are offered.
void ExchangeCharacter(Form& form, SnryScrollRec& scroll) {
  const int rows = 1 + std::min<int>({SnryMain.charaCount, kSnryCharaMax, kCharacterRows});
  form.Choice(IDC_SCROLL_CHARACTER, scroll.character, RowsOf(rows, CharacterText));
}

void Open(WindowHandle dialog) {
  ScenarioFilesShow(dialog, IDC_SCROLL_FILES, kSnryBackFolder, "bmp");
  ListEditorShow(dialog, kBackgrounds);
  ListEditorShow(dialog, kPlaces);
  Condition none{};
  FormShow(dialog, none, ExchangePlace);
  FormShow(dialog, Scroll(), ExchangeFlags);
  FormShow(dialog, Scroll(), ExchangeCharacter);
  SnryLooks.direction = 0;
  ShowDirection(dialog);
}

void Accept(WindowHandle dialog) {
  FormTake(dialog, Scroll(), ExchangeCharacter);
  SnryDialogEnd(dialog, kOkButton);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {IDC_SCROLL_ADD, Add},
    {IDC_SCROLL_CHANGE, Change},
    {IDC_SCROLL_DELETE, Delete},
    {IDC_SCROLL_PLACES, EventKind::Chosen, PlaceChosen},
    {IDC_SCROLL_PLACE_ADD, EditPlace<kAddPlace>},
    {IDC_SCROLL_PLACE_CHANGE, EditPlace<kChangePlace>},
    {IDC_SCROLL_PLACE_DELETE, EditPlace<kDeletePlace>},
    {IDC_SCROLL_UP, Direct<0>},
    {IDC_SCROLL_DOWN, Direct<1>},
    {IDC_SCROLL_RIGHT, Direct<2>},
    {IDC_SCROLL_LEFT, Direct<3>},
    {IDC_SCROLL_ENABLED, TakeFlags},
    {IDC_SCROLL_MANUAL_UP, TakeFlags},
    {IDC_SCROLL_MANUAL_DOWN, TakeFlags},
    {IDC_SCROLL_MANUAL_RIGHT, TakeFlags},
    {IDC_SCROLL_MANUAL_LEFT, TakeFlags},
    {kOkButton, Accept},
};

bool Handle(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void SnryBackScrollDlgRun(WindowHandle owner) {
  SnryDialogRun(SnryDialog::SnryBackScrollDlg, IDD_SnryBackScrollDlg, owner, Handle);
}
