// The listing of changes: every place where a parameter is tested or set.
//
// kept: in the changes of a parameter the special buttons of the menus, the keys, the scrolling
// and what randoms calculate with are not looked at, though they can name it.

#include "scenario/storage/snry_tables.h"
#include "scenario/trace/snry_walk.h"
#include "scenario/trace/walk_scene.h"
#include "services/rows.h"
#include "services/text.h"

namespace {

void Folder(SnryWalk& walk) {
  const SnryFolderRec& folder = WalkFolder(walk);
  const int number = walk.folder + 1;
  if (folder.start.parameter == walk.parameter) {
    WalkSay(walk, "[シナリオ-%d] > 起動条件 --> 値 = %d (%s)", number, folder.start.value, folder.name);
  } else {
    WalkSay(walk, "[シナリオ-%d] (%s)", number, folder.name);
  }
}

void Start(SnryWalk& walk) {
  const SnrySceneRec& scene = WalkSceneRec(walk);
  const int number = walk.scene + 1;
  if (scene.start.parameter == walk.parameter) {
    WalkSay(walk, "   [場面-%d] > 起動条件 --> 値 = %d (%s)", number, scene.start.value, scene.name);
  } else {
    WalkSay(walk, "   [場面-%d] (%s)", number, scene.name);
  }
}

void Title(SnryWalk& walk) {
  const SnryTitleRec& title = SnryScene.title;
  if (title.shown == 0 || title.end.parameter != walk.parameter) return;
  WalkSay(walk, "   > タイトル終了時変更 --> 値 %d (%s)", title.end.value, title.text);
}

// One line for all places of an item that set the parameter.
void MenuItem(SnryWalk& walk, int menu, int item) {
  const SnryMenuRec& record = SnryScene.menus[menu];
  char line[kRowTextSize] = "";
  int length = 0;
  for (int place = 0; place < kSnryPlaces; ++place) {
    if (record.itemParameters[item][place] != walk.parameter) continue;
    char* end = line + length;
    const std::size_t room = sizeof line - static_cast<std::size_t>(length);
    length += length == 0 ? TextFormat(end, room, "   > メニュー No.%d の項目%dで変更--> 値 = %d", menu + 1,
                                       item + 1, record.itemValues[item][place])
                          // kept: a further change by the same menu item shows the numbers of the
                          // menu and of the item where the item and the value should stand.
                          : TextFormat(end, room, " >項目%dで変更--> 値 = %d", menu + 1, item + 1);
  }
  if (length != 0) WalkSay(walk, "%s (%s)", line, record.itemTexts[item]);
}

void Menus(SnryWalk& walk) {
  for (int menu = 0; menu < kSnryMenuMax; ++menu) {
    const SnryMenuRec& record = SnryScene.menus[menu];
    if (record.enabled == 0) continue;
    if (record.start.parameter == walk.parameter) {
      WalkSay(walk, "   > メニュー No.%d の起動条件-->  値 = %d ", menu + 1, record.start.value);
    }
    for (int item = 0; item < record.itemCount && item < kSnryMenuItemMax; ++item) MenuItem(walk, menu, item);
  }
}

// What an event does to a parameter, by its operation and its sign; operation 4 is about
// no value.
void EventPlace(SnryWalk& walk, int event, int place) {
  const SnryEventRec& record = SnryScene.events[event];
  const int number = event + 1;
  const int value = record.values[place];
  const bool minus = record.signs[place] != 0;
  switch (record.operations[place]) {
    case 0:
      WalkSay(walk, "   > イベント No.%d で変更--> 値 = %d", number, value);
      break;
    case 1:
      WalkSay(walk,
              minus ? "   > イベント No.%d で変更--> 現在値から(入力値×%d)を引く(入力値=%d～%d)"
                    : "   > イベント No.%d で変更--> 現在値から(入力値×%d)を足す(入力値=%d～%d)",
              number, value, record.lowest, record.highest);
      break;
    case 2:
      WalkSay(walk,
              minus ? "   > イベント No.%d で変更--> 現在値から(入力値÷%d)を引く(入力値=%d～%d)"
                    : "   > イベント No.%d で変更--> 現在値から(入力値÷%d)を足す(入力値=%d～%d)",
              number, value, record.lowest, record.highest);
      break;
    case 3:
      WalkSay(walk,
              minus ? "   > イベント No.%d で変更--> 現在値から %d を引く"
                    : "   > イベント No.%d で変更--> 現在値から %d を足す",
              number, value);
      break;
    default:
      break;
  }
}

void Events(SnryWalk& walk) {
  for (int event = 0; event < kSnryEventMax; ++event) {
    const SnryEventRec& record = SnryScene.events[event];
    if (record.enabled == 0) continue;
    if (record.start.parameter == walk.parameter) {
      WalkSay(walk, "   > イベント No.%d の起動条件-->  値 = %d (%s)", event + 1, record.start.value,
              record.name);
    }
    for (int place = 0; place < kSnryPlaces; ++place) {
      if (record.parameters[place] == walk.parameter) EventPlace(walk, event, place);
    }
  }
}

void RandomPlace(SnryWalk& walk, int random, int place) {
  const SnryRandomRec& record = SnryScene.randoms[random];
  // kept: in the changes of a parameter a random that calculates is listed as one that counts by
  // a fixed number.
  if (record.modes[place] != 0) {
    WalkSay(walk, "   > ランダム No.%d で変更--> 値 = 現在値±%d ", random + 1, record.counts[place]);
  } else {
    WalkSay(walk, "   > ランダム No.%d で変更--> 値 = %d～%d", random + 1, record.ranges[place][0],
            record.ranges[place][1]);
  }
}

void Randoms(SnryWalk& walk) {
  for (int random = 0; random < kSnryRandomMax; ++random) {
    const SnryRandomRec& record = SnryScene.randoms[random];
    if (record.enabled == 0) continue;
    if (record.start.parameter == walk.parameter) {
      WalkSay(walk, "   > ランダム No.%d の起動条件-->  値 = %d (インタバル時間 %d x0.1 秒)", random + 1,
              record.start.value, record.interval);
    }
    for (int place = 0; place < kSnryPlaces; ++place) {
      if (record.parameters[place] == walk.parameter) RandomPlace(walk, random, place);
    }
  }
}

void Entry(SnryWalk& walk, int id) {
  const SnryCastRec& cast = SnryCastAt(id - 1);
  if (cast.entry.parameter == walk.parameter) {
    WalkSay(walk, "   > 人物 (%s) 登場条件--> 値 = %d", WalkCastName(id), cast.entry.value);
  }
  if (cast.exit.parameter == walk.parameter) {
    WalkSay(walk, "   > 人物 (%s) 退場条件--> 値 = %d", WalkCastName(id), cast.exit.value);
  }
}

void Lines(SnryWalk& walk, int id) {
  const SnryCastRec& cast = SnryCastAt(id - 1);
  for (int place = 0; place < kSnryCastPlaces; ++place) {
    if (cast.lines[place] == 0) continue;
    char text[kWalkTextMost + 1];
    TextCopyWhole(text, sizeof text, SnryLineAt(cast.lines[place] - 1).text);
    if (cast.lineParameters[place] == walk.parameter) {
      WalkSay(walk, "   > 人物 (%s) 台詞--> 値 = %d (%s)", WalkCastName(id), cast.lineValues[place], text);
    }
    if (cast.endParameters[place] == walk.parameter) {
      WalkSay(walk, "   > 人物 (%s) 台詞終了時変更--> 値 = %d (%s)", WalkCastName(id), cast.endValues[place],
              text);
    }
  }
}

void Sounds(SnryWalk& walk) {
  for (const SnrySoundRec& sound : SnryScene.sounds) {
    if (sound.used == 0 || sound.start.parameter != walk.parameter) continue;
    WalkSay(walk, "   > サウンド起動条件 --> 値 %d (%s)", sound.start.value, sound.file);
  }
}

void Scene(SnryWalk& walk) {
  Start(walk);
  Title(walk);
  Menus(walk);
  Events(walk);
  Randoms(walk);
  WalkCast(walk, Entry);
  WalkCast(walk, Lines);
  WalkCast(walk, WalkMotions);
  Sounds(walk);
}

}  // namespace

void SnryWalkChange(int slot, const SnryLineSink& sink) {
  if (slot < 0 || slot >= kSnryParaMax) return;
  SnryWalk walk{slot + 1};
  walk.sink = &sink;
  WalkSay(walk, "   > 初期値  --> 値 = %d ", SnryMain.paras[slot].initial);
  WalkScenario(walk, Folder, Scene);
}
