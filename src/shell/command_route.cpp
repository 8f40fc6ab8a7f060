#include <algorithm>
#include <iterator>

#include "character/character_commands.h"
#include "clock_calendar/calendar/calendar_commands.h"
#include "clock_calendar/clock/clock_commands.h"
#include "filetools/back_up/back_up_commands.h"
#include "filetools/divide/divide_commands.h"
#include "filetools/open/open_commands.h"
#include "filetools/scope/scope_commands.h"
#include "filetools/tidy/tidy_commands.h"
#include "mail_music/mail/mail_commands.h"
#include "mail_music/music/music_commands.h"
#include "scenario/scenario_commands.h"
#include "schedule/applications/application_commands.h"
#include "schedule/execution/execution_commands.h"
#include "schedule/plan/plan_commands.h"
#include "schedule/rates/rates_commands.h"
#include "schedule/schedule_commands.h"
#include "schedule/table/row_commands.h"
#include "schedule/table/schedule_table_commands.h"
#include "shell/shell_commands.h"

namespace {

// A handler serves one number, or several and is told which.
struct Route {
  constexpr Route(Command c, void (*handler)()) : command(c), one(handler) {}
  constexpr Route(Command c, void (*handler)(Command)) : command(c), several(handler) {}
  void Run() const { one ? one() : several(command); }

  Command command;
  void (*one)() = nullptr;
  void (*several)(Command) = nullptr;
};

#define COMMAND(number, name, shownName, function) {Command::name, function},
constexpr Route kRoutes[] = {
#include "services/command_table.inc"
};
#undef COMMAND

constexpr bool NumbersRise() {
  for (std::size_t i = 1; i < std::size(kRoutes); ++i) {
    if (kRoutes[i - 1].command >= kRoutes[i].command) return false;
  }
  return true;
}
static_assert(NumbersRise(), "the command table is searched by halves");

}  // namespace

bool CommandRoute(std::uint32_t number) {
  const auto command = static_cast<Command>(number);
  const Route* end = std::end(kRoutes);
  const Route* route = std::lower_bound(std::begin(kRoutes), end, command,
                                        [](const Route& r, Command c) { return r.command < c; });
  if (route == end || route->command != command) return false;
  route->Run();
  return true;
}
