#include "tests/support/house_rules.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <regex>
#include <set>

namespace fs = std::filesystem;

namespace {

// A room, by its folder, and the rooms below it that its files may include; what is in
// no folder of a room belongs to the room around it. Who may include a floor may include
// all rooms of it, but the rooms of one floor see each other only where it says so.
struct Room {
  const char* folder;
  std::vector<const char*> below;
};
const std::vector<Room> kRooms = {
    {"resources", {}},
    {"platform", {"resources"}},
    {"services", {"platform", "resources"}},
    {"world", {"services", "platform", "resources"}},
    {"character", {"world", "services", "platform", "resources"}},
    {"clock_calendar/clock", {"character", "world", "services", "platform", "resources"}},
    {"clock_calendar/calendar",
     {"clock_calendar/clock", "character", "world", "services", "platform", "resources"}},
    {"clock_calendar",
     {"clock_calendar/clock", "clock_calendar/calendar", "character", "world", "services", "platform",
      "resources"}},
    {"schedule/model", {"clock_calendar", "character", "world", "services", "platform", "resources"}},
    {"schedule/table",
     {"schedule/model", "clock_calendar", "character", "world", "services", "platform", "resources"}},
    {"schedule/plan",
     {"schedule/model", "schedule/table", "clock_calendar", "character", "world", "services", "platform",
      "resources"}},
    {"schedule/applications",
     {"schedule/model", "clock_calendar", "character", "world", "services", "platform", "resources"}},
    {"schedule/rates",
     {"schedule/model", "schedule/table", "schedule/applications", "clock_calendar", "character", "world",
      "services", "platform", "resources"}},
    {"schedule/execution",
     {"schedule/model", "schedule/table", "schedule/applications", "clock_calendar", "character", "world",
      "services", "platform", "resources"}},
    {"schedule",
     {"schedule/model", "schedule/table", "schedule/plan", "schedule/applications", "schedule/rates",
      "schedule/execution", "clock_calendar", "character", "world", "services", "platform", "resources"}},
    {"filetools/open",
     {"filetools", "schedule", "clock_calendar", "character", "world", "services", "platform", "resources"}},
    {"filetools/back_up", {"filetools", "character", "world", "services", "platform", "resources"}},
    {"filetools/divide", {"filetools", "character", "world", "services", "platform", "resources"}},
    {"filetools/scope", {"filetools", "character", "world", "services", "platform", "resources"}},
    {"filetools/tidy", {"filetools", "character", "world", "services", "platform", "resources"}},
    {"filetools", {"services", "platform", "resources"}},
    {"mail_music/mail",
     {"schedule", "clock_calendar", "character", "world", "services", "platform", "resources"}},
    {"mail_music/music",
     {"schedule", "clock_calendar", "character", "world", "services", "platform", "resources"}},
    {"mail_music",
     {"mail_music/mail", "mail_music/music", "schedule", "clock_calendar", "character", "world", "services",
      "platform", "resources"}},
    {"scenario/storage",
     {"schedule", "clock_calendar", "character", "world", "services", "platform", "resources"}},
    {"scenario/logic",
     {"scenario/storage", "schedule", "clock_calendar", "character", "world", "services", "platform",
      "resources"}},
    {"scenario/characters",
     {"scenario/storage", "scenario/logic", "schedule", "clock_calendar", "character", "world", "services",
      "platform", "resources"}},
    {"scenario/cast",
     {"scenario/storage", "scenario/logic", "scenario/characters", "schedule", "clock_calendar", "character",
      "world", "services", "platform", "resources"}},
    {"scenario/looks",
     {"scenario/storage", "scenario/logic", "scenario/characters", "scenario/cast", "schedule",
      "clock_calendar", "character", "world", "services", "platform", "resources"}},
    {"scenario/trace",
     {"scenario/storage", "scenario/logic", "scenario/characters", "scenario/cast", "scenario/looks",
      "schedule", "clock_calendar", "character", "world", "services", "platform", "resources"}},
    {"scenario",
     {"scenario/storage", "scenario/logic", "scenario/characters", "scenario/cast", "scenario/looks",
      "scenario/trace", "schedule", "clock_calendar", "character", "world", "services", "platform",
      "resources"}},
    {"shell",
     {"filetools", "mail_music", "scenario", "schedule", "clock_calendar", "character", "world", "services",
      "platform", "resources"}},
};

bool LiesIn(const std::string& path, const std::string& folder) {
  return path.starts_with(folder + "/");
}

// The innermost room of a file; null for none.
const Room* RoomOf(const std::string& path) {
  const Room* room = nullptr;
  for (const Room& candidate : kRooms) {
    if (!LiesIn(path, candidate.folder)) continue;
    if (!room || std::string(candidate.folder).size() > std::string(room->folder).size()) room = &candidate;
  }
  return room;
}

bool IsOuterOf(const std::string& outer, const std::string& inner) {
  return LiesIn(inner + "/", outer);
}

// A room's row names what it may include: the target's own room, or the floor that the
// target's room is a part of. The floor around a room counts only for what lies in none
// of its rooms.
bool MayInclude(const Room& from, const Room& to) {
  if (&from == &to) return true;
  return std::any_of(from.below.begin(), from.below.end(), [&](const char* allowed) {
    if (std::string(to.folder) == allowed) return true;
    const bool ownFloor = IsOuterOf(allowed, from.folder) || IsOuterOf(from.folder, allowed);
    return !ownFloor && IsOuterOf(allowed, to.folder);
  });
}

std::string Unit(const std::string& path) {
  return path.substr(0, path.rfind('.'));
}

// The files of the tree that a file includes.
std::vector<std::string> Includes(const SourceTree& tree, const std::string& path) {
  static const std::regex kInclude("#\\s*include\\s*\"([^\"]+)\"");
  std::vector<std::string> names;
  const std::string& text = tree.at(path);
  for (std::sregex_iterator it(text.begin(), text.end(), kInclude), end; it != end; ++it) {
    const std::string name = (*it)[1];
    if (tree.contains(name)) names.push_back(name);
  }
  return names;
}

// --- State

// Whose state may be written by whom, where it is not every file of its own room. The
// key is the state's instance, the files are units, or all files of a floor.
const std::map<std::string, std::vector<std::string>> kOwners = {
    {"Panel", {"shell/DspDiskMenu", "shell/panel_tick"}},
    {"Program", {"shell/start", "shell/shutdown"}},
    // The tables of a scenario are kept in one room and edited in all of them.
    {"Scenario", {"scenario/"}},
    {"SnryMain", {"scenario/"}},
    {"SnryScene", {"scenario/"}},
};

// The result of file operations is no feature's: whoever does one leaves its result, and
// a caller of a picker sets it beforehand.
const std::set<std::string> kEverybodys = {"FileResult"};

struct State {
  std::string folder;  // of its header
  std::string header;
};

std::map<std::string, State> States(const SourceTree& tree) {
  static const std::regex kExtern("^extern (\\w+) (\\w+);", std::regex::multiline);
  std::map<std::string, State> states;
  for (const auto& [path, text] : tree) {
    if (!path.ends_with(".h") || LiesIn(path, "platform")) continue;
    for (std::sregex_iterator it(text.begin(), text.end(), kExtern), end; it != end; ++it) {
      states[(*it)[2]] = {path.substr(0, path.rfind('/')), path};
    }
  }
  return states;
}

bool MayWrite(const std::string& path, const std::string& instance, const State& state) {
  if (kEverybodys.contains(instance)) return true;
  const auto owners = kOwners.find(instance);
  if (owners == kOwners.end()) return LiesIn(path, state.folder) && path.rfind('/') == state.folder.size();
  return std::any_of(owners->second.begin(), owners->second.end(), [&](const std::string& owner) {
    return owner.ends_with("/") ? path.starts_with(owner) : owner == Unit(path);
  });
}

int LineOf(const std::string& text, std::size_t at) {
  return 1 + static_cast<int>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
}

void FindAll(const std::string& path, const std::string& code, const std::regex& pattern,
             const std::function<std::string(const std::smatch&)>& finding,
             std::vector<std::string>* findings) {
  for (std::sregex_iterator it(code.begin(), code.end(), pattern), end; it != end; ++it) {
    const std::string what = finding(*it);
    if (what.empty()) continue;
    findings->push_back(path + ":" + std::to_string(LineOf(code, static_cast<std::size_t>(it->position()))) +
                        ": " + what);
  }
}

}  // namespace

