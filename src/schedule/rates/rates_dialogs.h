// The dialogs of how far a schedule has come, and of the map it is tied to; all are modal.
#pragma once

#include "platform/types.h"

// "予定表 - 目標達成率表示".
void SclSucsPerAndMapDlgRun(WindowHandle owner);
// "予定表ステータス マップ表示".
void DispCelSclMapPosDlgRun(WindowHandle owner);
// "マップ位置設定" and "予定表 ステータス設定", of the selected rows.
void SelMapListScnDlgRun(WindowHandle owner);
void SetSclStatusDlgRun(WindowHandle owner);
