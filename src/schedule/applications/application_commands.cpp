#include "schedule/applications/application_commands.h"

#include "schedule/applications/application_dialogs.h"
#include "schedule/applications/application_list.h"
#include "schedule/applications/hand_off.h"
#include "services/boxes.h"
#include "services/commands.h"
#include "services/feature_dialog.h"
#include "services/program.h"

namespace {

constexpr BoxWords kRunsAlready{"実行指定アプリケーションは起動中です", "アプリケーション起動中"};

}  // namespace

void CommandOwnApplications() {
  const int chosen = FeatureDialogRun(Feature::OwnApplications, MyAplicationDlgRun);
  if (chosen != 0) CommandSend(static_cast<Command>(chosen));
}

void CommandApplicationSelect() {
  const int entry = FeatureDialogRun(Feature::ScheduleTable, SclApliListDialogRun);
  if (entry == 0) return;
  ApliToStartSet(entry, 0);
  CommandSend(Command::ApplicationStart);
}

void CommandApplicationRun() {
  if (!ApliListHasSelected()) return;
  if (ApliSelectedIsRunning()) {
    BoxTell(Program.hMainWnd, kRunsAlready);
    return;
  }
  ApliToStartSet(Applications.ApliSelected, 1);
  CommandSend(Command::ApplicationStart);
}

void CommandApplicationRegister() {
  FeatureDialogRun(Feature::ScheduleTable, SclRegiApliListDialogRun);
}

void CommandApplicationStart() {
  ApliStart();
}
