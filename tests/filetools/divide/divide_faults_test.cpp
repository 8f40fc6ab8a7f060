// Divisions and restores that fail: at the user's choice, and at each call in turn.
#include "filetools/stepped_work.h"
#include "tests/filetools/divide/divide_fixture.h"

namespace {

TEST_F(DivideTest, AnUnchosenSourceFailsAtItsOpening) {
  Prepare(Simple(10, 2));
  FileDivide.sourcePath[0] = '\0';
  EXPECT_EQ(RunSteps(false), -1);
  EXPECT_EQ(FolderNames(kPieces), Rows());
}

TEST_F(DivideTest, AnEmptyBaseNameGivesFilesOfNumberAndExtension) {
  Prepare(Simple(10, 2));
  FileDivide.baseName[0] = '\0';
  EXPECT_EQ(RunSteps(false), 0);
  EXPECT_EQ(FolderNames(kPieces), (Rows{"0.cof", "1.div", "2.div"}));
}

TEST_F(DivideTest, AFolderThatIsNotThereFailsAtTheJoiningFile) {
  Prepare(Simple(10, 2));
  Set(FileDivide.storeDir, sizeof FileDivide.storeDir, "C:\\none");
  EXPECT_EQ(RunSteps(false), -100);
}

TEST_F(DivideTest, ATargetThatCannotBeWrittenFailsAtItsCreation) {
  ASSERT_EQ(Divide(Simple(10, 2)), 0);
  MakeFolder("C:\\mirrell\\restored\\source.bin");
  EXPECT_EQ(Restore(), -101);
}

// What each call that fails gives, and that nothing but a short source leaves
// files open.
struct Expected {
  FaultKind kind;
  std::vector<int> status;  // of the first, second, ... call
};

class FaultTest : public DivideTest {
 protected:
  // Each row's calls fail in turn. Every run finds the results of a whole one.
  static void Expect(const std::vector<Expected>& table, bool restore) {
    for (const Expected& expected : table) {
      for (std::size_t nth = 1; nth <= expected.status.size() + 1; ++nth) {
        Begin(restore);
        const int before = DiagnosticsLive().files;
        FaultArm(expected.kind, static_cast<int>(nth));
        const int status = RunSteps(restore);
        const bool met = FaultWasMet();
        FaultClear();
        const auto where = ::testing::Message()
                           << "call " << nth << " of kind " << static_cast<int>(expected.kind);
        EXPECT_EQ(met, nth <= expected.status.size()) << where;
        EXPECT_EQ(status, met ? expected.status[nth - 1] : 0) << where;
        EXPECT_EQ(DiagnosticsLive().files - before, status == 2 ? 2 : 0) << where;
      }
    }
  }

 private:
  static void Begin(bool restore) {
    DropFiles();
    ASSERT_EQ(Divide(Simple(10, 2)), 0);
    if (restore) {
      ASSERT_EQ(Restore(), 0);
    } else {
      Prepare(Simple(10, 2));
    }
  }
};

TEST_F(FaultTest, EachFileCallOfADivisionFailingInTurn) {
  Expect(
      {
          // The source; then each file is tested, and opened again after its creation.
          {FaultKind::Open, {-1, 0, -100, 0, -102, 0, -102}},
          {FaultKind::Create, {-100, -101, -101}},
          {FaultKind::Delete, {0, 0, 0}},
          {FaultKind::Read, {2, 2}},
          // Flag and key block, head record; then a piece and its record, twice.
          {FaultKind::Write, {-11, -11, -10, -11, -10, -11}},
      },
      false);
}

TEST_F(FaultTest, EachFileCallOfARestoreFailingInTurn) {
  Expect(
      {
          // The joining file; the target twice; the pieces.
          {FaultKind::Open, {-1, 0, -102, -1, -1}},
          {FaultKind::Create, {-101}},
          {FaultKind::Delete, {0}},
          // Flag and key block, head record; then a record and its piece, twice.
          {FaultKind::Read, {-2, -11, -11, -11, -11, -11}},
          {FaultKind::Write, {-11, -11}},
      },
      true);
}

TEST_F(FaultTest, AShortSourceLeavesItsWholeBlocksInThePiece) {
  for (const int size : {0, 1, 4999, 5000, 5001, 14999}) {
    Prepare(Simple(15000, 1));
    PutFile(InProgram("source.bin"), Bytes(static_cast<std::size_t>(size)));
    EXPECT_EQ(RunSteps(false), 2);
    EXPECT_TRUE(PieceNo(1) == Bytes(static_cast<std::size_t>(size / 5000 * 5000))) << size;
  }
}

TEST_F(FaultTest, FilesLeftOpenAreClosedByTheNextRun) {
  const int before = DiagnosticsLive().files;
  Prepare(Simple(10, 2));
  RemoveFile(InProgram("source.bin"));
  PutFile(InProgram("source.bin"), "short");
  FileDivide.sourceSize = 20;
  EXPECT_EQ(RunSteps(false), 2);
  EXPECT_EQ(DiagnosticsLive().files, before + 2);
  ASSERT_EQ(Divide(Simple(10, 2)), 0);
  EXPECT_EQ(DiagnosticsLive().files, before);
}

TEST_F(FaultTest, AStoppedRunKeepsWhatWasMadeAndClosesItsFiles) {
  const int before = DiagnosticsLive().files;
  Prepare(Simple(30, 3));
  SteppedNext(1);
  EXPECT_EQ(FileDivideStep(), 0);
  EXPECT_EQ(Stepped.stepCounter, 2);
  EXPECT_EQ(FileDivideStep(), 0);
  EXPECT_EQ(Stepped.stepCounter, 3);
  FileDivideStop();
  EXPECT_EQ(Stepped.stepCounter, 0);
  EXPECT_EQ(DiagnosticsLive().files, before);
  EXPECT_EQ(FolderNames(kPieces), (Rows{"part0.cof", "part1.div"}));
  EXPECT_EQ(FileBytes(kCof).size(), 101U + 2 * 308) << "records that were never written are missing";
  EXPECT_EQ(FileDivideStep(), 0) << "an idle step does nothing";
}

}  // namespace
