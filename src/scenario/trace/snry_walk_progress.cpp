// The listing of progress: what would start if a parameter had a value. The headings of
// scenario and scene are written only in front of something that belongs to them.

#include "scenario/storage/snry_tables.h"
#include "scenario/trace/snry_walk.h"
#include "scenario/trace/walk_scene.h"

namespace {

// What of the heading has been written.
enum Heading { kNothing, kScenario, kWhole };

bool IsMet(const SnryWalk& walk, const SnryPair& condition) {
  return condition.parameter == walk.parameter && condition.value == walk.value;
}

void SayScenario(SnryWalk& walk) {
  WalkSay(walk, "[シナリオ-%d] (%s)", walk.folder + 1, WalkFolder(walk).name);
}

void Head(SnryWalk& walk) {
  if (walk.heading == kNothing) SayScenario(walk);
  if (walk.heading != kWhole) WalkSay(walk, "[場面-%d] (%s)", walk.scene + 1, WalkSceneRec(walk).name);
  walk.heading = kWhole;
}

void Folder(SnryWalk& walk) {
  walk.heading = kNothing;
  if (!IsMet(walk, WalkFolder(walk).start)) return;
  WalkSay(walk, "> [シナリオ-%d] が 起動 (%s)", walk.folder + 1, WalkFolder(walk).name);
  walk.heading = kScenario;
}

void Start(SnryWalk& walk) {
  if (walk.heading == kWhole) walk.heading = kScenario;
  if (!IsMet(walk, WalkSceneRec(walk).start)) return;
  if (walk.heading == kNothing) SayScenario(walk);
  WalkSay(walk, "> [場面-%d] が 起動 (%s)", walk.scene + 1, WalkSceneRec(walk).name);
  walk.heading = kWhole;
}

void Menus(SnryWalk& walk) {
  for (int menu = 0; menu < kSnryMenuMax; ++menu) {
    const SnryMenuRec& record = SnryScene.menus[menu];
    if (record.enabled == 0 || !IsMet(walk, record.start)) continue;
    Head(walk);
    WalkSay(walk, "   > メニュー No.%d の起動を起動", menu + 1);
    for (int item = 0; item < record.itemCount && item < kSnryMenuItemMax; ++item) {
      WalkSay(walk, "   (%s)", record.itemTexts[item]);
    }
  }
}

void EventPlace(SnryWalk& walk, const SnryEventRec& event, int place) {
  const int id = event.parameters[place];
  if (id == 0) return;
  const int value = event.values[place];
  switch (event.operations[place]) {
    case 0:
      WalkSay(walk, "       パラメータ No.%d 変更--> 値 = %d  (%s)", id, value, WalkParaName(id));
      break;
    case 1:
      WalkSay(walk, "       パラメータ No.%d 変更--> 入力値 x %d  (%s)", id, value, WalkParaName(id));
      break;
    case 2:
      WalkSay(walk, "       パラメータ No.%d 変更--> 入力値 ÷ %d  (%s)", id, value, WalkParaName(id));
      break;
    case 3:
      WalkSay(walk, "       パラメータ No.%d 変更--> ± %d  (%s)", id, value, WalkParaName(id));
      break;
    default:
      break;
  }
}

void Events(SnryWalk& walk) {
  for (int event = 0; event < kSnryEventMax; ++event) {
    const SnryEventRec& record = SnryScene.events[event];
    if (record.enabled == 0 || !IsMet(walk, record.start)) continue;
    Head(walk);
    WalkSay(walk, "   > イベント No.%d  を起動 (%s)", event + 1, record.name);
    for (int place = 0; place < kSnryPlaces; ++place) EventPlace(walk, record, place);
  }
}

// kept: what a random would change is listed under the number of the entry's mode, with the
// name of the parameter that has this number, not under the parameter that it changes.
// bounded: mode 0 of a random names no parameter, and shows an empty name.
void RandomPlace(SnryWalk& walk, const SnryRandomRec& random, int place) {
  if (random.parameters[place] == 0) return;
  const int mode = random.modes[place];
  if (mode != 0) {
    WalkSay(walk, "       パラメータ No.%d 変更--> 値 = 現在値±%d  (%s)", mode, random.counts[place],
            WalkParaName(mode));
  } else {
    WalkSay(walk, "       パラメータ No.%d 変更--> 値 = %d～%d  (%s)", mode, random.ranges[place][0],
            random.ranges[place][1], WalkParaName(mode));
  }
}

void Randoms(SnryWalk& walk) {
  for (int random = 0; random < kSnryRandomMax; ++random) {
    const SnryRandomRec& record = SnryScene.randoms[random];
    if (record.enabled == 0 || !IsMet(walk, record.start)) continue;
    Head(walk);
    WalkSay(walk, "   > ランダム No.%d を起動 (インタバル時間 %d x0.1 秒)", random + 1, record.interval);
    for (int place = 0; place < kSnryPlaces; ++place) RandomPlace(walk, record, place);
  }
}

void Entry(SnryWalk& walk, int id) {
  const SnryCastRec& cast = SnryCastAt(id - 1);
  if (IsMet(walk, cast.entry)) {
    Head(walk);
    WalkSay(walk, "   > 人物 (%s) 登場", WalkCastName(id));
  }
  // kept: whether a value lets somebody leave is asked of the value of the entry, not of the exit.
  if (IsMet(walk, {cast.exit.parameter, cast.entry.value})) {
    Head(walk);
    WalkSay(walk, "   > 人物 (%s) 退場 ", WalkCastName(id));
  }
}

void Lines(SnryWalk& walk, int id) {
  const SnryCastRec& cast = SnryCastAt(id - 1);
  for (int place = 0; place < kSnryCastPlaces; ++place) {
    if (cast.lines[place] == 0 || !IsMet(walk, {cast.lineParameters[place], cast.lineValues[place]}))
      continue;
    Head(walk);
    WalkSay(walk, "   > 人物 (%s) 台詞--> (%s)", WalkCastName(id), SnryLineAt(cast.lines[place] - 1).text);
    const int changed = cast.endParameters[place];
    // kept: the number of the parameter that a line changes at its end is listed one too low.
    if (changed != 0) {
      WalkSay(walk, "   > 台詞終了時パラメータ%d 変更--> 値 = %d (%s)", changed - 1, cast.endValues[place],
              WalkParaName(changed));
    }
  }
}

// kept: in what a value would start, motions and sounds are listed without a heading of their
// scene.
void Sounds(SnryWalk& walk) {
  for (const SnrySoundRec& sound : SnryScene.sounds) {
    if (sound.used != 0 && IsMet(walk, sound.start)) WalkSay(walk, "   > サウンド起動 (%s)", sound.file);
  }
}

void Scene(SnryWalk& walk) {
  Start(walk);
  Menus(walk);
  Events(walk);
  Randoms(walk);
  WalkCast(walk, Entry);
  WalkCast(walk, Lines);
  // kept: in what a value would start, motions are listed for any value of the parameter.
  WalkCast(walk, WalkMotions);
  Sounds(walk);
}

}  // namespace

void SnryWalkProgress(int slot, std::int32_t value, const SnryLineSink& sink) {
  if (slot < 0 || slot >= kSnryParaMax) return;
  SnryWalk walk{slot + 1};
  walk.value = value;
  walk.sink = &sink;
  WalkScenario(walk, Folder, Scene);
}
