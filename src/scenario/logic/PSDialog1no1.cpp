// PSDialog1no1, "メニュー方式": the page of the menus.

#include <algorithm>
#include <iterator>

#include "platform/dialog.h"
#include "resources/scenario_logic_ids.h"
#include "scenario/logic/snry_paras.h"
#include "scenario/logic/snry_places.h"
#include "scenario/logic/snry_sheet.h"
#include "services/dialog_acts.h"
#include "services/form.h"
#include "services/list_editor.h"
#include "services/slots.h"
#include "services/text.h"

namespace {

constexpr int kTextMost = 99;
constexpr int kValueDigits = 3;
constexpr const char* kMethods[] = {" マウス左ダブルクリック or Enterキー", " マウス左ダブルクリック",
                                    " Enterキー", " マウス左クリック", " マウス左クリック or Enterキー"};

SnryMenuRec& Menu() {
  return SnryScene.menus[SnrySheet.menu];
}

// bounded: a menu of a scene has ten items at most, whatever its count says.
int ItemCount() {
  return std::min<int>(Menu().itemCount, kSnryMenuItemMax);
}

bool IsItem(int item) {
  return item >= 0 && item < ItemCount();
}
bool ItemIsChosen() {
  return IsItem(SnrySheet.item);
}

// --- The fields of a menu

void LabelText(int row, char* text, int size) {
  TextCopy(text, static_cast<std::size_t>(size), row == 0 ? "使用しない" : SnryMain.labels[row - 1].text);
}

void ExchangeButton(Form& form, SnryMenuRec& menu, int button, int labelId, int paraId, int valueId) {
  form.Choice(labelId, menu.buttonLabels[button], RowsOf(1 + kSnryLabelMax, LabelText));
  SnryParaExchange(form, paraId, menu.buttonParameters[button]);
  form.Number(valueId, menu.buttonValues[button], kValueDigits);
}

void Exchange(Form& form, SnryMenuRec& menu) {
  form.Check(IDC_PAGE_ENABLED, menu.enabled);
  SnryPairExchange(form, IDC_PAGE_START_PARA, IDC_PAGE_START_VALUE, menu.start);
  ExchangeButton(form, menu, 0, IDC_MENU_LABEL1, IDC_MENU_PARA1, IDC_MENU_VALUE1);
  ExchangeButton(form, menu, 1, IDC_MENU_LABEL2, IDC_MENU_PARA2, IDC_MENU_VALUE2);
  form.Choice(IDC_MENU_METHOD, menu.method, RowsOf(kMethods));
}

void Store(WindowHandle page) {
  FormTake(page, Menu(), Exchange);
}

// --- The items

constexpr ListEditor kItems{IDC_MENU_ITEMS, ItemCount, [](int row, char* text, int size) {
                              TextCopy(text, static_cast<std::size_t>(size), Menu().itemTexts[row]);
                            }};

SnryPlaces& Parameters() {
  return Menu().itemParameters[ItemIsChosen() ? SnrySheet.item : 0];
}
SnryPlaces& Values() {
  return Menu().itemValues[ItemIsChosen() ? SnrySheet.item : 0];
}

void PlaceText(int row, char* text, int size) {
  const int id = Parameters()[SlotOfRow(Parameters(), row)];
  const bool isPara = SnryParaRowOf(id) != 0;
  if (isPara) SnryPlaceRowText(Parameters(), row, text, size);
  if (!isPara) TextCopy(text, static_cast<std::size_t>(size), SnryParaName(id));
}

constexpr ListEditor kPlaces{IDC_PAGE_PLACES, [] { return ItemIsChosen() ? SlotsUsed(Parameters()) : 0; },
                             PlaceText};

void ExchangePlace(Form& form, SnryPair& pair) {
  SnryPairExchange(form, IDC_PAGE_PARA, IDC_PAGE_VALUE, pair, kValueDigits);
}

void ShowItem(WindowHandle page, int item) {
  SnrySheet.item = item;
  ListSelect(page, IDC_MENU_ITEMS, item);
  ControlSetText(page, IDC_MENU_TEXT, IsItem(item) ? Menu().itemTexts[item] : "");
  ListEditorShow(page, kPlaces);
}

void TakeText(WindowHandle page, int item) {
  char(&text)[kSnryMenuTextSize + 1] = Menu().itemTexts[item];
  std::fill(std::begin(text), std::end(text), '\0');
  ControlGetText(page, IDC_MENU_TEXT, text, kTextMost + 1);
}

void ClearPlaces(int item) {
  std::fill(std::begin(Menu().itemParameters[item]), std::end(Menu().itemParameters[item]), std::uint16_t{0});
  std::fill(std::begin(Menu().itemValues[item]), std::end(Menu().itemValues[item]), std::uint16_t{0});
}

template <class T, std::size_t N>
void MoveUp(T (&table)[kSnryMenuItemMax][N], int item) {
  for (int i = item; i + 1 < kSnryMenuItemMax; ++i) {
    std::copy(std::begin(table[i + 1]), std::end(table[i + 1]), std::begin(table[i]));
  }
}

bool AddItem(WindowHandle page, int) {
  const int item = ItemCount();
  if (item >= kSnryMenuItemMax) return false;
  TakeText(page, item);
  ClearPlaces(item);
  Menu().itemCount = static_cast<std::uint8_t>(item + 1);
  return true;
}

// kept: when the tenth item of a menu is deleted, its text and its parameters stay behind the
// count.
bool DeleteItem(WindowHandle, int item) {
  const auto left = static_cast<std::uint8_t>(ItemCount() - 1);
  MoveUp(Menu().itemTexts, item);
  MoveUp(Menu().itemParameters, item);
  MoveUp(Menu().itemValues, item);
  if (item != kSnryMenuItemMax - 1) {
    Menu().itemTexts[kSnryMenuItemMax - 1][0] = '\0';
    ClearPlaces(kSnryMenuItemMax - 1);
  }
  Menu().itemCount = left;
  return true;
}

constexpr ListDeed kAddItem{.may = [] { return ItemCount() < kSnryMenuItemMax; },
                            .mayNot = {"メニューの最大数10項目を超えました", "メニュー追加の中止"},
                            .question = {"メニューを追加します。", "メニューの追加"},
                            .act = AddItem};
constexpr ListDeed kChangeItem{.needsRow = true,
                               .question = {"メニューを変更します。", "メニューの変更"},
                               .act = [](WindowHandle page, int item) {
                                 TakeText(page, item);
                                 return true;
                               }};
constexpr ListDeed kDeleteItem{
    .needsRow = true, .question = {"メニューを削除します。", "メニューの削除"}, .act = DeleteItem};

// What a new item, or a changed one, goes on with is its list of parameters; so it is
// chosen then.
void Add(WindowHandle page) {
  if (ListDeedRun(page, kItems, kAddItem)) ShowItem(page, ItemCount() - 1);
}
void Change(WindowHandle page) {
  if (ListDeedRun(page, kItems, kChangeItem)) ShowItem(page, SnrySheet.item);
}
void Delete(WindowHandle page) {
  if (ListDeedRun(page, kItems, kDeleteItem)) ShowItem(page, -1);
}

// --- The parameters of an item

bool TakeInto(WindowHandle page, int place) {
  if (place < 0) return false;
  SnryPair pair{};
  FormTake(page, pair, ExchangePlace);
  Parameters()[place] = pair.parameter;
  Values()[place] = pair.value;
  return true;
}

bool DeletePlace(WindowHandle, int row) {
  const int place = SlotOfRow(Parameters(), row);
  SlotDrop(Parameters(), place);
  SlotDrop(Values(), place);
  return true;
}

constexpr ListDeed kAddPlace{
    .may = ItemIsChosen,
    .mayNot = {"メニュー項目を追加または選択してください", "パラメータ追加の中止"},
    .question = kSnryParaAddQuestion,
    .act = [](WindowHandle page, int) { return TakeInto(page, SlotFree(Parameters())); },
    .failed = kSnryParaFull};
constexpr ListDeed kChangePlace{
    .needsRow = true, .question = kSnryParaChangeQuestion, .act = [](WindowHandle page, int row) {
      return TakeInto(page, SlotOfRow(Parameters(), row));
    }};
// kept: deleting a menu's or an event's parameter asks under the caption of a change.
constexpr ListDeed kDeletePlace{
    .needsRow = true, .question = {"パラメータを削除します。", "パラメータの変更"}, .act = DeletePlace};

constexpr BoxWords kNoneToChange{"メニュー項目を選択してください", "パラメータ変更の中止"};
constexpr BoxWords kNoneToDelete{"メニュー項目を選択してください", "パラメータ削除の中止"};

// Without an item this is told first; without a row nothing is.
template <const ListDeed& deed, const BoxWords& noItem>
void EditPlace(WindowHandle page) {
  if (!ItemIsChosen()) {
    BoxTell(page, noItem);
    return;
  }
  ListDeedRun(page, kPlaces, deed);
}

void PlaceChosen(WindowHandle page) {
  const int place = SlotOfRow(Parameters(), ListEditorChosen(page, kPlaces));
  if (place < 0) return;
  SnryPair pair{Parameters()[place], Values()[place]};
  FormShow(page, pair, ExchangePlace);
}

// --- The page

void ShowRecord(WindowHandle page) {
  SnryRecordShow(page, SnrySheet.menu);
  FormShow(page, Menu(), Exchange);
  ListEditorShow(page, kItems);
  ShowItem(page, -1);
}

void Open(WindowHandle page) {
  SnryPair none{};
  FormShow(page, none, ExchangePlace);
  ShowRecord(page);
}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {EventKind::Apply, Store},
    {IDC_PAGE_UP, SnryPageStep<&SnrySheetState::menu, Store, ShowRecord, 1>},
    {IDC_PAGE_DOWN, SnryPageStep<&SnrySheetState::menu, Store, ShowRecord, -1>},
    {IDC_PAGE_ENABLED,
     [](WindowHandle page) { Menu().enabled = ControlIsChecked(page, IDC_PAGE_ENABLED) ? 1 : 0; }},
    {IDC_MENU_ITEMS, EventKind::Chosen,
     [](WindowHandle page) { ShowItem(page, ListEditorChosen(page, kItems)); }},
    {IDC_MENU_ADD, Add},
    {IDC_MENU_CHANGE, Change},
    {IDC_MENU_DELETE, Delete},
    {IDC_PAGE_PLACES, EventKind::Chosen, PlaceChosen},
    {IDC_PAGE_PARA_ADD, [](WindowHandle page) { ListDeedRun(page, kPlaces, kAddPlace); }},
    {IDC_PAGE_PARA_CHANGE, EditPlace<kChangePlace, kNoneToChange>},
    {IDC_PAGE_PARA_DELETE, EditPlace<kDeletePlace, kNoneToDelete>},
};

}  // namespace

bool SnryMenuPage(const Event& event) {
  SnryPageMark(event);
  return DialogActRun(event, kActs);
}
