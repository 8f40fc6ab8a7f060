// Members of a cast and their copies come and go.
#include "scenario/cast/cast_list.h"

#include <cstring>
#include <random>

#include "scenario/cast/cast_copies.h"
#include "scenario/cast/cast_lines.h"
#include "scenario/cast/cast_member.h"
#include "scenario/storage/snry_cast_list.h"
#include "scenario/storage/snry_scene_file.h"
#include "services/work_blocks.h"
#include "tests/scenario/cast/cast_model.h"
#include "tests/scenario/scenario_world.h"

namespace {

class CastListTest : public ScenarioWorldTest {
 protected:
  void SetUp() override {
    ScenarioWorldTest::SetUp();
    Register(1, "a");
    Register(2, "b");
    Register(3, "c");
  }
  static SnryCastRec& Slot(int slot) { return SnryCastAt(slot); }
  static void Say(int id, const char* text) {
    CastLine line{};
    std::strcpy(line.text, text);
    line.start = {7, 8};
    ASSERT_TRUE(CastLineAdd(Slot(id - 1), line));
  }
  static Rows Shown() {
    Rows rows;
    for (int row = 0; row < SnryCastRows(SnryCastShow::All); ++row) {
      char text[200];
      SnryCastRowText(SnryCastShow::All, row, text, sizeof text);
      rows.emplace_back(text);
    }
    return rows;
  }
  using Ids = std::vector<int>;
};

// --- Members

TEST_F(CastListTest, RegisteredCharactersThatAreNotInTheCastCanBeAdded) {
  Cast({2});
  EXPECT_EQ(CastAddRows(), 2);
  EXPECT_EQ(CastAddCharaOfRow(0), 1);
  EXPECT_EQ(CastAddCharaOfRow(1), 3);
  EXPECT_EQ(CastAddCharaOfRow(2), 0);
  EXPECT_EQ(CastAddCharaOfRow(-1), 0);
  char text[200];
  CastAddRowText(1, text, sizeof text);
  EXPECT_STREQ(text, "2. メンティ [登場名: c]");
}

TEST_F(CastListTest, TheNumberOfRegisteredCharactersIsACountdownAndNoCount) {
  SnryMain.registeredCount = 2;  // the walk ends at the second flag
  EXPECT_EQ(CastAddRows(), 2);
  EXPECT_EQ(CastAddCharaOfRow(1), 2);
  Cast({1});  // the countdown runs over those in the cast too
  EXPECT_EQ(CastAddRows(), 1);
  SnryMain.registeredCount = 0;
  EXPECT_EQ(CastAddRows(), 0);
  SnryMain.registeredCount = 60000;
  EXPECT_EQ(CastAddRows(), 2);
}

TEST_F(CastListTest, AMemberIsAddedBehindTheOthersAndNotAt256) {
  Cast({2});
  CastAdd(1);
  EXPECT_EQ(CastIds(), (Ids{2, 1}));
  EXPECT_TRUE(Scenario.changed);
  Scenario.changed = false;
  Cast(Ids(256, 2));
  CastAdd(1);
  EXPECT_EQ(CastIds(), Ids(256, 2));
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CastListTest, ACharacterRemovedFromTheMiddleLeavesA0InItsPlaceThatListsSkipAndTheCountStays) {
  Cast({1, 2, 3});
  CastRemove(1);
  EXPECT_EQ(CastIds(), (Ids{1, 0, 3}));
  EXPECT_EQ(Shown(), (Rows{"1. ミル [登場名: a]", "2. メンティ [登場名: c]"}));
  EXPECT_EQ(SnryCastIdOfRow(SnryCastShow::All, 1), 3);
  EXPECT_TRUE(Scenario.changed);
}

TEST_F(CastListTest, TheLastPlaceIsGivenUpAndTheHoleBeforeItIsNot) {
  Cast({1, 2, 3});
  CastRemove(1);
  CastRemove(2);
  EXPECT_EQ(CastIds(), (Ids{1, 0}));
}

TEST_F(CastListTest, WithTheLastRegisteredCharacterTheWholeCastGoes) {
  Cast({1, 2, 9});  // the ninth is not registered
  CastCopiesSet(1, 3);
  CastRemove(4);
  EXPECT_EQ(CastIds(), (Ids{1, 513, 514, 515, 0, 9}));
  CastRemove(0);
  EXPECT_EQ(CastIds(), Ids());
  for (const std::uint16_t id : SnrySceneNow().cast) ASSERT_EQ(id, 0);
  for (int slot = 512; slot < 712; ++slot) ASSERT_EQ(Slot(slot).master, 0) << slot;
}

TEST_F(CastListTest, APlaceThatThereIsNotRemovesNobody) {
  Cast({1, 2});
  for (const int place : {-1, 2, 256, 2147483647}) CastRemove(place);
  EXPECT_EQ(CastIds(), (Ids{1, 2}));
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CastListTest, AMembersCopiesGoWithIt) {
  Cast({1, 2});
  CastCopiesSet(1, 2);
  CastCopiesSet(2, 1);
  ASSERT_EQ(CastIds(), (Ids{1, 513, 514, 2, 515}));
  CastRemove(0);
  // Slots from 512: the copy of 2 alone. Its id came down by 2, twice: 515, 513, and stays,
  // as 513 is not above 513.
  EXPECT_EQ(CastIds(), (Ids{0, 2, 513}));
  EXPECT_EQ(Slot(0).copies, 0);
  EXPECT_EQ(Slot(512).master, 2);
  EXPECT_EQ(Slot(513).master, 0);
}

TEST_F(CastListTest, AnUnregisteredCharacterIsSkippedAndItsRecordStaysInTheFileUntilItFallsBeyondTheLast) {
  MakeFolder("C:\\work\\s");
  SnryMain.folders[0].used = 1;
  std::strcpy(SnryMain.folders[0].path, "C:\\work\\s");
  std::strcpy(SnrySceneNow().file, "a.scd");
  Cast({1, 2, 3});
  Slot(1).standX = 222;
  Slot(2).standX = 333;
  SnryMain.registered[1] = 0;
  EXPECT_EQ(Shown(), (Rows{"1. ミル [登場名: a]", "2. メンティ [登場名: c]"}));
  // Three records: the highest id that counts is 3.
  ASSERT_EQ(SnrySceneSave(0, 0), 0);
  std::memset(WorkBlocks.CastBlock, 0, kCastBlockSize);
  ASSERT_EQ(SnrySceneLoad(0, 0), 0);
  EXPECT_EQ(Slot(1).standX, 222);
  // Now the highest is 1.
  SnryMain.registered[2] = 0;
  ASSERT_EQ(SnrySceneSave(0, 0), 0);
  std::memset(WorkBlocks.CastBlock, 0, kCastBlockSize);
  ASSERT_EQ(SnrySceneLoad(0, 0), 0);
  EXPECT_EQ(Slot(1).standX, 0);
  EXPECT_EQ(Slot(2).standX, 0);
}

// --- Copies

TEST_F(CastListTest, ACopyHasNoLinesButTheMotionsAndSettingsOfItsCharacter) {
  Cast({1, 2});
  Say(1, "おはよう");
  SnryCastRec& self = Slot(0);
  self.motions[0] = 9;
  self.motionParameters[0] = 4;
  self.entry = {5, 6};
  self.exitPosition = 11;
  self.depth = 3;
  self.lineEnds[0] = 2;
  CastCopiesSet(1, 2);
  EXPECT_EQ(CastIds(), (Ids{1, 513, 514, 2}));
  EXPECT_EQ(self.copies, 2);
  for (int copy = 0; copy < 2; ++copy) {
    const SnryCastRec& slot = Slot(512 + copy);
    EXPECT_EQ(slot.master, 1);
    EXPECT_EQ(slot.copies, copy);
    EXPECT_EQ(slot.lines[0], 0);
    EXPECT_EQ(slot.lineParameters[0], 0);
    EXPECT_EQ(slot.lineValues[0], 0);
    EXPECT_EQ(slot.lineEnds[0], 2);
    EXPECT_EQ(slot.motions[0], 9);
    EXPECT_EQ(slot.motionParameters[0], 4);
    EXPECT_EQ(slot.entry.value, 6);
    EXPECT_EQ(slot.exitPosition, 11);
    EXPECT_EQ(slot.depth, 3);
  }
  EXPECT_EQ(self.lines[0], 1);
  EXPECT_EQ(Shown(), (Rows{"1. ミル [登場名: a]", "2. ミルのコピー1 [登場名: a]",
                           "3. ミルのコピー2 [登場名: a]", "4. ホーリオ [登場名: b]"}));
}

TEST_F(CastListTest, TheSameNumberOfCopiesChangesNothing) {
  Cast({1, 2});
  CastCopiesSet(1, 2);
  Say(513, "一");
  Scenario.changed = false;
  CastCopiesSet(1, 2);
  CastCopiesSet(2, 0);
  EXPECT_EQ(CastIds(), (Ids{1, 513, 514, 2}));
  EXPECT_EQ(Slot(512).lines[0], 1);
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(CastListTest, CopiesOfAnEarlierMemberMoveThoseOfTheOthersUp) {
  Cast({1, 2});
  CastCopiesSet(2, 2);
  ASSERT_EQ(CastIds(), (Ids{1, 2, 513, 514}));
  Slot(512).standX = 21;
  Slot(513).standX = 22;
  // The first has no copy yet: its copies come in behind all slots, and behind it in the
  // list.
  CastCopiesSet(1, 1);
  EXPECT_EQ(CastIds(), (Ids{1, 515, 2, 513, 514}));
  EXPECT_EQ(Slot(514).master, 1);
  // Another of the second comes in at slot 514: that of the first goes up, its place in the
  // list is before and keeps its id.
  CastCopiesSet(2, 3);
  EXPECT_EQ(Slot(514).master, 2);
  EXPECT_EQ(Slot(514).copies, 2);
  EXPECT_EQ(Slot(515).master, 1);
  EXPECT_EQ(CastIds(), (Ids{1, 515, 2, 513, 514, 515}));
}

TEST_F(CastListTest, GrowingRaisesTheIdsBehindThatAreAboveTheNewSlot) {
  Cast({1, 2});
  CastCopiesSet(1, 2);
  CastCopiesSet(2, 2);
  ASSERT_EQ(CastIds(), (Ids{1, 513, 514, 2, 515, 516}));
  Slot(514).standX = 21;
  CastCopiesSet(1, 4);
  EXPECT_EQ(CastIds(), (Ids{1, 513, 514, 515, 516, 2, 517, 518}));
  EXPECT_EQ(Slot(516).standX, 21);
  EXPECT_EQ(Slot(516).master, 2);
  EXPECT_EQ(Slot(515).copies, 3);
}

TEST_F(CastListTest, ShrinkingLowersTheIdsThatMovedTwice) {
  Cast({1, 2});
  CastCopiesSet(1, 2);
  CastCopiesSet(2, 3);
  ASSERT_EQ(CastIds(), (Ids{1, 513, 514, 2, 515, 516, 517}));
  for (int slot = 512; slot < 517; ++slot) Slot(slot).standX = static_cast<std::uint16_t>(slot);
  CastCopiesSet(1, 1);
  // p is 513. First 515, 516, 517 become 514, 515, 516; then those above 514 come down once
  // more.
  EXPECT_EQ(CastIds(), (Ids{1, 513, 2, 514, 514, 515}));
  EXPECT_EQ(Slot(512).standX, 512);
  EXPECT_EQ(Slot(513).standX, 514);
  EXPECT_EQ(Slot(514).standX, 515);
  EXPECT_EQ(Slot(515).standX, 516);
  EXPECT_EQ(Slot(516).standX, 0);
}

TEST_F(CastListTest, LinesOfCopiesThatOthersTakeThePlaceOfAreFreedAndThoseAtTheEndAreNot) {
  Cast({1, 2});
  CastCopiesSet(1, 2);
  CastCopiesSet(2, 1);
  Say(513, "一");  // id 1
  Say(514, "二");  // id 2
  Say(515, "三");  // id 3
  CastCopiesSet(1, 0);
  // Only one slot was behind: it took the first one's place.
  EXPECT_EQ(SnryLineAt(0).used, 0);
  EXPECT_EQ(SnryLineAt(1).used, 1);
  EXPECT_EQ(SnryLineAt(2).used, 1);
  EXPECT_EQ(Slot(512).master, 2);
  EXPECT_EQ(Slot(512).lines[0], 3);
  EXPECT_EQ(Slot(513).master, 1);  // what nothing took the place of stays as it was
  EXPECT_EQ(Slot(513).lines[0], 2);
  EXPECT_EQ(Slot(514).master, 0);
}

// Of characters behind the first 200, whose records such a change does not clear.
TEST_F(CastListTest, Setting200CopiesLeaves0FreeAndAFurtherIncreaseForAnotherShowsItsCurrentNumberAsMaximum) {
  Register(301, "x");
  Register(302, "y");
  Cast({301, 302});
  CastCopiesSet(302, 5);
  EXPECT_EQ(CastCopiesMost(301), 195);
  EXPECT_EQ(CastCopiesMost(302), 200);
  CastCopiesSet(301, 195);
  EXPECT_EQ(CastCopySum(), 200);
  EXPECT_EQ(CastCopiesMost(301), 195);
  EXPECT_EQ(CastCopiesMost(302), 5);
  EXPECT_EQ(Slot(711).master, 301);
  EXPECT_EQ(Slot(712).master, 0);
  CastCopiesSet(302, 0);
  CastCopiesSet(301, 200);
  EXPECT_EQ(CastCopiesMost(302), 0);
}

TEST_F(CastListTest, CopiesOfACharacterThatIsNoLongerRegisteredKeepTheirSlots) {
  Cast({1, 2, 3});
  CastCopiesSet(1, 2);
  Slot(512).standX = 21;
  Slot(513).standX = 22;
  SnryMain.registered[0] = 0;
  CastCopiesSet(2, 2);
  EXPECT_EQ(CastIds(), (Ids{1, 513, 514, 2, 515, 516, 3}));
  EXPECT_EQ(Slot(512).standX, 21);
  EXPECT_EQ(Slot(513).standX, 22);
  EXPECT_EQ(Slot(513).master, 1);
  EXPECT_EQ(Slot(515).master, 2);
  CastRemove(6);
  EXPECT_EQ(CastIds(), (Ids{1, 513, 514, 2, 515, 516}));
  EXPECT_EQ(Slot(513).standX, 22);
  EXPECT_EQ(Slot(515).master, 2);
}

TEST_F(CastListTest, NoMoreCopiesAreOfferedThanThereAreSlotsBehindThoseOfTheUnregistered) {
  Register(301, "x");
  Register(302, "y");
  Cast({301, 302});
  CastCopiesSet(301, 150);
  SnryMain.registered[300] = 0;
  EXPECT_EQ(CastCopiesMost(302), 50);
  CastCopiesSet(302, 50);
  EXPECT_EQ(Slot(661).master, 301);
  EXPECT_EQ(Slot(662).master, 302);
  EXPECT_EQ(Slot(711).master, 302);
  EXPECT_EQ(Slot(712).master, 0);
}

TEST_F(CastListTest, OneOfTheFirst200CharactersLosesItsOwnRecordWithTheLastFreeCopy) {
  Cast({1, 2});
  Slot(0).standX = 11;
  CastCopiesSet(1, 200);
  EXPECT_EQ(Slot(0).standX, 0);
  EXPECT_EQ(CastCopies(1), 0);
  EXPECT_EQ(Slot(711).master, 1);
  EXPECT_EQ(Slot(711).standX, 11);
  EXPECT_EQ(CastIds().size(), 202U);
}

TEST_F(CastListTest, AChangeOfCopiesClearsSlotsOfCharactersFromTheNumberOfFreeCopiesTo199) {
  Cast({1, 2});
  for (int slot = 0; slot < 512; ++slot) Slot(slot).standX = 1;
  CastCopiesSet(1, 3);
  for (int slot = 0; slot < 512; ++slot) {
    ASSERT_EQ(Slot(slot).standX, slot >= 197 && slot <= 199 ? 0 : 1) << slot;
  }
  EXPECT_EQ(Slot(512).standX, 1);
}

TEST_F(CastListTest, ACastOfMoreThan256EndsWithItsList) {
  Ids ids(200, 2);
  ids[0] = 1;
  Cast(ids);
  SnryMain.registered[1] = 0;
  CastCopiesSet(1, 100);
  EXPECT_EQ(SnrySceneNow().castCount, 256);
  EXPECT_EQ(SnrySceneNow().cast[100], 612);
  EXPECT_EQ(SnrySceneNow().cast[255], 2);
  EXPECT_EQ(SnrySceneNow().tableFormat, 0);  // what lies behind the list is untouched
  for (const std::uint8_t byte : SnrySceneNow().kept582) EXPECT_EQ(byte, 0);
}

TEST_F(CastListTest, ClearingBehindTheLastCopyTouchesTheSlotPastTheTableAndNoMore) {
  Cast({1, 2});
  Slot(711).standX = 5;
  Slot(712).standX = 6;
  unsigned char* behind = WorkBlocks.CastBlock + 713 * sizeof(SnryCastRec);
  std::memset(behind, 0x5A, 100);
  CastRemove(1);
  EXPECT_EQ(Slot(711).standX, 0);
  EXPECT_EQ(Slot(712).standX, 0);
  for (int i = 0; i < 100; ++i) ASSERT_EQ(behind[i], 0x5A);
}

// --- Damaged scenes: counts and ids that nothing here would make

TEST_F(CastListTest, AbsurdNumbersOfCopiesStayInsideTheTables) {
  Cast({1, 2, 3, 60000, 713, 512});
  for (const int slot : {0, 1, 2}) Slot(slot).copies = 255;
  EXPECT_EQ(CastCopySum(), 765);
  EXPECT_EQ(CastCopiesMost(1), 255);
  CastCopiesSet(1, 3);
  CastCopiesSet(2, 0);
  CastRemove(0);
  EXPECT_LE(SnrySceneNow().castCount, 256);
}

TEST_F(CastListTest, WithoutTheBlockOfTheCastNothingHappens) {
  Cast({1, 2});
  CastBlockFree();
  CastCopiesSet(1, 2);
  CastRemove(1);
  EXPECT_EQ(CastCopySum(), 0);
}

// --- Against the model

void Fresh() {
  std::memset(WorkBlocks.CastBlock, 0, 713 * sizeof(SnryCastRec));
  for (int slot = 0; slot < 512; ++slot) SnryCastAt(slot).standX = static_cast<std::uint16_t>(slot + 1);
}

bool Same(const SnryCastRec& record, const ModelMember& member) {
  if (record.master != member.master || record.copies != member.copies || record.standX != member.tag)
    return false;
  int place = 0;
  for (const ModelLine& line : member.lines) {
    if (record.lines[place] != line.id || record.lineParameters[place] != line.parameter ||
        record.lineValues[place] != line.value)
      return false;
    ++place;
  }
  return place == 100 || record.lines[place] == 0;
}

std::string Difference(const ModelCast& model) {
  const SnrySceneRec& scene = SnrySceneNow();
  if (scene.castCount != model.count)
    return "count " + std::to_string(scene.castCount) + " instead of " + std::to_string(model.count);
  for (int place = 0; place < 256; ++place) {
    const int wanted = model.list[static_cast<std::size_t>(place)];
    if (scene.cast[place] != wanted)
      return "place " + std::to_string(place) + ": " + std::to_string(scene.cast[place]) + " instead of " +
             std::to_string(wanted);
  }
  for (int slot = 0; slot <= 712; ++slot) {
    if (!Same(SnryCastAt(slot), model.slots[static_cast<std::size_t>(slot)]))
      return "slot " + std::to_string(slot);
  }
  for (int id = 1; id <= 60; ++id) {
    if ((SnryLineAt(id - 1).used != 0) != model.used.contains(id)) return "line " + std::to_string(id);
  }
  return "";
}

// One step of a sequence, done to both. Returns what it was.
std::string Step(ModelCast& model, std::mt19937& random) {
  const auto below = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); };
  const int chara = 1 + below(6);
  const bool inCast = std::find(model.list.begin(), model.list.begin() + model.count, chara) !=
                      model.list.begin() + model.count;
  const int kind = below(20);
  if (kind < 5 && !inCast) {
    CastAdd(chara);
    model.Add(chara);
    return "add " + std::to_string(chara);
  }
  if (kind < 8 && model.count > 0) {
    const int place = below(model.count);
    CastRemove(place);
    model.Remove(place);
    return "remove place " + std::to_string(place);
  }
  if (kind < 15 && inCast && model.registered.contains(chara)) {
    const int most = model.slots[static_cast<std::size_t>(chara - 1)].copies + model.Most();
    if (CastCopiesMost(chara) != most) return "most";
    const int copies = below(8) == 0 ? below(most + 1) : below(std::min(most, 5) + 1);
    CastCopiesSet(chara, copies);
    model.SetCopies(chara, copies);
    return "copies of " + std::to_string(chara) + " to " + std::to_string(copies);
  }
  if (kind < 19 && model.count > 0) {
    const int id = model.list[static_cast<std::size_t>(below(model.count))];
    if (id < 1 || id > 712) return "nobody";
    CastLine line{};
    line.text[0] = 'x';
    line.start = {static_cast<std::uint16_t>(below(9)), static_cast<std::uint16_t>(below(999))};
    if (model.used.size() < 60 && model.AddLine(id, {0, line.start.parameter, line.start.value}))
      CastLineAdd(SnryCastAt(id - 1), line);
    return "line of " + std::to_string(id);
  }
  if (below(4) != 0) return "nothing";
  if (model.registered.erase(chara) == 0) model.registered.insert(chara);
  SnryMain.registered[chara - 1] = model.registered.contains(chara) ? 1 : 0;
  return "registration of " + std::to_string(chara);
}

TEST_F(CastListTest, TenThousandSequencesLeaveWhatTheModelHas) {
  std::mt19937 random(20261122);
  for (int sequence = 0; sequence < 10000; ++sequence) {
    ModelCast model;
    Fresh();
    SnrySceneNow() = {};
    for (int id = 1; id <= 60; ++id) SnryLineAt(id - 1).used = 0;
    for (int chara = 1; chara <= 6; ++chara) {
      SnryMain.registered[chara - 1] = 1;
      model.registered.insert(chara);
    }
    std::string told;
    const int steps = 3 + sequence % 20;
    for (int step = 0; step < steps; ++step) {
      told += Step(model, random) + "\n";
      const std::string difference = Difference(model);
      ASSERT_EQ(difference, "") << "sequence " << sequence << ":\n" << told;
    }
  }
}

}  // namespace
