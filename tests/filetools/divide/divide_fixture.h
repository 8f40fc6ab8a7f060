// Dividing and restoring from nothing.
#pragma once

#include "filetools/divide/divide_dialogs.h"
#include "filetools/divide/file_divide.h"
#include "filetools/stepped_work.h"
#include "platform/posix/posix_paths.h"
#include "services/commands.h"
#include "services/data_file.h"
#include "services/drawing_objects.h"
#include "services/program.h"
#include "tests/filetools/divide/divide_draws.h"
#include "tests/filetools/filetools_fixture.h"
#include "resources/filetools_ids.h"

class DivideFixture : public FileToolsTest {
 protected:
  void SetUp() override {
    FileToolsTest::SetUp();
    MakeFolder(kPieces);
    MakeFolder(kRestored);
  }

  // Closes what a run has left open: the start of another one does.
  static void DropFiles() {
    FaultClear();
    FileDivide.sourcePath[0] = '\0';
    SteppedNext(1);
    FileDivideStep();
    SteppedNext(0);
    FileResult.FileStatus = 0;
  }

  static constexpr char kPieces[] = "C:\\mirrell\\pieces";
  static constexpr char kRestored[] = "C:\\mirrell\\restored";
  static constexpr char kCof[] = "C:\\mirrell\\pieces\\part0.cof";

  // Some bytes, different everywhere.
  static std::string Bytes(std::size_t size) {
    std::string bytes(size, '\0');
    std::uint32_t value = 12345;
    for (char& byte : bytes) {
      value = value * 1664525U + 1013904223U;
      byte = static_cast<char>(value >> 24U);
    }
    return bytes;
  }

  static void SetKeyword(const std::string& keyword) {
    Set(FileDivide.keyword, sizeof FileDivide.keyword, keyword);
    FileDivide.keywordLength = static_cast<std::int32_t>(keyword.size());
  }

  // Makes the source and sets a division up.
  static void Prepare(const ModelDivision& division) {
    const std::string path = InProgram(division.sourceName);
    PutFile(path, division.source);
    Set(FileDivide.sourcePath, sizeof FileDivide.sourcePath, path);
    FileDivide.sourceSize = DivFileSize(path.c_str());
    FileDivide.divideCount = division.count;
    FileDivide.encryptFlag = division.keyword.empty() ? 0 : 1;
    SetKeyword(division.keyword);
    Set(FileDivide.storeDir, sizeof FileDivide.storeDir, kPieces);
    Set(FileDivide.baseName, sizeof FileDivide.baseName, division.baseName);
    RandomSeed(division.seed);
  }
  static ModelDivision Simple(std::size_t size, int count, const std::string& keyword = "") {
    return {Bytes(size), "source.bin", "part", count, keyword, 7};
  }

  // Steps until the run ends or fails; the last result.
  static int RunSteps(bool restore, const char* cof = kCof) {
    SteppedNext(1);
    for (;;) {
      const int result = restore ? FileRestoreStep(cof) : FileDivideStep();
      EXPECT_EQ(result, FileResult.FileStatus);
      if (result != 0 || Stepped.stepCounter == 0) return result;
    }
  }
  static int Divide(const ModelDivision& division) {
    Prepare(division);
    return RunSteps(false);
  }
  static ModelResult Model(const ModelDivision& division) {
    return ModelDivide(division, ModelDraw(division));
  }
  static int Restore(const std::string& keyword = "", const char* cof = kCof) {
    SetKeyword(keyword);
    Set(FileDivide.storeDir, sizeof FileDivide.storeDir, kRestored);
    return RunSteps(true, cof);
  }

  static std::string Piece(const std::string& name) { return FileBytes(std::string(kPieces) + "\\" + name); }
  static std::string PieceNo(int number) { return Piece("part" + std::to_string(number) + ".div"); }
  static std::string Target(const std::string& name = "source.bin") {
    return FileBytes(std::string(kRestored) + "\\" + name);
  }
};

class DivideTest : public DivideFixture {};

// A user who divides and restores through the dialogs.
class DivideDialogTest : public DivideFixture {
 protected:
  // Opens FileDivideSetDlg2 or 3 through the choice, runs the steps that wait and
  // closes it.
  static void RunDivide() { RunChoice(IDC_DIVIDE_CHOOSE_DIVIDE); }
  static void RunRestore() { RunChoice(IDC_DIVIDE_CHOOSE_RESTORE); }
  static void RunChoice(int button) {
    DialogSteps steps = std::move(waiting_);
    waiting_.clear();
    Then([button] { Press(TopDialog(), button); });
    for (auto& step : steps) Then(step);
    Then([] { Press(TopDialog(), 2); });
    CommandSend(Command::DivideRestore);
  }
  // Steps inside the dialog.
  using DialogSteps = std::vector<std::function<void()>>;
  static void In(std::function<void()> step) { waiting_.push_back(std::move(step)); }
  static void InPress(int id) {
    In([id] { Press(TopDialog(), id); });
  }
  static void InPick(const std::string& name) {
    In([name] {
      Type(TopDialog(), kPickNameId, name.c_str());
      Press(TopDialog(), 1);
    });
  }
  static void InTicks(int count) {
    for (int i = 0; i < count; ++i) In(MainTick);
  }
  static void InType(int id, const std::string& text) {
    In([id, text] { Type(TopDialog(), id, text.c_str()); });
  }
  static void InKeyword(const std::string& keyword) {
    In([keyword] {
      Type(TopDialog(), IDC_DIVIDE_KEYWORD, keyword.c_str());
      Press(TopDialog(), 1);
    });
  }
  static inline DialogSteps waiting_;
};
