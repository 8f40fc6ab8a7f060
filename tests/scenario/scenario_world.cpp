#include "tests/scenario/scenario_world.h"

#include "services/text.h"
#include "tests/support/bitmaps.h"

namespace {

template <std::size_t N>
void Put(char (&field)[N], const std::string& text) {
  TextCopy(field, N, text.c_str());
}

}  // namespace

void ScenarioWorldTest::SetUp() {
  ProgramTest::SetUp();
  StartProgram();
  MakeFolder("C:\\work\\背景");
  MakeFolder(InProgram("キャラクタ"));
  Put(Scenario.mainFolder, "C:\\work");
  const char* names[] = {"ミル", "ホーリオ", "メンティ", "ツキハ", "ピチュ", "コロモン"};
  for (const char* name : names) Put(SnryMain.charaNames[SnryMain.charaCount++].text, name);
  SnryMain.folderCount = 1;
  SnryMain.sceneCounts[0] = 1;
}

void ScenarioWorldTest::TearDown() {
  EXPECT_EQ(Dialogs.hToolDlg, nullptr);
  EXPECT_EQ(Dialogs.hSubDlg, nullptr);
  EXPECT_EQ(Dialogs.hSnryDlg, nullptr);
  EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::None);
  EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::None);
  EXPECT_EQ(Dialogs.DlgIdSnry, SnryDialog::None);
  ProgramTest::TearDown();
}

void ScenarioWorldTest::Register(int chara, const std::string& castName) {
  SnryMain.registered[chara - 1] = 1;
  ++SnryMain.registeredCount;
  Put(SnryMain.castNames[chara - 1].text, castName);
}

void ScenarioWorldTest::Parameter(int slot, const std::string& name) {
  SnryMain.paras[slot].used = 1;
  Put(SnryMain.paras[slot].name, name);
  if (SnryMain.paraCount <= slot) SnryMain.paraCount = static_cast<std::uint16_t>(slot + 1);
}

void ScenarioWorldTest::Cast(const std::vector<int>& ids) {
  SnrySceneRec& scene = SnrySceneNow();
  scene.castCount = static_cast<std::uint16_t>(ids.size());
  for (std::size_t place = 0; place < ids.size(); ++place)
    scene.cast[place] = static_cast<std::uint16_t>(ids[place]);
}

std::vector<int> ScenarioWorldTest::CastIds() {
  const SnrySceneRec& scene = SnrySceneNow();
  return {scene.cast, scene.cast + SnryCastCount(scene)};
}

void ScenarioWorldTest::Picture(int chara, int width, int height, bool mask) {
  const std::vector<int> pixels(static_cast<std::size_t>(width) * height * 3, 90);
  const std::string name = InProgram("キャラクタ\\Chara" + std::to_string(chara) + "_1");
  ASSERT_TRUE(PutFile(name + ".bmp", BitmapOf(width, height, pixels)));
  if (!mask) return;
  ASSERT_TRUE(PutFile(name + "x.bmp", BitmapOf(width, height, std::vector<int>(pixels.size()))));
}
