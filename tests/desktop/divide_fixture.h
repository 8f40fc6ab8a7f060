// Dividing and restoring in the folder of the real program, through its dialogs.
#pragma once

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "tests/desktop/companion.h"
#include "tests/filetools/divide/divide_model.h"

inline constexpr int kOk = 1;
inline constexpr int kClose = 2;
inline constexpr int kStop = 2;

inline const std::wstring kSource = L"letter.bin";
inline const std::wstring kCof = L"piece0.cof";

inline const std::wstring kDivideProgress = L"ファイル分割中";
inline const std::wstring kRestoreProgress = L"ファイル復元中";
inline const std::wstring kDivided = L"分割を正常終了";
inline const std::wstring kRestored = L"復元を正常終了";
inline const std::wstring kFailed = L"分割エラー";
inline const std::wstring kCannotOpen = L"分割ソースファイルが開けません";
inline const std::wstring kCannotMakeCof = L"合成用ファイルが開けません";
inline const std::wstring kCannotWrite = L"分割データファイルに書き込めません";
inline const std::wstring kCannotRead = L"分割データファイルが読み込めません";

// Sizes in a joining file.
inline constexpr std::size_t kCofHead = 101;  // flag and key block
inline constexpr std::size_t kCofRecord = 308;

using FileBytes = std::vector<unsigned char>;

// Bytes without a pattern that a shifted block could hide in.
FileBytes Content(std::size_t size);
FileBytes Part(const FileBytes& bytes, std::size_t from, std::size_t size);

// What a text is inside the program.
std::string CodePage932(const std::wstring& text);

bool Exists(const std::wstring& path);
// True if no other program has the file open.
bool OpensAlone(const std::wstring& path);

class DivideFixture : public testing::Test {
 protected:
  void SetUp() override { companion_.Start(); }

  // FileDivideSetDlg2, set to divide kSource beside itself into pieces named
  // "piece<n>.div", or FileDivideSetDlg3, set to restore kCof beside itself.
  HWND OpenDivide(int count, bool scrambled);
  HWND OpenRestore();

  void TypeKeyword(const std::wstring& keyword);
  // The same in a division, and the answer to its question.
  void ConfirmKeyword(const std::wstring& keyword);

  // Lets a run that has begun come to the box that ends it, and answers it.
  std::wstring Finish(const std::wstring& box);
  void ExpectBoxes(const std::vector<std::wstring>& texts);
  // The progress dialog of a restore whose start has failed stands and does nothing
  // until it is stopped.
  void ExpectProgressUntilStopped(HWND dialog);
  // No run and nothing in front of the dialog, and none to come.
  void ExpectIdle(HWND dialog);
  // Waits until the program's own timer has come a few times more.
  void LetTicksPass();
  // Waits until a run has done a few pieces, then stops it; it is stopped in time.
  void StopInTheMiddle(HWND dialog, const std::wstring& progress);

  // Whole runs, from an opened choice to the closed dialog. Restore returns the
  // text of the box that ends it.
  void Divide(int count, const std::wstring& keyword);
  std::wstring Restore(const std::wstring& keyword, const std::wstring& box = kRestored);

  static ModelDivision Division(const FileBytes& source, int count, const std::wstring& keyword);
  // All files of the last division, the key block and the piece numbers given, are
  // what the model says; it has made no others. A run that was stopped ends behind
  // its last whole piece.
  void ExpectModel(const ModelDivision& division) const;
  std::set<std::wstring> DivideFiles() const;  // names that begin with "piece"
  void DeleteDivideFiles() const;

  FileBytes Bytes(const std::wstring& name) const { return ReadWholeFile(companion_.File(name)); }
  void Put(const std::wstring& name, const FileBytes& bytes) const {
    WriteWholeFile(companion_.File(name), bytes);
  }
  void Remove(const std::wstring& name) const { ASSERT_TRUE(DeleteFileW(companion_.File(name).c_str())); }
  static std::wstring Piece(int number) { return L"piece" + std::to_wstring(number) + L".div"; }

  Companion companion_;

 private:
  HWND Choose(int button, const std::wstring& title);
};
