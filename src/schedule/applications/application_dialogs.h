// The dialogs of the schedule applications; each reads the list first.
#pragma once

#include <cstdint>

#include "resources/schedule_applications_ids.h"
#include "schedule/applications/application_list.h"
#include "services/list_editor.h"

// The list that both dialogs show.
inline constexpr ListEditor kApliEntries{
    IDC_APLI_LIST, [] { return static_cast<int>(Applications.ApliCount); }, ApliRowText};

// "スケジュール用アプリケーション選択": the entry to be started, from 1; 0 for none.
std::int32_t SclApliListDialogRun();

// "スケジュール用アプリケーション登録".
int SclRegiApliListDialogRun();

// The menu of the own applications: the command that was chosen, None without one.
int MyAplicationDlgRun();
