// PSDialog1no2, "イベント方式": the page of the events, and PSDialog1no2_2, the same for a
// scene in the form of a table.

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

constexpr int kNameMost = 63;
constexpr int kComparisonMost = 32;
constexpr int kValueDigits = 3;
constexpr int kTypes[] = {IDC_EVENT_TEXT, IDC_EVENT_NUMBER, IDC_EVENT_TIME, IDC_EVENT_MEETING};
constexpr const char* kSigns[] = {"＋", "－"};
constexpr const char* kOperations[] = {"設定値に変更(符号は無視される)", "入力値掛ける設定値を＋/ー",
                                       "入力値割る設定値を＋/ー", "設定値を＋/ー",
                                       "④のキャラクタ間 方位を設定"};
constexpr Rows kAllOperations = RowsOf(kOperations);
constexpr Rows kTableOperations{kAllOperations.count - 1, kOperations};

SnryEventRec& TheEvent() {
  return SnryScene.events[SnrySheet.event];
}
SnryEventExRec& TheEventEx() {
  return SnryScene.eventExs[SnrySheet.event];
}

// --- The fields of an event

void ExchangeBoth(Form& form, SnryEventRec& event) {
  form.Check(IDC_PAGE_ENABLED, event.enabled);
  SnryPairExchange(form, IDC_PAGE_START_PARA, IDC_PAGE_START_VALUE, event.start);
  form.Text(IDC_EVENT_NAME, event.name, kNameMost);
  form.Check(IDC_EVENT_NAME_SHOWN, event.nameShown);
  form.Radio(kTypes, event.type);
  form.Text(IDC_EVENT_COMPARISON, event.comparison, kComparisonMost);
  form.Number(IDC_EVENT_LOWEST, event.lowest, kValueDigits);
  form.Number(IDC_EVENT_HIGHEST, event.highest, kValueDigits);
  form.Number(IDC_EVENT_MINUTES, event.minutes, kValueDigits);
  form.Number(IDC_EVENT_SECONDS, event.seconds, kValueDigits);
}

// The second character stands for its copies too, so they are not listed.
void ExchangePlain(Form& form, SnryEventRec& event) {
  ExchangeBoth(form, event);
  SnryCastExchange(form, IDC_EVENT_FIRST, SnryCastShow::All, event.first);
  SnryCastExchange(form, IDC_EVENT_SECOND, SnryCastShow::Characters, event.second);
}

void ExchangeTable(Form& form, SnryEventRec& event) {
  ExchangeBoth(form, event);
  SnryParaExchange(form, IDC_EVENT_FIRST, event.first);
  form.Number(IDC_EVENT_SECOND, event.second, kValueDigits);
}

// --- What an event changes

struct Place {
  std::uint16_t parameter;
  std::uint16_t value;
  std::uint8_t sign;
  std::uint8_t operation;
};

template <const Rows& operations>
void ExchangePlace(Form& form, Place& place) {
  SnryParaExchange(form, IDC_PAGE_PARA, place.parameter);
  form.Number(IDC_PAGE_VALUE, place.value, kValueDigits);
  form.Choice(IDC_EVENT_SIGN, place.sign, RowsOf(kSigns));
  form.Choice(IDC_EVENT_OPERATION, place.operation, operations);
}

void Put(int at, const Place& place) {
  SnryEventRec& event = TheEvent();
  event.parameters[at] = place.parameter;
  event.values[at] = place.value;
  event.signs[at] = place.sign;
  event.operations[at] = place.operation;
}

constexpr ListEditor kPlaces{
    IDC_PAGE_PLACES, [] { return SlotsUsed(TheEvent().parameters); },
    [](int row, char* text, int size) { SnryPlaceText(TheEvent().parameters, row, text, size); }};

// kept: a parameter that is added to an event is stored as the row of the combo box and not as
// the id that the row stands for; a change stores the id.
template <const Rows& operations>
bool AddPlace(WindowHandle page, int) {
  const int at = SlotFree(TheEvent().parameters);
  if (at < 0) return false;
  Place place{};
  FormTake(page, place, ExchangePlace<operations>);
  const int row = ListSelected(page, IDC_PAGE_PARA);
  place.parameter = static_cast<std::uint16_t>(row < 0 ? 0 : row);
  Put(at, place);
  return true;
}

template <const Rows& operations>
bool ChangePlace(WindowHandle page, int row) {
  const int at = SlotOfRow(TheEvent().parameters, row);
  Place place{};
  FormTake(page, place, ExchangePlace<operations>);
  Put(at, place);
  return true;
}

