// Random scenarios, listed by the program and by a walker that knows no more than how the
// lines read.
#include <random>

#include "tests/scenario/trace/trace_fixture.h"

namespace {

std::string N(int number) {
  return std::to_string(number);
}

struct SceneModel {
  SceneData data;
  SnrySceneRec record;
};
struct FolderModel {
  SnryFolderRec record;
  std::vector<SceneModel> scenes;
};

std::string NameOf(int id) {
  return id <= 512 ? SnryMain.castNames[id - 1].text : "";
}
std::string ParaOf(int id) {
  return id == 0 ? "" : SnryMain.paras[id - 1].name;
}
std::string In(const std::string& text) {
  return " (" + text + ")";
}

// --- The listing of changes

void ChangeMenus(const SnrySceneState& s, int p, Lines& out) {
  int number = 0;
  for (const SnryMenuRec& menu : s.menus) {
    ++number;
    if (!menu.enabled) continue;
    const std::string head = "   > メニュー No." + N(number);
    if (menu.start.parameter == p) out.push_back(head + " の起動条件-->  値 = " + N(menu.start.value) + " ");
    for (int item = 1; item <= menu.itemCount; ++item) {
      std::string line;
      for (int place = 0; place < 20; ++place) {
        if (menu.itemParameters[item - 1][place] != p) continue;
        line += line.empty()
                    ? head + " の項目" + N(item) + "で変更--> 値 = " + N(menu.itemValues[item - 1][place])
                    : " >項目" + N(number) + "で変更--> 値 = " + N(item);
      }
      if (!line.empty()) out.push_back(line + In(menu.itemTexts[item - 1]));
    }
  }
}

std::string EventChange(const SnryEventRec& event, int place) {
  const std::string value = N(event.values[place]);
  const std::string range = "(入力値=" + N(event.lowest) + "～" + N(event.highest) + ")";
  const std::string verb = event.signs[place] ? "引く" : "足す";
  const int operation = event.operations[place];
  if (operation == 0) return "値 = " + value;
  if (operation == 3) return "現在値から " + value + " を" + verb;
  const std::string sign = operation == 1 ? "×" : "÷";
  return "現在値から(入力値" + sign + value + ")を" + verb + range;
}

void ChangeEvents(const SnrySceneState& s, int p, Lines& out) {
  int number = 0;
  for (const SnryEventRec& event : s.events) {
    ++number;
    if (!event.enabled) continue;
    const std::string head = "   > イベント No." + N(number);
    if (event.start.parameter == p) {
      out.push_back(head + " の起動条件-->  値 = " + N(event.start.value) + In(event.name));
    }
    for (int place = 0; place < 20; ++place) {
      if (event.parameters[place] == p && event.operations[place] < 4) {
        out.push_back(head + " で変更--> " + EventChange(event, place));
      }
    }
  }
}

void ChangeRandoms(const SnrySceneState& s, int p, Lines& out) {
  int number = 0;
  for (const SnryRandomRec& random : s.randoms) {
    ++number;
    if (!random.enabled) continue;
    const std::string head = "   > ランダム No." + N(number);
    if (random.start.parameter == p) {
      out.push_back(head + " の起動条件-->  値 = " + N(random.start.value) + " (インタバル時間 " +
                    N(random.interval) + " x0.1 秒)");
    }
    for (int place = 0; place < 20; ++place) {
      if (random.parameters[place] != p) continue;
      out.push_back(head + " で変更--> 値 = " +
                    (random.modes[place] ? "現在値±" + N(random.counts[place]) + " "
                                         : N(random.ranges[place][0]) + "～" + N(random.ranges[place][1])));
    }
  }
}

void Motions(const SceneModel& scene, int p, Lines& out) {
  for (int i = 0; i < scene.record.castCount; ++i) {
    const int id = scene.record.cast[i];
    if (id == 0) continue;
    const SnryCastRec& cast = scene.data.casts[static_cast<std::size_t>(id - 1)];
    for (int place = 0; place < 100; ++place) {
      const int figure = cast.motions[place];
      if (figure == 0 || cast.motionParameters[place] != p) continue;
      out.push_back("   > 人物" + In(NameOf(id)) + " 動作--> 値 = " + N(cast.motionValues[place]) +
                    In(figure <= 3 ? "動作" + N(figure) : ""));
    }
  }
}

void ChangeCast(const SceneModel& scene, int p, Lines& out) {
  for (int i = 0; i < scene.record.castCount; ++i) {
    const int id = scene.record.cast[i];
    if (id == 0) continue;
    const SnryCastRec& cast = scene.data.casts[static_cast<std::size_t>(id - 1)];
    const std::string head = "   > 人物" + In(NameOf(id));
    if (cast.entry.parameter == p) out.push_back(head + " 登場条件--> 値 = " + N(cast.entry.value));
    if (cast.exit.parameter == p) out.push_back(head + " 退場条件--> 値 = " + N(cast.exit.value));
  }
  for (int i = 0; i < scene.record.castCount; ++i) {
    const int id = scene.record.cast[i];
    if (id == 0) continue;
    const SnryCastRec& cast = scene.data.casts[static_cast<std::size_t>(id - 1)];
    const std::string head = "   > 人物" + In(NameOf(id));
    for (int place = 0; place < 100; ++place) {
      if (cast.lines[place] == 0) continue;
      const std::string text = In(scene.data.lines[static_cast<std::size_t>(cast.lines[place] - 1)].text);
      if (cast.lineParameters[place] == p) {
        out.push_back(head + " 台詞--> 値 = " + N(cast.lineValues[place]) + text);
      }
      if (cast.endParameters[place] == p) {
        out.push_back(head + " 台詞終了時変更--> 値 = " + N(cast.endValues[place]) + text);
      }
    }
  }
  Motions(scene, p, out);
}

Lines ChangeModel(const std::vector<FolderModel>& folders, int p) {
  Lines out{"   > 初期値  --> 値 = " + N(SnryMain.paras[p - 1].initial) + " "};
  int number = 0;
  for (const FolderModel& folder : folders) {
    const SnryPair& start = folder.record.start;
    out.push_back("[シナリオ-" + N(++number) + "]" +
                  (start.parameter == p ? " > 起動条件 --> 値 = " + N(start.value) : "") +
                  In(folder.record.name));
    int place = 0;
    for (const SceneModel& scene : folder.scenes) {
      const SnryPair& begin = scene.record.start;
      out.push_back("   [場面-" + N(++place) + "]" +
                    (begin.parameter == p ? " > 起動条件 --> 値 = " + N(begin.value) : "") +
                    In(scene.record.name));
      const SnrySceneState& s = scene.data.scene;
      if (s.title.shown && s.title.end.parameter == p) {
        out.push_back("   > タイトル終了時変更 --> 値 " + N(s.title.end.value) + In(s.title.text));
      }
      ChangeMenus(s, p, out);
      ChangeEvents(s, p, out);
      ChangeRandoms(s, p, out);
      ChangeCast(scene, p, out);
      for (const SnrySoundRec& sound : s.sounds) {
        if (sound.used && sound.start.parameter == p) {
          out.push_back("   > サウンド起動条件 --> 値 " + N(sound.start.value) + In(sound.file));
        }
      }
    }
  }
  return out;
}

// --- The listing of progress

// Lines that want a heading, and lines that go without one.
struct Part {
  std::string text;
  bool headed;
};

void ProgressLogic(const SnrySceneState& s, const SnryPair& pair, std::vector<Part>& parts) {
  const auto met = [&](const SnryPair& start) {
    return start.parameter == pair.parameter && start.value == pair.value;
  };
  int number = 0;
  for (const SnryMenuRec& menu : s.menus) {
    ++number;
    if (!menu.enabled || !met(menu.start)) continue;
    parts.push_back({"   > メニュー No." + N(number) + " の起動を起動", true});
    for (int item = 0; item < menu.itemCount; ++item)
      parts.push_back({"  " + In(menu.itemTexts[item]), true});
  }
  number = 0;
  for (const SnryEventRec& event : s.events) {
    ++number;
    if (!event.enabled || !met(event.start)) continue;
    parts.push_back({"   > イベント No." + N(number) + "  を起動" + In(event.name), true});
    for (int place = 0; place < 20; ++place) {
      const int id = event.parameters[place];
      if (id == 0 || event.operations[place] > 3) continue;
      static const char* const kWays[] = {"値 = ", "入力値 x ", "入力値 ÷ ", "± "};
      parts.push_back({"       パラメータ No." + N(id) + " 変更--> " + kWays[event.operations[place]] +
                           N(event.values[place]) + " " + In(ParaOf(id)),
                       true});
    }
  }
  number = 0;
  for (const SnryRandomRec& random : s.randoms) {
    ++number;
    if (!random.enabled || !met(random.start)) continue;
    parts.push_back(
        {"   > ランダム No." + N(number) + " を起動 (インタバル時間 " + N(random.interval) + " x0.1 秒)",
         true});
    for (int place = 0; place < 20; ++place) {
      if (random.parameters[place] == 0) continue;
      const int mode = random.modes[place];
      parts.push_back({"       パラメータ No." + N(mode) + " 変更--> 値 = " +
                           (mode ? "現在値±" + N(random.counts[place])
                                 : N(random.ranges[place][0]) + "～" + N(random.ranges[place][1])) +
                           " " + In(ParaOf(mode)),
                       true});
    }
  }
}

void ProgressCast(const SceneModel& scene, const SnryPair& pair, std::vector<Part>& parts) {
  std::vector<Part> lines;
  for (int i = 0; i < scene.record.castCount; ++i) {
    const int id = scene.record.cast[i];
    if (id == 0) continue;
    const SnryCastRec& cast = scene.data.casts[static_cast<std::size_t>(id - 1)];
    const std::string head = "   > 人物" + In(NameOf(id));
    const bool value = cast.entry.value == pair.value;
    if (cast.entry.parameter == pair.parameter && value) parts.push_back({head + " 登場", true});
    if (cast.exit.parameter == pair.parameter && value) parts.push_back({head + " 退場 ", true});
    for (int place = 0; place < 100; ++place) {
      if (cast.lines[place] == 0 || cast.lineParameters[place] != pair.parameter ||
          cast.lineValues[place] != pair.value) {
        continue;
      }
      lines.push_back(
          {head + " 台詞-->" + In(scene.data.lines[static_cast<std::size_t>(cast.lines[place] - 1)].text),
           true});
      const int end = cast.endParameters[place];
      if (end != 0) {
        lines.push_back({"   > 台詞終了時パラメータ" + N(end - 1) +
                             " 変更--> 値 = " + N(cast.endValues[place]) + In(ParaOf(end)),
                         true});
      }
    }
  }
  parts.insert(parts.end(), lines.begin(), lines.end());
  Lines motions;
  Motions(scene, pair.parameter, motions);
  for (const std::string& line : motions) parts.push_back({line, false});
  for (const SnrySoundRec& sound : scene.data.scene.sounds) {
    if (sound.used && sound.start.parameter == pair.parameter && sound.start.value == pair.value) {
      parts.push_back({"   > サウンド起動" + In(sound.file), false});
    }
  }
}

Lines ProgressModel(const std::vector<FolderModel>& folders, const SnryPair& pair) {
  Lines out;
  int number = 0;
  for (const FolderModel& folder : folders) {
    const std::string title = "[シナリオ-" + N(++number) + "]";
    const bool starts =
        folder.record.start.parameter == pair.parameter && folder.record.start.value == pair.value;
    if (starts) out.push_back("> " + title + " が 起動" + In(folder.record.name));
    bool titled = starts;
    int place = 0;
    for (const SceneModel& scene : folder.scenes) {
      const std::string name = "[場面-" + N(++place) + "]";
      bool named = false;
      if (scene.record.start.parameter == pair.parameter && scene.record.start.value == pair.value) {
        if (!titled) out.push_back(title + In(folder.record.name));
        out.push_back("> " + name + " が 起動" + In(scene.record.name));
        titled = named = true;
      }
      std::vector<Part> parts;
      ProgressLogic(scene.data.scene, pair, parts);
      ProgressCast(scene, pair, parts);
      for (const Part& part : parts) {
        if (part.headed && !titled) out.push_back(title + In(folder.record.name));
        if (part.headed && !named) out.push_back(name + In(scene.record.name));
        if (part.headed) titled = named = true;
        out.push_back(part.text);
      }
    }
  }
  return out;
}

// --- Random scenarios

class TraceRandomTest : public TraceTest {
 protected:
  int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
  std::uint16_t Id() { return static_cast<std::uint16_t>(Below(4)); }  // 0 for none
  std::uint16_t Value() { return static_cast<std::uint16_t>(Below(3)); }
  SnryPair Pair() { return {Id(), Value()}; }

