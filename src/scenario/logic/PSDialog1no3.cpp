// PSDialog1no3, "ランダム方式": the page of the randoms.

#include "platform/dialog.h"
#include "resources/scenario_logic_ids.h"
#include "scenario/logic/snry_cast_choice.h"
#include "scenario/logic/snry_paras.h"
#include "scenario/logic/snry_places.h"
#include "scenario/logic/snry_sheet.h"
#include "services/dialog_acts.h"
#include "services/form.h"
#include "services/list_editor.h"
#include "services/slots.h"

namespace {

constexpr int kValueDigits = 3;
constexpr int kModes[] = {IDC_RANDOM_MODE_RANGE, IDC_RANDOM_MODE_COUNT, IDC_RANDOM_MODE_SUM};
constexpr const char* kOperations[] = {"=", "+", "-", "*", "/", "比較"};

SnryRandomRec& Random() {
  return SnryScene.randoms[SnrySheet.random];
}
SnryRandomExRec& RandomEx() {
  return SnryScene.randomExs[SnrySheet.random];
}

// --- The fields of a random

void Exchange(Form& form, SnryRandomRec& random) {
  form.Check(IDC_PAGE_ENABLED, random.enabled);
  SnryPairExchange(form, IDC_PAGE_START_PARA, IDC_PAGE_START_VALUE, random.start);
  form.Number(IDC_RANDOM_INTERVAL, random.interval, kValueDigits);
}

void ExchangeEx(Form& form, SnryRandomExRec& random) {
  form.Check(IDC_RANDOM_REPLACES, random.replaces);
  SnryCastExchange(form, IDC_RANDOM_REPLACED, SnryCastShow::Characters, random.replaced);
  SnryCastExchange(form, IDC_RANDOM_REPLACEMENT, SnryCastShow::Characters, random.replacement);
}

void Store(WindowHandle page) {
  FormTake(page, Random(), Exchange);
  FormTake(page, RandomEx(), ExchangeEx);
}

// --- What a random changes

struct Place {
  std::uint16_t parameter;
  std::uint16_t lowest;
  std::uint16_t highest;
  std::uint16_t count;
  std::uint8_t mode;
  std::uint8_t operation;  // row plus one; 0 for none
  std::uint16_t other;
};

void ExchangePlace(Form& form, Place& place) {
  SnryParaExchange(form, IDC_PAGE_PARA, place.parameter);
  form.Number(IDC_RANDOM_LOWEST, place.lowest, kValueDigits);
  form.Number(IDC_RANDOM_HIGHEST, place.highest, kValueDigits);
  form.Number(IDC_RANDOM_COUNT, place.count, kValueDigits);
  form.Radio(kModes, place.mode);
  int operation = place.operation - 1;
  form.Choice(IDC_RANDOM_OPERATION, operation, RowsOf(kOperations));
  if (form.Takes()) place.operation = static_cast<std::uint8_t>(operation + 1);
  SnryParaExchange(form, IDC_RANDOM_OTHER, place.other);
}

Place Get(int at) {
  const SnryRandomRec& random = Random();
  return {random.parameters[at], random.ranges[at][0],      random.ranges[at][1], random.counts[at],
          random.modes[at],      RandomEx().operations[at], RandomEx().others[at]};
}

bool TakeInto(WindowHandle page, int at) {
  if (at < 0) return false;
  Place place{};
  FormTake(page, place, ExchangePlace);
  SnryRandomRec& random = Random();
  random.parameters[at] = place.parameter;
  random.ranges[at][0] = place.lowest;
  random.ranges[at][1] = place.highest;
  random.counts[at] = place.count;
  random.modes[at] = place.mode;
  RandomEx().operations[at] = place.operation;
  RandomEx().others[at] = place.other;
  return true;
}

constexpr ListEditor kPlaces{
    IDC_PAGE_PLACES, [] { return SlotsUsed(Random().parameters); },
    [](int row, char* text, int size) { SnryPlaceText(Random().parameters, row, text, size); }};

// kept: when an entry of a random is deleted, the modes, operations and other parameters stay in
// their places, so that they no longer line up with the entries behind it.
bool DeletePlace(WindowHandle, int row) {
  SnryRandomRec& random = Random();
  const int place = SlotOfRow(random.parameters, row);
  SlotDrop(random.parameters, place);
  SlotDrop(random.ranges, place);
  SlotDrop(random.counts, place);
  return true;
}

constexpr ListDeed kAdd{
    .question = kSnryParaAddQuestion,
    .act = [](WindowHandle page, int) { return TakeInto(page, SlotFree(Random().parameters)); },
    .failed = kSnryParaFull};
constexpr ListDeed kChange{
    .needsRow = true, .question = kSnryParaChangeQuestion, .act = [](WindowHandle page, int row) {
      return TakeInto(page, SlotOfRow(Random().parameters, row));
    }};
constexpr ListDeed kDelete{
    .needsRow = true, .question = {"パラメータを削除します。", "パラメータの削除"}, .act = DeletePlace};

template <const ListDeed& deed>
void Edit(WindowHandle page) {
  ListDeedRun(page, kPlaces, deed);
}

void PlaceChosen(WindowHandle page) {
  const int at = SlotOfRow(Random().parameters, ListEditorChosen(page, kPlaces));
  if (at < 0) return;
  Place place = Get(at);
  FormShow(page, place, ExchangePlace);
}

// --- The page

void ShowRecord(WindowHandle page) {
  SnryRecordShow(page, SnrySheet.random);
  FormShow(page, Random(), Exchange);
  FormShow(page, RandomEx(), ExchangeEx);
  ListEditorShow(page, kPlaces);
}

void Open(WindowHandle page) {
  Place none{};
  FormShow(page, none, ExchangePlace);
  ShowRecord(page);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {EventKind::Apply, Store},
    {IDC_PAGE_UP, SnryPageStep<&SnrySheetState::random, Store, ShowRecord, 1>},
    {IDC_PAGE_DOWN, SnryPageStep<&SnrySheetState::random, Store, ShowRecord, -1>},
    {IDC_PAGE_ENABLED,
     [](WindowHandle page) { Random().enabled = ControlIsChecked(page, IDC_PAGE_ENABLED) ? 1 : 0; }},
    {IDC_RANDOM_REPLACES,
     [](WindowHandle page) { RandomEx().replaces = ControlIsChecked(page, IDC_RANDOM_REPLACES) ? 1 : 0; }},
    {IDC_PAGE_PLACES, EventKind::Chosen, PlaceChosen},
    {IDC_PAGE_PARA_ADD, Edit<kAdd>},
    {IDC_PAGE_PARA_CHANGE, Edit<kChange>},
    {IDC_PAGE_PARA_DELETE, Edit<kDelete>},
};

}  // namespace

bool SnryRandomPage(const Event& event) {
  SnryPageMark(event);
  return DialogActRun(event, kActs);
}
