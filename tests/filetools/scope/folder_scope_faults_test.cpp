// The folder scope on a system that fails: every call for folders, searches and room
// in turn.
#include <map>

#include "filetools/scope/folder_scope.h"
#include "filetools/scope/scope_commands.h"
#include "filetools/scope/scope_dialogs.h"
#include "filetools/stepped_work.h"
#include "platform/headless/headless.h"
#include "platform/posix/faults.h"
#include "resources/filetools_ids.h"
#include "services/dialog_family.h"
#include "tests/filetools/scope/scope_fixture.h"

namespace {

constexpr char kHome[] = "C:\\mirrell";
constexpr char kRoot[] = "C:\\";
constexpr char kChosen[] = "C:\\data\\sub";

const std::map<std::string, std::string> kFiles = {
    {"C:\\data\\a", "12345"},           {"C:\\data\\sub\\b", "1234567"}, {"C:\\data\\sub\\deep\\c", "123"},
    {"C:\\data\\sub\\deep\\d", "1234"}, {"C:\\other\\e", "12"},          {"C:\\f", "1"},
};

class FolderScopeFaultsTest : public ScopeFixture {
 protected:
  void SetUp() override {
    ScopeFixture::SetUp();
    for (const char* folder : {"C:\\data\\sub\\deep", "C:\\other"}) MakeFolder(folder);
    for (const auto& [path, bytes] : kFiles) PutFile(path, bytes);
    FolderSetCurrent(kHome);
  }
  static void ExpectAllThere() {
    for (const auto& [path, bytes] : kFiles) EXPECT_EQ(FileBytes(path), bytes) << path;
    EXPECT_EQ(DiagnosticsLive().searches, 0);
    EXPECT_EQ(Stepped.hSearchDlg, nullptr);
    EXPECT_EQ(Dialogs.hMenuDlg, nullptr);
    EXPECT_EQ(Stepped.progressMode, 0);
  }