SourceTree SourceTreeRead(const std::string& folder) {
  SourceTree tree;
  for (const auto& item : fs::recursive_directory_iterator(folder)) {
    const std::string extension = item.path().extension().string();
    if (extension != ".h" && extension != ".cpp" && extension != ".inc") continue;
    std::ifstream file(item.path(), std::ios::binary);
    tree[fs::relative(item.path(), folder).string()] =
        std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return tree;
}

std::vector<std::string> LintFloors(const SourceTree& tree) {
  std::vector<std::string> findings;
  for (const auto& [path, text] : tree) {
    const Room* from = RoomOf(path);
    if (!from) {
      findings.push_back(path + ": lies in no room");
      continue;
    }
    for (const std::string& name : Includes(tree, path)) {
      const Room* to = RoomOf(name);
      if (to && !MayInclude(*from, *to)) findings.push_back(path + " -> " + name);
    }
  }
  return findings;
}

std::vector<std::string> LintCircles(const SourceTree& tree) {
  std::map<std::string, std::set<std::string>> edges;
  for (const auto& [path, text] : tree) {
    for (const std::string& name : Includes(tree, path)) {
      if (Unit(name) != Unit(path)) edges[Unit(path)].insert(Unit(name));
    }
  }
  // A unit from which a way leads back to itself is in a circle; each circle is told
  // once, as the way from its first unit.
  std::vector<std::string> findings;
  std::set<std::string> done;
  std::vector<std::string> way;
  const std::function<void(const std::string&)> walk = [&](const std::string& unit) {
    const auto begin = std::find(way.begin(), way.end(), unit);
    if (begin != way.end()) {
      std::string circle;
      for (auto it = begin; it != way.end(); ++it) circle += *it + " -> ";
      findings.push_back(circle + unit);
      return;
    }
    if (done.contains(unit)) return;
    way.push_back(unit);
    for (const std::string& next : edges[unit]) walk(next);
    way.pop_back();
    done.insert(unit);
  };
  std::vector<std::string> units;
  for (const auto& [unit, to] : edges) units.push_back(unit);
  for (const std::string& unit : units) walk(unit);
  return findings;
}

std::vector<std::string> LintState(const SourceTree& tree) {
  static const std::regex kAnyExtern("^extern [^;(]*;", std::regex::multiline);
  static const std::regex kState("^extern [A-Z]\\w+(State|Rec|Set) [A-Z]\\w+;");
  static const std::regex kWrite(
      "(\\+\\+|--)?\\b([A-Z]\\w+)((?:\\.\\w+|\\[[^\\]]*\\])*)\\s*(=(?!=)|[-+*/|&^%]=|<<=|>>=|\\+\\+|--)?");
  const std::map<std::string, State> states = States(tree);
  std::vector<std::string> findings;
  for (const auto& [path, text] : tree) {
    if (LiesIn(path, "platform")) continue;
    const std::string code = SourceCodeOnly(text);
    if (path.ends_with(".h")) {
      FindAll(
          path, code, kAnyExtern,
          [&](const std::smatch& m) {
            return std::regex_match(m.str(), kState) ? "" : "no state of a feature: " + m.str();
          },
          &findings);
    }
    FindAll(
        path, code, kWrite,
        [&](const std::smatch& m) -> std::string {
          const bool writes = m[1].matched || (m[4].matched && m[4].length() != 0);
          const auto state = states.find(m[2]);
          const bool whole = m[3].length() == 0;
          if (!writes || state == states.end() || (whole && path == state->second.header)) return "";
          if (whole && m[4] == "") return "";
          return MayWrite(path, m[2], state->second)
                     ? ""
                     : "writes " + m[2].str() + m[3].str() + ", which is " + state->second.header + "'s";
        },
        &findings);
  }
  return findings;
}

std::vector<std::string> LintResets(const SourceTree& tree) {
  constexpr const char* kList = "shell/states.cpp";
  const std::string list = tree.contains(kList) ? SourceCodeOnly(tree.at(kList)) : "";
  std::vector<std::string> findings;
  for (const auto& [instance, state] : States(tree)) {
    const std::regex named("\\b" + instance + "\\b");
    const std::regex reset("\\bStateReset\\(" + instance + "\\)");
    const auto resets = [&](const auto& file) { return std::regex_search(file.second, reset); };
    if (std::regex_search(list, named) || std::any_of(tree.begin(), tree.end(), resets)) continue;
    findings.push_back(state.header + ": " + instance + " is never made new");
  }
  return findings;
}

std::vector<std::string> LintNumbers(const SourceTree& tree) {
  static const std::regex kSend("\\b(SendCommand|CommandSend|CommandSendTo)\\([^;]*\\b\\d{2,}\\s*\\)");
  static const std::regex kCompare("\\.command\\s*[=!]=\\s*\\d{4}");
  static const std::regex kOrder("\\b(Get|Put)(LE|BE)(16|32)\\b");
  std::vector<std::string> findings;
  for (const auto& [path, text] : tree) {
    if (LiesIn(path, "platform")) continue;
    const std::string code = SourceCodeOnly(text);
    const auto tell = [](const char* what) {
      return [what](const std::smatch& m) { return what + m.str(); };
    };
    FindAll(path, code, kSend, tell("a bare number is sent: "), &findings);
    FindAll(path, code, kCompare, tell("a bare number is compared: "), &findings);
    FindAll(path, code, kOrder, tell("bytes are put in order outside the codec: "), &findings);
  }
  return findings;
}
