// "場面進行方法設定", the property sheet of menus, events and randoms.
#pragma once

#include "platform/dialog.h"
#include "platform/event.h"
#include "scenario/storage/scenario.h"
#include "services/boxes.h"

inline constexpr int kSnryRecords = 100;  // that each page reaches

struct SnrySheetState {
  // As they stood when the sheet was opened.
  SnryMenuRec menus[kSnryMenuMax] = {};
  SnryEventRec events[kSnryEventMax] = {};
  SnryRandomRec randoms[kSnryRandomMax] = {};
  SnryRandomExRec randomExs[kSnryRandomMax] = {};

  // The records on show, from 0, and the item that is chosen among a menu's.
  std::int32_t menu = 0;
  std::int32_t event = 0;
  std::int32_t random = 0;
  std::int32_t item = 0;

  SnryParaRec para = {};  // in the fields of the dialogs of parameters
};
extern SnrySheetState SnrySheet;

// The pages. Each shows one record by its number.
bool SnryMenuPage(const Event& event);
bool SnryEventPage(const Event& event);       // with the cast
bool SnryTableEventPage(const Event& event);  // of a scene in the form of a table
bool SnryRandomPage(const Event& event);

// --- What the pages have in common

// From the record with that number, from 0, to the next above or below; behind the last
// comes the first.
int SnryRecordStep(int record, int step);
// The buttons "▲" and "▼" of a page, whose record has its number in the state: stores what
// is on show and shows the next.
template <std::int32_t SnrySheetState::*record, void (*store)(WindowHandle), void (*show)(WindowHandle),
          int step>
void SnryPageStep(WindowHandle page) {
  store(page);
  SnrySheet.*record = SnryRecordStep(SnrySheet.*record, step);
  show(page);
}
// Shows the number of the record, from 1.
void SnryRecordShow(WindowHandle page, int record);

// Marks a page as changed when something was done to it that it may have to take over.
void SnryPageMark(const Event& event);

// What is asked and told about a page's list of parameters.
inline constexpr BoxWords kSnryParaAddQuestion{"パラメータを追加します。", "パラメータの追加"};
inline constexpr BoxWords kSnryParaChangeQuestion{"パラメータを変更します。", "パラメータの変更"};
inline constexpr BoxWords kSnryParaFull{"パラメータの最大個数20を超えました", "パラメータ追加の中止"};
