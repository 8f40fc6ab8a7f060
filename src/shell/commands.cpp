#include "shell/commands.h"

#include <algorithm>
#include <iterator>

#include "character/character_commands.h"
#include "clock_calendar/clock_calendar_commands.h"
#include "filetools/back_up/back_up_commands.h"
#include "filetools/divide/divide_commands.h"
#include "filetools/open/open_commands.h"
#include "filetools/scope/scope_commands.h"
#include "filetools/tidy/tidy_commands.h"
#include "mail_music/mail_music_commands.h"
#include "scenario/scenario_commands.h"
#include "schedule/schedule_commands.h"

namespace {

// A handler serves one number, or several and is told which.
struct Route {
  constexpr Route(std::uint32_t n, void (*handler)()) : number(n), one(handler) {}
  constexpr Route(std::uint32_t n, void (*handler)(std::uint32_t)) : number(n), several(handler) {}
  void Run() const { one ? one() : several(number); }

  std::uint32_t number;
  void (*one)() = nullptr;
  void (*several)(std::uint32_t) = nullptr;
};

#define COMMAND(number, name, function) {number, function},
constexpr Route kRoutes[] = {
#include "shell/command_table.inc"
};
#undef COMMAND

constexpr bool NumbersRise() {
  for (std::size_t i = 1; i < std::size(kRoutes); ++i) {
    if (kRoutes[i - 1].number >= kRoutes[i].number) return false;
  }
  return true;
}
static_assert(NumbersRise(), "the command table is searched by halves");

}  // namespace

bool CommandRoute(std::uint32_t number) {
  const Route* end = std::end(kRoutes);
  const Route* route = std::lower_bound(std::begin(kRoutes), end, number,
                                        [](const Route& r, std::uint32_t n) { return r.number < n; });
  if (route == end || route->number != number) return false;
  route->Run();
  return true;
}