  // The id of a copy, two times of three; else 0.
  int Copy() { return Below(3) == 0 ? 0 : 513 + Below(3); }

  void RandomLogic(SnrySceneState& s) {
    for (int i = 0; i < 4; ++i) {
      SnryMenuRec& menu = s.menus[Below(kSnryMenuMax)];
      menu.enabled = static_cast<std::uint8_t>(Below(2));
      menu.start = Pair();
      menu.itemCount = static_cast<std::uint8_t>(Below(11));
      for (int item = 0; item < 10; ++item) {
        Put(menu.itemTexts[item], "項目" + N(item));
        for (int k = 0; k < 3; ++k) menu.itemParameters[item][Below(20)] = Id();
        menu.itemValues[item][Below(20)] = Value();
      }
    }
    for (int i = 0; i < 5; ++i) {
      SnryEventRec& event = s.events[Below(kSnryEventMax)];
      event.enabled = static_cast<std::uint8_t>(Below(2));
      event.start = Pair();
      event.lowest = Value();
      event.highest = 900;
      Put(event.name, "出来事" + N(i));
      for (int k = 0; k < 20; ++k) {
        event.parameters[k] = Id();
        event.values[k] = Value();
        event.signs[k] = static_cast<std::uint8_t>(Below(2));
        event.operations[k] = static_cast<std::uint8_t>(Below(5));
      }
    }
    for (int i = 0; i < 5; ++i) {
      SnryRandomRec& random = s.randoms[Below(kSnryRandomMax)];
      random.enabled = static_cast<std::uint8_t>(Below(2));
      random.start = Pair();
      random.interval = static_cast<std::uint16_t>(Below(1000));
      for (int k = 0; k < 20; ++k) {
        random.parameters[k] = Id();
        random.modes[k] = static_cast<std::uint8_t>(Below(3));
        random.counts[k] = Value();
        random.ranges[k][1] = Value();
      }
    }
    for (int i = 0; i < 4; ++i) {
      SnrySoundRec& sound = s.sounds[Below(kSnrySoundMax)];
      sound.used = static_cast<std::uint8_t>(Below(2));
      sound.start = Pair();
      Put(sound.file, "音" + N(i) + ".wav");
    }
    s.title.shown = static_cast<std::uint8_t>(Below(2));
    s.title.end = Pair();
    Put(s.title.text, "題");
  }