  // Both searches as the pies do, with each call of a kind failing in turn; how many
  // calls a run makes. `check` looks at what a run with a failure has left.
  static int EachInTurn(FaultKind kind, const std::function<void(int)>& check) {
    for (int nth = 1;; ++nth) {
      FolderSetCurrent(kHome);
      Choose(kChosen);
      Scope.scopeDriveCount = Scope.scopeFolderCount = Scope.firstLevelIndex = Scope.folderIndex = -1;
      FaultArm(kind, nth);
      SearchDrive();
      ScopeFindFolder();
      SearchFolder();
      const bool met = FaultWasMet();
      FaultClear();
      ExpectAllThere();
      // "mirrell", "data", "other" and "f"; "b" and "deep".
      EXPECT_GE(Scope.scopeDriveCount, 0) << nth;
      EXPECT_LE(Scope.scopeDriveCount, 4) << nth;
      EXPECT_GE(Scope.scopeFolderCount, 0) << nth;
      EXPECT_LE(Scope.scopeFolderCount, 2) << nth;
      if (!met) {
        EXPECT_EQ(Scope.scopeDriveCount, 4);
        EXPECT_EQ(Scope.scopeFolderCount, 2);
        EXPECT_EQ(CurrentOne(), kHome);
        EXPECT_EQ(Scope.chosenTotal, 14.0F);
        return nth - 1;
      }
      check(nth);
    }
  }
};

TEST_F(FolderScopeFaultsTest, WithoutTheFolderThatWasCurrentTheSearchedOneStays) {
  EXPECT_EQ(EachInTurn(FaultKind::FolderGet,
                       [](int nth) {
                         EXPECT_EQ(Scope.scopeDriveCount, 4);
                         EXPECT_EQ(Scope.scopeFolderCount, 2);
                         EXPECT_EQ(CurrentOne(), nth == 1 ? kRoot : kChosen);
                       }),
            2);
}

TEST_F(FolderScopeFaultsTest, AFolderThatCannotBeGoneToIsEmptyAndOneThatCannotBeComeBackToIsLeft) {
  // There and back, of the drive and of the folder.
  const char* const current[] = {kHome, kRoot, kHome, kChosen};
  EXPECT_EQ(EachInTurn(FaultKind::FolderSet,
                       [&](int nth) {
                         EXPECT_EQ(Scope.scopeDriveCount, nth == 1 ? 0 : 4);
                         EXPECT_EQ(Scope.scopeFolderCount, nth == 3 ? 0 : 2);
                         EXPECT_EQ(CurrentOne(), current[nth - 1]);
                       }),
            4);
}

TEST_F(FolderScopeFaultsTest, ASearchThatDoesNotBeginCountsForNothing) {
  // The root with its three folders, "sub" and "deep" below "data"; the parent of the
  // chosen folder, that folder and "deep"; the folder again with "deep".
  EXPECT_EQ(EachInTurn(FaultKind::SearchFirst,
                       [](int nth) {
                         EXPECT_EQ(Scope.scopeDriveCount, nth == 1 ? 0 : 4) << nth;
                         EXPECT_EQ(Scope.folderIndex >= 0, nth != 7) << nth;
                         EXPECT_EQ(Scope.scopeFolderCount, nth == 10 ? 0 : 2) << nth;
                         EXPECT_EQ(CurrentOne(), kHome);
                       }),
            11);
}

TEST_F(FolderScopeFaultsTest, ASearchThatBreaksOffEndsWithWhatCame) {
  Scope.scopeBarChart = true;
  const int calls = EachInTurn(FaultKind::SearchNext, [](int nth) {
    EXPECT_EQ(CurrentOne(), kHome) << nth;
    float sum = 0;
    for (int n = 0; n < Scope.scopeFolderCount; ++n) {
      sum += ScopeFloat(ScopeEntrySize(ScopeArea::Folder, n));
    }
    EXPECT_EQ(Scope.folderTotal, sum) << nth << ": the total is that of the entries";
    EXPECT_LE(Scope.folderTotal, 14.0F);
  });
  EXPECT_GT(calls, 20);
  Scope.scopeBarChart = false;
}

TEST_F(FolderScopeFaultsTest, AWorkingFolderWhosePathIsLongIsComeBackTo) {
  const std::string home = std::string("C:\\") + std::string(200, 'h') + "\\" + std::string(200, 'i');
  MakeFolder(home);
  ASSERT_TRUE(FolderSetCurrent(home.c_str()));
  Choose(kChosen);
  SearchFolder();
  EXPECT_EQ(Scope.scopeFolderCount, 2);
  EXPECT_EQ(CurrentOne(), home);
}

TEST_F(FolderScopeFaultsTest, TheStatisticsOpenAndCloseWhateverFails) {
  struct Statistics {
    int button;
    int templateId;
    int searches;
  };
  for (const Statistics& statistics :
       {Statistics{IDC_SCOPE_PIES, IDD_FolderStaticsDlg, 2}, {IDC_SCOPE_BARS, IDD_FolderStaticsDlg2, 1}}) {
    for (const FaultKind kind : {FaultKind::FolderGet, FaultKind::FolderSet, FaultKind::SearchFirst,
                                 FaultKind::SearchNext, FaultKind::DiskSpace}) {
      for (int nth = 1;; ++nth) {
        FolderSetCurrent(kChosen);
        Then([&] { Press(TopDialog(), statistics.button); });
        for (int i = 0; i < statistics.searches; ++i) Then(TicksOfSearch);
        Then([&] {
          ASSERT_EQ(TemplateOf(TopDialog()), statistics.templateId);
          SendPaint(TopDialog());
          if (kind == FaultKind::DiskSpace) {
            EXPECT_EQ(Scope.driveTotal, nth == 1 ? 0.0F : 8388608.0F);
            EXPECT_EQ(Scope.driveFree, nth == 1 ? 0.0F : 1048576.0F);
          }
          SendClose(TopDialog());
        });
        Then([] { SendClose(TopDialog()); });
        FaultArm(kind, nth);
        FolderScopeCommand();
        const bool met = FaultWasMet();
        FaultClear();
        ExpectAllThere();
        EXPECT_TRUE(BoxesShown().empty());
        if (!met) {
          EXPECT_EQ(CurrentOne(), kChosen);
          EXPECT_GT(nth, 1);
          break;
        }
      }
    }
  }
}

}  // namespace
