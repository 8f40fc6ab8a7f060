// The records of a scenario's files: each field where it is told, and all bytes kept.
#include "tests/scenario/scenario_fixture.h"

namespace {

TEST(SnryRecords, OfTheMainFileLieAsTold) {
  RecordCheck<SnryListRec>();
  RecordCheck<SnryListFile>();
  RecordCheck<SnryMainFile>();
  RecordCheck<SnryFolderRec>();
  RecordCheck<SnrySceneRec>();
  RecordCheck<SnryCharMotionRec>();
  RecordCheck<SnryParaRec>();
  RecordCheck<SnryNameRec>();
  RecordCheck<SnryLabelRec>();
  RecordCheck<SnryNumberRec>();
  RecordCheck<SnryOptionRec>();
}

TEST(SnryRecords, OfASceneFileLieAsTold) {
  RecordCheck<SnrySceneFile>();
  RecordCheck<SnryMenuRec>();
  RecordCheck<SnryEventRec>();
  RecordCheck<SnryEventExRec>();
  RecordCheck<SnryRandomRec>();
  RecordCheck<SnryRandomExRec>();
  RecordCheck<SnryLineRec>();
  RecordCheck<SnryCastRec>();
  RecordCheck<SnryBackdropRec>();
  RecordCheck<SnryTitleRec>();
  RecordCheck<SnrySoundRec>();
  RecordCheck<SnryKeyRec>();
  RecordCheck<SnryScrollRec>();
  RecordCheck<SnryTableRec>();
}

// Every byte of these is somebody's, so nothing of a file is lost on its way through.
template <class T>
void KeepsAllBut(const std::vector<int>& lost) {
  std::string bytes = RecordPattern(RecordSize<T>(), 5);
  T record{};
  ASSERT_TRUE(RecordTake(record, bytes.data(), RecordSize<T>()));
  for (const int at : lost) bytes[static_cast<std::size_t>(at)] = '\0';
  EXPECT_EQ(RecordBytes(record), bytes);
}

TEST(SnryRecords, KeepTheBytesThatNothingUses) {
  KeepsAllBut<SnryFolderRec>({});
  KeepsAllBut<SnrySceneRec>({681});  // the last byte of the name is its terminator
  KeepsAllBut<SnryCharMotionRec>({});
  KeepsAllBut<SnryParaRec>({});
  KeepsAllBut<SnryNameRec>({});
  KeepsAllBut<SnryLabelRec>({});
  KeepsAllBut<SnryOptionRec>({});
  KeepsAllBut<SnryMenuRec>({});
  KeepsAllBut<SnryEventRec>({});
  KeepsAllBut<SnryEventExRec>({});
  KeepsAllBut<SnryRandomRec>({});
  KeepsAllBut<SnryRandomExRec>({});
  KeepsAllBut<SnryLineRec>({});
  KeepsAllBut<SnryCastRec>({});
  KeepsAllBut<SnryBackdropRec>({});
  KeepsAllBut<SnryTitleRec>({});
  KeepsAllBut<SnrySoundRec>({});
  KeepsAllBut<SnryKeyRec>({});
  KeepsAllBut<SnryScrollRec>({});
  KeepsAllBut<SnryTableRec>({});
}

TEST(SnryRecords, FieldsOfTheMainFileStandWhereTold) {
  EXPECT_EQ(RecordOffset<&SnryListRec::folder>(), 1);
  EXPECT_EQ(RecordOffset<&SnryListRec::title>(), 301);
  EXPECT_EQ(RecordOffset<&SnryFolderRec::path>(), 68);
  EXPECT_EQ(RecordOffset<&SnryFolderRec::name>(), 368);
  EXPECT_EQ(RecordOffset<&SnrySceneRec::castCount>(), 68);
  EXPECT_EQ(RecordOffset<&SnrySceneRec::cast>(), 70);
  EXPECT_EQ(RecordOffset<&SnrySceneRec::tableFormat>(), 594);
  EXPECT_EQ(RecordOffset<&SnrySceneRec::tableFlags>(), 596);
  EXPECT_EQ(RecordOffset<&SnrySceneRec::textScheme>(), 597);
  EXPECT_EQ(RecordOffset<&SnrySceneRec::fallback>(), 598);
  EXPECT_EQ(RecordOffset<&SnrySceneRec::name>(), 602);
  EXPECT_EQ(RecordOffset<&SnrySceneRec::file>(), 682);
  EXPECT_EQ(RecordOffset<&SnryCharMotionRec::figures>(), 260);
  EXPECT_EQ(RecordOffset<&SnryParaRec::initial>(), 2);
  EXPECT_EQ(RecordOffset<&SnryParaRec::name>(), 6);
  EXPECT_EQ(RecordOffset<&SnryParaRec::comment>(), 70);
  EXPECT_EQ(RecordOffset<&SnryParaRec::assignment>(), 268);
  EXPECT_EQ(RecordOffset<&SnryParaRec::statusBar>(), 269);
  EXPECT_EQ(RecordOffset<&SnryOptionRec::menuHeight>(), 12);
  EXPECT_EQ(RecordOffset<&SnryOptionRec::menuPosition>(), 16);
  EXPECT_EQ(RecordOffset<&SnryOptionRec::readingSpeed>(), 20);
  EXPECT_EQ(RecordOffset<&SnryOptionRec::balloonFormat>(), 24);
  EXPECT_EQ(RecordOffset<&SnryOptionRec::statusTime>(), 26);
}

TEST(SnryRecords, PairsStandWhereTold) {
  SnryFolderRec folder{};
  folder.start = {0x0201, 0x0403};
  std::string bytes = RecordBytes(folder);
  EXPECT_EQ(bytes.substr(2, 2), "\1\2");
  EXPECT_EQ(bytes.substr(22, 2), "\3\4");
  SnrySceneRec scene{};
  scene.start = {0x0201, 0x0403};
  bytes = RecordBytes(scene);
  EXPECT_EQ(bytes.substr(8, 2), "\1\2");
  EXPECT_EQ(bytes.substr(28, 2), "\3\4");
  SnryCastRec cast{};
  cast.entry = {0x0201, 0x0403};
  cast.exit = {0x0605, 0x0807};
  bytes = RecordBytes(cast);
  EXPECT_EQ(bytes.substr(4, 4), "\1\2\3\4");
  EXPECT_EQ(bytes.substr(10, 4), "\5\6\7\10");
  SnryTitleRec title{};
  title.end = {0x0201, 0x0403};
  EXPECT_EQ(RecordBytes(title).substr(140, 4), "\1\2\3\4");
}

TEST(SnryRecords, FieldsOfASceneFileStandWhereTold) {
  EXPECT_EQ(RecordOffset<&SnryMenuRec::buttonLabels>(), 6);
  EXPECT_EQ(RecordOffset<&SnryMenuRec::buttonParameters>(), 8);
  EXPECT_EQ(RecordOffset<&SnryMenuRec::buttonValues>(), 12);
  EXPECT_EQ(RecordOffset<&SnryMenuRec::method>(), 16);
  EXPECT_EQ(RecordOffset<&SnryMenuRec::itemCount>(), 17);
  EXPECT_EQ(RecordOffset<&SnryMenuRec::itemParameters>(), 18);
  EXPECT_EQ(RecordOffset<&SnryMenuRec::itemValues>(), 418);
  EXPECT_EQ(RecordOffset<&SnryMenuRec::itemTexts>(), 818);
  EXPECT_EQ(RecordOffset<&SnryEventRec::type>(), 6);
  EXPECT_EQ(RecordOffset<&SnryEventRec::comparison>(), 7);
  EXPECT_EQ(RecordOffset<&SnryEventRec::lowest>(), 40);
  EXPECT_EQ(RecordOffset<&SnryEventRec::highest>(), 42);
  EXPECT_EQ(RecordOffset<&SnryEventRec::minutes>(), 44);
  EXPECT_EQ(RecordOffset<&SnryEventRec::seconds>(), 45);
  EXPECT_EQ(RecordOffset<&SnryEventRec::first>(), 46);
  EXPECT_EQ(RecordOffset<&SnryEventRec::second>(), 48);
  EXPECT_EQ(RecordOffset<&SnryEventRec::parameters>(), 50);
  EXPECT_EQ(RecordOffset<&SnryEventRec::values>(), 90);
  EXPECT_EQ(RecordOffset<&SnryEventRec::signs>(), 130);
  EXPECT_EQ(RecordOffset<&SnryEventRec::operations>(), 150);
  EXPECT_EQ(RecordOffset<&SnryEventRec::nameShown>(), 170);
  EXPECT_EQ(RecordOffset<&SnryEventRec::name>(), 171);
  EXPECT_EQ(RecordOffset<&SnryRandomRec::interval>(), 6);
  EXPECT_EQ(RecordOffset<&SnryRandomRec::parameters>(), 8);
  EXPECT_EQ(RecordOffset<&SnryRandomRec::ranges>(), 48);
  EXPECT_EQ(RecordOffset<&SnryRandomRec::counts>(), 128);
  EXPECT_EQ(RecordOffset<&SnryRandomRec::modes>(), 168);
  EXPECT_EQ(RecordOffset<&SnryRandomExRec::replaced>(), 2);
  EXPECT_EQ(RecordOffset<&SnryRandomExRec::replacement>(), 4);
  EXPECT_EQ(RecordOffset<&SnryRandomExRec::operations>(), 6);
  EXPECT_EQ(RecordOffset<&SnryRandomExRec::others>(), 26);
  EXPECT_EQ(RecordOffset<&SnryLineRec::text>(), 1);
  EXPECT_EQ(RecordOffset<&SnryCastRec::copies>(), 3);
  EXPECT_EQ(RecordOffset<&SnryCastRec::entryPosition>(), 8);
  EXPECT_EQ(RecordOffset<&SnryCastRec::exitPosition>(), 14);
  EXPECT_EQ(RecordOffset<&SnryCastRec::motions>(), 17);
  EXPECT_EQ(RecordOffset<&SnryCastRec::motionParameters>(), 118);
  EXPECT_EQ(RecordOffset<&SnryCastRec::motionValues>(), 318);
  EXPECT_EQ(RecordOffset<&SnryCastRec::lines>(), 518);
  EXPECT_EQ(RecordOffset<&SnryCastRec::lineParameters>(), 718);
  EXPECT_EQ(RecordOffset<&SnryCastRec::lineValues>(), 918);
  EXPECT_EQ(RecordOffset<&SnryCastRec::lineEnds>(), 1118);
  EXPECT_EQ(RecordOffset<&SnryCastRec::endParameters>(), 1218);
  EXPECT_EQ(RecordOffset<&SnryCastRec::endValues>(), 1418);
  EXPECT_EQ(RecordOffset<&SnryCastRec::standX>(), 1618);
  EXPECT_EQ(RecordOffset<&SnryCastRec::scrollSync>(), 1622);
  EXPECT_EQ(RecordOffset<&SnryCastRec::collision>(), 1623);
  EXPECT_EQ(RecordOffset<&SnryCastRec::score>(), 1624);
  EXPECT_EQ(RecordOffset<&SnryCastRec::depth>(), 1625);
  EXPECT_EQ(RecordOffset<&SnryCastRec::syncCharacter>(), 1626);
  EXPECT_EQ(RecordOffset<&SnryTitleRec::textColour>(), 129);
  EXPECT_EQ(RecordOffset<&SnryTitleRec::backColour>(), 132);
  EXPECT_EQ(RecordOffset<&SnryTitleRec::size>(), 135);
  EXPECT_EQ(RecordOffset<&SnryTitleRec::time>(), 138);
  EXPECT_EQ(RecordOffset<&SnrySoundRec::repeat>(), 6);
  EXPECT_EQ(RecordOffset<&SnrySoundRec::seconds>(), 8);
  EXPECT_EQ(RecordOffset<&SnrySoundRec::file>(), 10);
  EXPECT_EQ(RecordOffset<&SnryKeyRec::speed>(), 2);
  EXPECT_EQ(RecordOffset<&SnryKeyRec::parameters>(), 4);
  EXPECT_EQ(RecordOffset<&SnryKeyRec::values>(), 44);
  EXPECT_EQ(RecordOffset<&SnryKeyRec::name>(), 84);
  EXPECT_EQ(RecordOffset<&SnryKeyRec::cursorSync>(), 117);
  EXPECT_EQ(RecordOffset<&SnryKeyRec::axes>(), 118);
  EXPECT_EQ(RecordOffset<&SnryKeyRec::syncCharacter>(), 120);
  EXPECT_EQ(RecordOffset<&SnryScrollRec::directions>(), 2);
  EXPECT_EQ(RecordOffset<&SnryScrollRec::speeds>(), 22);
  EXPECT_EQ(RecordOffset<&SnryScrollRec::parameters>(), 42);
  EXPECT_EQ(RecordOffset<&SnryScrollRec::values>(), 82);
  EXPECT_EQ(RecordOffset<&SnryScrollRec::backgrounds>(), 155);
  EXPECT_EQ(RecordOffset<&SnryScrollRec::manualUp>(), 2730);
  EXPECT_EQ(RecordOffset<&SnryScrollRec::character>(), 2734);
  EXPECT_EQ(RecordOffset<&SnryTableRec::settingTitle>(), 64);
  EXPECT_EQ(RecordOffset<&SnryTableRec::dataTitle>(), 128);
  EXPECT_EQ(RecordOffset<&SnryTableRec::colourRow>(), 192);
  EXPECT_EQ(RecordOffset<&SnryTableRec::colours>(), 193);
  EXPECT_EQ(RecordOffset<&SnryTableRec::dataRow>(), 232);
  EXPECT_EQ(RecordOffset<&SnryTableRec::kept236>(), 236);
}

}  // namespace
