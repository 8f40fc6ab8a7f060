#include "newdata/sample_scenario.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "newdata/bmp.h"
#include "newdata/data_set.h"
#include "newdata/host_file.h"
#include "newdata/raster.h"
#include "newdata/sound.h"
#include "platform/file.h"
#include "platform/posix/posix_paths.h"
#include "scenario/cast/cast_copies.h"
#include "scenario/cast/cast_lines.h"
#include "scenario/cast/cast_list.h"
#include "scenario/characters/chara_regi.h"
#include "scenario/storage/scenario.h"
#include "scenario/storage/snry_folders.h"
#include "scenario/storage/snry_list_file.h"
#include "scenario/storage/snry_main_file.h"
#include "scenario/storage/snry_paths.h"
#include "scenario/storage/snry_reset.h"
#include "scenario/storage/snry_scene_file.h"
#include "services/program.h"
#include "services/state.h"
#include "services/text.h"
#include "services/work_blocks.h"

namespace {

// The scenario lies beside the list's folder, whose place on the user's disk is not known
// here: the program goes into the list's folder before it follows the way.
constexpr char kMainFolder[] = "..\\どんぐりの森";

enum Parameter : std::uint16_t { kNone, kKey, kFriends, kNight, kLoad, kSave, kLeave };

struct ParameterRow {
  const char* name;
  const char* comment;
  int initial;
  SnryAssignment assignment;
  bool statusBar;
};
constexpr ParameterRow kParameters[] = {
    {"書庫の鍵", "1 で書庫に入れる", 0, SnryAssignment::None, false},
    {"なかよし度", "話しかけると増える", 5, SnryAssignment::None, true},
    {"夜になった", "1 で星の夜へ", 0, SnryAssignment::None, false},
    {"ロード", "", 0, SnryAssignment::Load, false},
    {"セーブ", "", 0, SnryAssignment::Save, false},
    {"おわる", "", 0, SnryAssignment::Exit, false},
};

struct CastName {
  int chara;  // number
  const char* name;
};
constexpr CastName kCastNames[] = {
    {1, "配達員"},   {2, "書庫番"}, {3, "ちび竜"},  {4, "月の使い"},
    {6, "すずめ便"}, {8, "予定係"}, {12, "かえる"},
};

constexpr const char* kMotions[] = {"左へ歩く",   "右へ歩く",   "上へ歩く",   "下へ歩く", "左上へ歩く",
                                    "右上へ歩く", "左下へ歩く", "右下へ歩く", "停止する", "ランダム動作"};
constexpr const char* kLabels[] = {"次へ",   "戻る",   "進む",         "OK",           "キャンセル",
                                   "ロード", "セーブ", "ユーザー定義", "ユーザー定義", "ユーザー定義"};

struct Line {
  int chara;
  const char* text;
  SnryPair start;
};
struct Choice {
  const char* text;
  SnryPair change;
};
struct Scene {
  int folder;
  const char* file;
  const char* name;
  const char* background;
  const char* sound;  // repeated; empty for none
  SnryPair start;
  std::vector<int> cast;
  int copiesOf;  // a character, 0 for none
  std::vector<Line> lines;
  std::vector<Choice> choices;  // of the menu
  int minutes;                  // of the event; 0 for none
  const char* event;
  SnryPair after;  // what the event changes
};

constexpr const char* kFolders[] = {"森の朝", "星の夜"};

const std::vector<Scene> kScenes = {
    {0,
     "広場.scd",
     "朝の広場",
     "広場.bmp",
     "小鳥.wav",
     {kNone, 0},
     {1, 8, 12},
     12,
     {{1, "おはよう! どんぐりを届けにきたよ。", {kNone, 0}},
      {8, "きょうの予定は、書庫でさがしものです。", {kNone, 0}},
      {12, "けろけろ。鍵なら川べりで見たよ。", {kKey, 0}}},
     {{"川べりへ行く", {kFriends, 6}}, {"書庫へ行く", {kKey, 1}}, {"夜まで待つ", {kNight, 1}}},
     3,
     "日がくれる",
     {kNight, 1}},
    {0,
     "川べり.scd",
     "川べり",
     "川べり.bmp",
     "せせらぎ.wav",
     {kFriends, 6},
     {1, 12, 6},
     12,
     {{12, "この石の下に、ぴかぴかの鍵があったよ。", {kNone, 0}},
      {1, "ありがとう! 書庫にもどろう。", {kKey, 1}}},
     {{"鍵をひろう", {kKey, 1}}, {"広場にもどる", {kFriends, 5}}},
     0,
     "",
     {kNone, 0}},
    {0,
     "書庫.scd",
     "ふくろうの書庫",
     "書庫.bmp",
     "",
     {kKey, 1},
     {1, 2, 3},
     0,
     {{2, "ほう、よく来たね。どの本をさがしている?", {kNone, 0}},
      {3, "はくしょん! …ごめんなさい、本が鼻にくすぐったくて。", {kNone, 0}}},
     {{"星の本を借りる", {kNight, 1}}, {"もうすこし読む", {kFriends, 7}}},
     2,
     "本をとじる",
     {kFriends, 7}},
    {1,
     "丘.scd",
     "夕やけの丘",
     "丘.bmp",
     "",
     {kNight, 1},
     {4, 1},
     0,
     {{4, "もうすぐ一番星が出るよ。望遠鏡をのぞいてごらん。", {kNone, 0}}},
     {{"のぞく", {kFriends, 8}}, {"広場におりる", {kFriends, 9}}},
     1,
     "一番星",
     {kFriends, 8}},
    {1,
     "星の広場.scd",
     "星の広場",
     "星の広場.bmp",
     "",
     {kFriends, 9},
     {1, 2, 3, 4, 6},
     0,
     {{6, "ちゅん! みんな、おつかれさま。", {kNone, 0}}, {1, "また明日も、どんぐりを届けるね。", {kNone, 0}}},
     {{"おわる", {kLeave, 1}}, {"はじめから", {kNight, 0}}},
     0,
     "",
     {kNone, 0}},
};

template <std::size_t N>
void Put(char (&field)[N], const char* text) {
  TextCopy(field, N, text);
}

void Demand(bool good, const std::string& what) {
  if (!good) throw std::runtime_error(Cp932ToUtf8(what) + " cannot be written");
}

// --- The main file

void FillParameters() {
  for (const ParameterRow& row : kParameters) {
    SnryParaRec& para = SnryMain.paras[SnryMain.paraCount++];
    para = {};
    para.used = 1;
    para.initial = static_cast<std::uint16_t>(row.initial);
    Put(para.name, row.name);
    Put(para.comment, row.comment);
    para.assignment = row.assignment;
    para.statusBar = row.statusBar ? 1 : 0;
  }
}

void FillNames() {
  for (const CastName& row : kCastNames) {
    SnryNameRec name{};
    Put(name.text, row.name);
    CharaRegister(row.chara - 1, name);
  }
  for (const char* motion : kMotions) Put(SnryMain.motionNames[SnryMain.motionCount++].text, motion);
  for (std::size_t i = 0; i < std::size(kLabels); ++i) Put(SnryMain.labels[i].text, kLabels[i]);
}

void FillFolders() {
  for (const char* name : kFolders) {
    const std::string path = std::string(kMainFolder) + "\\" + name;
    FolderCreate(path.c_str());
    Demand(SnryFolderAdd(path.c_str()), path);
    Put(SnryMain.folders[SnryMain.folderCount - 1].name, name);
  }
  SnryMain.folders[1].start = {kNight, 1};
}

// --- A scene

void FillBackdrop(const Scene& scene) {
  SnryScene.backdrop = {};
  Put(SnryScene.backdrop.background, scene.background);
  Put(SnryScene.backdrop.door, "ドア.bmp");
  Put(SnryScene.backdrop.window, "窓.bmp");
  SnryScene.backdrop.windowMode = 1;
}

void FillCast(const Scene& scene) {
  for (const int chara : scene.cast) CastAdd(chara);
  for (const Line& line : scene.lines) {
    CastLine words{};
    Put(words.text, line.text);
    words.start = line.start;
    words.end = 1;  // after the time that the reading speed gives it
    CastLineAdd(SnryCastAt(line.chara - 1), words);
  }
  for (std::size_t i = 0; i < scene.cast.size(); ++i) {
    SnryCastRec& member = SnryCastAt(scene.cast[i] - 1);
    member.entryPosition = 2;
    member.standX = static_cast<std::uint16_t>(100 + 160 * i);
    member.standY = 280;
  }
  if (scene.copiesOf != 0) CastCopiesSet(scene.copiesOf, 2);
}

void FillMenu(const Scene& scene) {
  SnryMenuRec& menu = SnryScene.menus[0];
  menu.enabled = 1;
  menu.buttonLabels[0] = 7;  // セーブ
  menu.buttonParameters[0] = kSave;
  menu.buttonValues[0] = 1;
  for (const Choice& choice : scene.choices) {
    const int item = menu.itemCount++;
    Put(menu.itemTexts[item], choice.text);
    menu.itemParameters[item][0] = choice.change.parameter;
    menu.itemValues[item][0] = choice.change.value;
  }
}

void FillEvent(const Scene& scene) {
  if (scene.minutes == 0) return;
  SnryEventRec& event = SnryScene.events[0];
  event.enabled = 1;
  event.type = SnryEventType::Time;
  event.minutes = static_cast<std::uint8_t>(scene.minutes);
  event.nameShown = 1;
  Put(event.name, scene.event);
  event.parameters[0] = scene.after.parameter;
  event.values[0] = scene.after.value;
}

// Every half a minute the friendship goes up or down a little.
void FillRandom() {
  SnryRandomRec& random = SnryScene.randoms[0];
  random.enabled = 1;
  random.interval = 300;
  random.parameters[0] = kFriends;
  random.ranges[0][0] = 1;
  random.ranges[0][1] = 3;
}

void FillSound(const Scene& scene) {
  if (scene.sound[0] == '\0') return;
  SnrySoundRec& sound = SnryScene.sounds[0];
  sound.used = 1;
  sound.repeat = 1;
  sound.seconds = 20;
  Put(sound.file, scene.sound);
}

void FillTitle(const Scene& scene) {
  SnryScene.title.shown = 1;
  Put(SnryScene.title.text, scene.name);
  std::fill_n(SnryScene.title.textColour, 3, std::uint8_t{255});
}

void WriteScene(const Scene& scene) {
  Scenario.folderIndex = scene.folder;
  Scenario.sceneIndex = SnrySceneCountNow();
  Demand(SnrySceneAdd(scene.file), scene.file);
  SnrySceneRec& record = SnrySceneNow();
  Put(record.name, scene.name);
  record.start = scene.start;
  std::fill_n(record.fallback, 3, std::uint8_t{200});
  SnrySceneReset();
  FillBackdrop(scene);
  FillCast(scene);
  FillMenu(scene);
  FillEvent(scene);
  FillRandom();
  FillSound(scene);
  FillTitle(scene);
  Demand(SnrySceneSave(Scenario.folderIndex, Scenario.sceneIndex) == 0, scene.file);
}

void WriteScenario() {
  char world[kRootPathSize];
  SnryWorldPath(world, sizeof world);
  FolderCreate(world);
  Demand(FolderSetCurrent(world), world);
  Put(Scenario.mainFolder, kMainFolder);
  SnryMainReset();
  Put(SnryMain.title, "どんぐりの森");
  SnryOptionCheck();
  SnryWorldLoad();
  SnryFiguresTake();
  FillParameters();
  FillNames();
  FillFolders();
  for (const Scene& scene : kScenes) WriteScene(scene);
  Demand(SnrySaveMain() == 0, "シナリオメイン.cff");
  SnryListPut();
  Demand(SnryListWrite() == 0, "SNRYLIST.sli");
}

// --- Pictures and sounds

void WriteFiles(const std::filesystem::path& folder, const std::filesystem::path& assets) {
  const std::filesystem::path main = folder / kSampleFolder;
  for (const char8_t* part : {kBackgroundFolder, kCharacterFolder, kSoundFolder})
    std::filesystem::create_directories(main / part);
  for (const SamplePicture& picture : kSamplePictures) {
    const Frame frame = RenderFrame(assets / "scenario" / picture.drawing, 1);
    WriteHostFile(main / kBackgroundFolder / Cp932ToUtf8(picture.file), BmpFile(frame.picture));
  }
  for (const SampleSound& sound : kSampleSounds)
    WriteHostFile(main / kSoundFolder / Cp932ToUtf8(sound.file),
                  WavFile(MakeSoundOf(assets / "sounds" / sound.recipe)));
}

// The scenario's tables and blocks, fresh, and the folder that the caller was in.
class Workshop {
 public:
  Workshop() : folder_(std::filesystem::current_path()) {
    StateReset(Scenario);
    StateReset(SnryList);
    StateReset(SnryMain);
    StateReset(SnryScene);
    WorkBlocksAllocate();
  }
  Workshop(const Workshop&) = delete;
  Workshop& operator=(const Workshop&) = delete;
  ~Workshop() {
    ScopeBlockFree();
    CastBlockFree();
    std::filesystem::current_path(folder_);
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace

void WriteSampleScenario(const std::filesystem::path& folder, const std::filesystem::path& assets) {
  WriteFiles(folder, assets);
  const Workshop workshop;
  UseProgramFolder(folder);
  WriteScenario();
}
