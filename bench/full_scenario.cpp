// Leaves a scenario with full tables in a program folder: 512 characters of the world,
// each registered, 2,048 parameters or as many as are told, 30 scenario folders of 50
// scenes, and in each place where a parameter can stand another one. The first scene of
// the first folder has its file: 56 characters and 200 copies on stage, each with 100
// lines and 100 motions. The scenario is the only one of the list.
//
//   full_scenario FOLDER [PARAMETERS]

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <span>

#include "platform/file.h"
#include "platform/posix/posix_paths.h"
#include "scenario/storage/scenario.h"
#include "scenario/storage/snry_list_file.h"
#include "scenario/storage/snry_main_file.h"
#include "scenario/storage/snry_paths.h"
#include "scenario/storage/snry_reset.h"
#include "scenario/storage/snry_scene_file.h"
#include "scenario/storage/snry_tables.h"
#include "services/program.h"
#include "services/record_file.h"
#include "services/text.h"
#include "services/work_blocks.h"
#include "world/world_list.h"

namespace {

constexpr int kCopies = 200;
constexpr int kCharacters = kSnrySceneCastMax - kCopies;  // on stage

std::size_t parameters = kSnryParaMax;

void Need(bool good, const char* what) {
  if (good) return;
  std::fprintf(stderr, "cannot write %s\n", what);
  std::exit(1);
}

template <std::size_t N>
void Name(char (&to)[N], const char* form, int number) {
  TextFormat(to, N, form, number);
}

// The numbers of the parameters one after the other, from the first again behind the last.
std::uint16_t NextPara() {
  static std::size_t para = 0;
  return static_cast<std::uint16_t>(para++ % parameters + 1);
}

template <std::size_t N>
void Paras(std::uint16_t (&places)[N]) {
  std::generate(std::begin(places), std::end(places), NextPara);
}

// --- The world

void WriteFigures() {
  char path[kRootPathSize];
  WorldFlagPath(path, sizeof path);
  DataFile data;
  Need(DataReplace(data, path), path);
  RecordWrite(data, EdtcHead{kWorldCharaMax, kWorldFigureMax});
  for (int i = 0; i < kWorldFigureMax; ++i) {
    EdtcFigureRec figure{true, ""};
    Name(figure.name, "しぐさ%d", i + 1);
    RecordWrite(data, figure);
  }
  Need(!data.failed, path);
  DataClose(data);
}

void WriteCharacters() {
  char path[kRootPathSize];
  WorldDataPath(path, sizeof path);
  DataFile data;
  Need(DataReplace(data, path), path);
  for (int i = 0; i < kWorldCharaMax; ++i) {
    EdtcCharRec chara{};
    Name(chara.name, "世界の住人%d", i + 1);
    for (int frame = 0; frame < kWorldFrames; ++frame) {
      Name(chara.frameNames[frame], "こま%d", frame + 1);
      chara.figures[frame].id = static_cast<std::uint16_t>(frame + 1);
    }
    RecordWrite(data, chara);
  }
  Need(!data.failed, path);
  DataClose(data);
}

void MakeWorld() {
  for (const char* name : {"\\キャラクタ", kSnryWorldFolder}) {
    char path[kRootPathSize];
    RootPath(path, sizeof path, name);
    FolderCreate(path);
  }
  WriteFigures();
  WriteCharacters();
  SnryWorldLoad();
  SnryFiguresTake();
}

// --- The main file

void FillParas() {
  for (SnryParaRec& para : std::span(SnryMain.paras, parameters)) {
    para.used = 1;
    Name(para.name, "物語の変数その%d", ++SnryMain.paraCount);
    Name(para.comment, "物語が%dまで進んだかどうか", SnryMain.paraCount);
  }
}

void FillCasting() {
  SnryMain.registeredCount = kSnryCharaMax;
  std::fill(std::begin(SnryMain.registered), std::end(SnryMain.registered), std::uint8_t{1});
  for (int i = 0; i < kSnryCharaMax; ++i) Name(SnryMain.castNames[i].text, "役者%d", i + 1);
}

void FillFolder(int number) {
  SnryFolderRec& folder = SnryMain.folders[number];
  folder.used = 1;
  folder.start = {NextPara(), 1};
  TextFormat(folder.path, sizeof folder.path, "%s\\第%d章", Scenario.mainFolder, number + 1);
  Name(folder.name, "第%d章の物語", number + 1);
  SnryMain.sceneCounts[number] = kSnrySceneMax;
  for (int i = 0; i < kSnrySceneMax; ++i) {
    SnrySceneRec& scene = SnryMain.scenes[number][i];
    scene.used = 1;
    scene.start = {NextPara(), 1};
    Name(scene.file, "シーン%d.scd", i + 1);
    Name(scene.name, "場面その%d", i + 1);
  }
}

void MakeMain() {
  SnryMainReset();
  TextCopy(SnryMain.title, sizeof SnryMain.title, "長い長い物語");
  FillParas();
  FillCasting();
  SnryMain.folderCount = kSnryFolderMax;
  for (int i = 0; i < kSnryFolderMax; ++i) FillFolder(i);
  SnryMain.options.stageWidth = 0;
  SnryOptionCheck();
}

// --- The scene

void FillMember(SnryCastRec& member, int number) {
  member.entry = {NextPara(), 1};
  member.exit = {NextPara(), 2};
  Paras(member.motionParameters);
  Paras(member.lineParameters);
  Paras(member.endParameters);
  for (int place = 0; place < kSnryCastPlaces; ++place) {
    member.motions[place] = static_cast<std::uint8_t>(place % kWorldFrames + 1);
    const int slot = number * kSnryCastPlaces + place;
    member.lines[place] = static_cast<std::uint16_t>(slot + 1);
    SnryLineRec& line = SnryLineAt(slot);
    line.used = 1;
    Name(line.text, "台詞その%d、長い長い物語はまだまだ続く", slot + 1);
  }
}

void FillCast() {
  SnrySceneRec& scene = SnrySceneNow();
  scene.castCount = kSnrySceneCastMax;
  for (int place = 0; place < kSnrySceneCastMax; ++place) {
    const bool copy = place >= kCharacters;
    const int id = copy ? kSnryCopyFirst + place - kCharacters + 1 : place + 1;
    scene.cast[place] = static_cast<std::uint16_t>(id);
    SnryCastRec& member = SnryCastAt(id - 1);
    FillMember(member, place);
    member.master = copy ? 1 : 0;  // all are copies of the first
    member.copies = static_cast<std::uint8_t>(copy ? place - kCharacters : place == 0 ? kCopies : 0);
  }
}

void FillMenu(SnryMenuRec& menu) {
  menu.enabled = 1;
  menu.start = {NextPara(), 1};
  Paras(menu.buttonParameters);
  menu.itemCount = kSnryMenuItemMax;
  for (auto& item : menu.itemParameters) Paras(item);
  for (int i = 0; i < kSnryMenuItemMax; ++i) Name(menu.itemTexts[i], "選択肢%d", i + 1);
}

void FillEvent(SnryEventRec& event) {
  event.enabled = 1;
  event.start = {NextPara(), 1};
  event.first = kSnryCopyFirst + kCopies;  // the last of the cast
  event.second = kCharacters;
  Paras(event.parameters);
  TextCopy(event.name, sizeof event.name, "できごと");
}

void FillRandom(SnryRandomRec& random) {
  random.enabled = 1;
  random.start = {NextPara(), 1};
  Paras(random.parameters);
}

void FillKey(SnryKeyRec& key) {
  key.key = 1;
  Paras(key.parameters);
  key.syncCharacter = kSnryCopyFirst + kCopies;
}

void MakeScene() {
  FolderCreate(SnryFolderNow().path);
  SnrySceneReset();
  FillCast();
  for (SnryMenuRec& menu : SnryScene.menus) FillMenu(menu);
  for (SnryEventRec& event : SnryScene.events) FillEvent(event);
  for (SnryRandomRec& random : SnryScene.randoms) FillRandom(random);
  for (SnrySoundRec& sound : SnryScene.sounds) sound.start = {NextPara(), 1};
  for (SnryKeyRec& key : SnryScene.keys) FillKey(key);
  SnryScene.scroll.enabled = 1;
  Paras(SnryScene.scroll.parameters);
  Need(SnrySceneSave(0, 0) == 0, "the scene");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: full_scenario FOLDER [PARAMETERS]\n");
    return 2;
  }
  if (argc > 2) parameters = static_cast<std::size_t>(std::clamp(std::atoi(argv[2]), 1, kSnryParaMax));
  WorkBlocksAllocate();
  TextCopy(Program.RootFolder, sizeof Program.RootFolder, PosixToProgram(argv[1]).c_str());
  RootPath(Scenario.mainFolder, sizeof Scenario.mainFolder, "\\長い物語");
  for (const char* part : {"", kSnryBackFolder, kSnryCharaFolder, kSnrySoundFolder}) {
    char path[kSnryLongPath];
    SnryMainPart(path, sizeof path, part);
    FolderCreate(path);
  }
  MakeWorld();
  MakeMain();
  MakeScene();
  Need(SnrySaveMain() == 0, "the main file");
  SnryListPut();
  Need(SnryListWrite() == 0, "the list");
  return 0;
}
