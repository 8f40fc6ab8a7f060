#include "schedule/model/schedule_settings.h"

#include "services/text.h"

void ScheduleSettingsFactory() {
  Schedule.DefaultSclName[0] = '\0';
  TextCopy(Schedule.PlanTitles[0], kPlanTitleSize, "マイ トレーナー");
  TextCopy(Schedule.PlanTitles[1], kPlanTitleSize, "マイ マネージャー");
}