bool DeletePlace(WindowHandle, int row) {
  SnryEventRec& event = TheEvent();
  const int place = SlotOfRow(event.parameters, row);
  SlotDrop(event.parameters, place);
  SlotDrop(event.values, place);
  SlotDrop(event.signs, place);
  SlotDrop(event.operations, place);
  return true;
}

template <const Rows& operations>
constexpr ListDeed kAdd{
    .question = kSnryParaAddQuestion, .act = AddPlace<operations>, .failed = kSnryParaFull};
template <const Rows& operations>
constexpr ListDeed kChange{
    .needsRow = true, .question = kSnryParaChangeQuestion, .act = ChangePlace<operations>};
constexpr ListDeed kDelete{
    .needsRow = true, .question = {"パラメータを削除します。", "パラメータの変更"}, .act = DeletePlace};

template <const ListDeed& deed>
void Edit(WindowHandle page) {
  ListDeedRun(page, kPlaces, deed);
}

template <const Rows& operations>
void PlaceChosen(WindowHandle page) {
  const SnryEventRec& event = TheEvent();
  const int at = SlotOfRow(event.parameters, ListEditorChosen(page, kPlaces));
  if (at < 0) return;
  Place place{event.parameters[at], event.values[at], event.signs[at], event.operations[at]};
  FormShow(page, place, ExchangePlace<operations>);
}

// --- The page

using Fields = void (*)(Form&, SnryEventRec&);

template <Fields fields>
void Store(WindowHandle page) {
  FormTake(page, TheEvent(), fields);
}

template <Fields fields>
void ShowRecord(WindowHandle page) {
  SnryRecordShow(page, SnrySheet.event);
  FormShow(page, TheEvent(), fields);
  if (fields == ExchangeTable) ControlSetChecked(page, IDC_EVENT_REMEMBER, TheEventEx().remember != 0);
  ListEditorShow(page, kPlaces);
}

template <Fields fields, const Rows& operations>
void Open(WindowHandle page) {
  Place none{};
  FormShow(page, none, ExchangePlace<operations>);
  ShowRecord<fields>(page);
}

// What takes effect at once.
void ExchangeAtOnce(Form& form, SnryEventRec& event) {
  form.Check(IDC_PAGE_ENABLED, event.enabled);
  form.Check(IDC_EVENT_NAME_SHOWN, event.nameShown);
  form.Radio(kTypes, event.type);
}
void TakeAtOnce(WindowHandle page) {
  FormTake(page, TheEvent(), ExchangeAtOnce);
}
void TakeRemember(WindowHandle page) {
  TheEventEx().remember = ControlIsChecked(page, IDC_EVENT_REMEMBER) ? 1 : 0;
}

constexpr DialogAct kBothActs[] = {
    {IDC_PAGE_ENABLED, TakeAtOnce},     {IDC_EVENT_NAME_SHOWN, TakeAtOnce},
    {IDC_EVENT_TEXT, TakeAtOnce},       {IDC_EVENT_NUMBER, TakeAtOnce},
    {IDC_EVENT_TIME, TakeAtOnce},       {IDC_EVENT_MEETING, TakeAtOnce},
    {IDC_EVENT_REMEMBER, TakeRemember}, {IDC_PAGE_PARA_DELETE, Edit<kDelete>},
};

template <Fields fields, const Rows& operations>
constexpr DialogAct kActs[] = {
    {EventKind::Init, Open<fields, operations>},
    {EventKind::Apply, Store<fields>},
    {IDC_PAGE_UP, SnryPageStep<&SnrySheetState::event, Store<fields>, ShowRecord<fields>, 1>},
    {IDC_PAGE_DOWN, SnryPageStep<&SnrySheetState::event, Store<fields>, ShowRecord<fields>, -1>},
    {IDC_PAGE_PLACES, EventKind::Chosen, PlaceChosen<operations>},
    {IDC_PAGE_PARA_ADD, Edit<kAdd<operations>>},
    {IDC_PAGE_PARA_CHANGE, Edit<kChange<operations>>},
};

}  // namespace

bool SnryEventPage(const Event& event) {
  SnryPageMark(event);
  return DialogActRun(event, kActs<ExchangePlain, kAllOperations>) || DialogActRun(event, kBothActs);
}

bool SnryTableEventPage(const Event& event) {
  SnryPageMark(event);
  return DialogActRun(event, kActs<ExchangeTable, kTableOperations>) || DialogActRun(event, kBothActs);
}