  void RandomCast(SceneData& data) {
    for (const std::size_t slot : {0, 1, 2, 3, 512, 513, 514}) {
      SnryCastRec& cast = data.casts[slot];
      cast.master = static_cast<std::uint16_t>(slot < 512 ? 0 : 1 + Below(4));
      cast.entry = Pair();
      cast.exit = Pair();
      for (int k = 0; k < 6; ++k) {
        const int place = Below(kSnryCastPlaces);
        cast.lines[place] = static_cast<std::uint16_t>(Below(6));
        cast.lineParameters[place] = Id();
        cast.lineValues[place] = Value();
        cast.endParameters[place] = Id();
        cast.endValues[place] = Value();
        const int motion = Below(kSnryCastPlaces);
        cast.motions[motion] = static_cast<std::uint8_t>(Below(6));
        cast.motionParameters[motion] = Id();
        cast.motionValues[motion] = Value();
      }
    }
    for (std::size_t slot = 0; slot < 5; ++slot) {
      data.lines[slot].used = 1;
      Put(data.lines[slot].text, "台詞" + N(static_cast<int>(slot)));
    }
  }

  std::vector<FolderModel> RandomScenario() {
    std::vector<FolderModel> folders;
    StateReset(SnryMain);
    for (int id = 1; id <= 4; ++id) {
      SnryMain.registered[id - 1] = 1;
      Put(SnryMain.castNames[id - 1].text, "人" + N(id));
    }
    for (int id = 1; id <= 3; ++id) UsePara(id, "変数" + N(id), Below(900));
    const int count = 1 + Below(2);
    for (int folder = 0; folder < count; ++folder) {
      SnryFolderRec& record = AddFolder("話" + N(folder));
      record.start = Pair();
      FolderModel& model = folders.emplace_back();
      model.record = record;
      const int scenes = Below(3);
      for (int scene = 0; scene < scenes; ++scene) {
        SceneModel& entry = model.scenes.emplace_back();
        RandomLogic(entry.data.scene);
        RandomCast(entry.data);
        SnrySceneRec& made =
            AddScene("場" + N(scene), entry.data, {Below(5), 3, 0, Copy(), 1, Below(5), Copy()});
        made.start = Pair();
        entry.record = made;
      }
    }
    return folders;
  }

 private:
  std::mt19937 random_{20261122};
};

TEST_F(TraceRandomTest, TwoHundredScenariosListAsAWalkerOfItsOwnListsThem) {
  for (int round = 0; round < 200 && !HasFailure(); ++round) {
    const std::vector<FolderModel> folders = RandomScenario();
    const int id = 1 + Below(3);
    const SnryPair pair{static_cast<std::uint16_t>(id), Value()};
    EXPECT_EQ(Changes(id), ChangeModel(folders, id)) << round;
    EXPECT_EQ(Progress(id, pair.value), ProgressModel(folders, pair)) << round;
  }
}

}  // namespace
