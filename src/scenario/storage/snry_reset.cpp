#include "scenario/storage/snry_reset.h"

#include <algorithm>
#include <iterator>

#include "scenario/storage/snry_tables.h"
#include "scenario/storage/table_colours.h"
#include "services/text.h"
#include "world/world_list.h"

namespace {

template <class T, std::size_t N>
void Clear(T (&table)[N]) {
  if constexpr (std::is_array_v<T>) {
    for (T& row : table) Clear(row);
  } else {
    for (T& record : table) record = {};
  }
}

// The motions take the character's figures, the low byte of each.
void ResetMotions(SnryCastRec& cast, const WorldChara& chara) {
  for (int place = 0; place < kWorldFrames; ++place) {
    cast.motions[place] = static_cast<std::uint8_t>(chara.figureIds[place]);
    cast.motionParameters[place] = 0;
    cast.motionValues[place] = 0;
  }
}

// kept: exits, the ways in which lines end and the motions behind the twentieth stay when the
// cast is made anew.
void ResetCast(SnryCastRec& cast, const WorldChara& chara) {
  Clear(cast.lines);
  Clear(cast.lineParameters);
  Clear(cast.lineValues);
  cast.entry = {};
  ResetMotions(cast, chara);
}

}  // namespace

// kept: a new scenario has the names, the motions, the labels of buttons and the options that are
// in memory.
void SnryMainReset() {
  Clear(SnryMain.title);
  TextCopy(SnryMain.title, sizeof SnryMain.title, "無題");
  Clear(SnryMain.folders);
  Clear(SnryMain.scenes);
  Clear(SnryMain.paras);
  Clear(SnryMain.registered);
  SnryMain.folderCount = 0;
  SnryMain.registeredCount = 0;
  SnryMain.paraCount = 0;
}

void SnryCountsClear() {
  SnryMain.folderCount = 0;
  Clear(SnryMain.sceneCounts);
  Clear(SnryScene.keys);
  SnryMain.registeredCount = 0;
}

// kept: a new scene has the backdrop, the keys and the scrolling that are in memory.
void SnrySceneReset() {
  SnryCastReset();
  Clear(SnryScene.menus);
  Clear(SnryScene.events);
  for (SnryEventRec& event : SnryScene.events) event.type = SnryEventType::Time;
  Clear(SnryScene.randoms);
  Clear(SnryScene.randomExs);
  Clear(SnryScene.eventExs);
  SnryScene.title = {};
  Clear(SnryScene.sounds);
  SnryTableReset(SnryScene.table);
}

void SnryCastReset() {
  for (int slot = 0; slot < kSnryCharaMax; ++slot) ResetCast(SnryCastAt(slot), World.WorldCharas[slot]);
  for (int slot = 0; slot < kSnryLineSlots; ++slot) SnryLineAt(slot).used = 0;
}

void SnryTableReset(SnryTableRec& table) {
  table = {};
  TextCopy(table.itemTitle, sizeof table.itemTitle, "  項  目 ");
  TextCopy(table.settingTitle, sizeof table.settingTitle, "  設  定 ");
  TextCopy(table.dataTitle, sizeof table.dataTitle, "  データ ");
  SnryTableColours(table);
  table.kept236[1] = 7;
}

// kept: only a scenario's stage of 1000 lines or more and of a width from 1 to 1200 keeps its
// options; the sense of the test of the height is turned round.
void SnryOptionCheck() {
  SnryOptionRec& options = SnryMain.options;
  if (options.stageWidth >= 1 && options.stageWidth <= 1200 && options.stageHeight >= 1000) return;
  options.stageWidth = 840;
  options.stageHeight = 400;
  options.menuWidth = 840;
  options.menuHeight = 200;
  options.menuPosition = 0;
  options.menuFormat = 0;
  options.readingSpeed = 1;
  options.balloonFormat = 0;
}

void SnryWorldLoad() {
  const int read = WorldListRead();
  if (read < 0) return;
  SnryMain.charaCount = static_cast<std::uint16_t>(World.WorldCharaCount);
  for (int i = 0; i < read; ++i) {
    Clear(SnryMain.charaNames[i].text);
    TextCopy(SnryMain.charaNames[i].text, sizeof SnryMain.charaNames[i].text, World.WorldCharas[i].name);
  }
}

void SnryFiguresTake() {
  for (int i = 0; i < kSnryCharaMax; ++i) {
    const auto& figures = World.WorldCharas[i].figureIds;
    std::copy(std::begin(figures), std::end(figures), SnryMain.charMotions[i].figures);
  }
}
