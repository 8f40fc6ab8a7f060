#include "tests/desktop/divide_fixture.h"

#include "resources/filetools_ids.h"
#include "tests/desktop/dialogs.h"

namespace {

constexpr unsigned kChooseCommand = 1915;
constexpr int kFewTicks = 3;
constexpr int kFewPieces = 3;

std::string Text(const FileBytes& bytes) {
  return {bytes.begin(), bytes.end()};
}

std::wstring Wide(const std::string& text) {
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(MultiByteToWideChar(932, 0, text.data(), static_cast<int>(text.size()),
                                                           wide.data(), static_cast<int>(wide.size()))));
  return wide;
}

}  // namespace

FileBytes Content(std::size_t size) {
  FileBytes bytes(size);
  std::uint32_t state = 12345;
  for (unsigned char& value : bytes) {
    state = state * 1664525U + 1013904223U;
    value = static_cast<unsigned char>(state >> 24U);
  }
  return bytes;
}

FileBytes Part(const FileBytes& bytes, std::size_t from, std::size_t size) {
  const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(from);
  return {begin, begin + static_cast<std::ptrdiff_t>(size)};
}

std::string CodePage932(const std::wstring& text) {
  std::string narrow(text.size() * 2, '\0');
  narrow.resize(static_cast<std::size_t>(
      WideCharToMultiByte(932, 0, text.data(), static_cast<int>(text.size()), narrow.data(),
                          static_cast<int>(narrow.size()), nullptr, nullptr)));
  return narrow;
}

bool Exists(const std::wstring& path) {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool OpensAlone(const std::wstring& path) {
  HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  CloseHandle(file);
  return true;
}

HWND DivideFixture::Choose(int button, const std::wstring& title) {
  companion_.Post(kChooseCommand);
  const HWND choice = companion_.Dialog(L"ファイル 分割/復元選択");
  return choice ? OpenBy(companion_, choice, button, title) : nullptr;
}

HWND DivideFixture::OpenDivide(int count, bool scrambled) {
  const HWND dialog = Choose(IDC_DIVIDE_CHOOSE_DIVIDE, L"ファイル 分割");
  EXPECT_TRUE(dialog && PickFile(companion_, dialog, IDC_DIVIDE_PICK, kSource));
  EXPECT_TRUE(
      PickFolder(companion_, dialog, IDC_DIVIDE_PICK_FOLDER, L"分割ファイル格納先ディレクトリ選択"));
  EXPECT_EQ(EditText(dialog, IDC_DIVIDE_FOLDER), companion_.Folder());
  SetEdit(dialog, IDC_DIVIDE_NAME, L"piece");
  SetEdit(dialog, IDC_DIVIDE_COUNT, std::to_wstring(count));
  SetChecked(dialog, IDC_DIVIDE_ENCRYPT, scrambled);
  return dialog;
}

HWND DivideFixture::OpenRestore() {
  const HWND dialog = Choose(IDC_DIVIDE_CHOOSE_RESTORE, L"ファイル 復元");
  EXPECT_TRUE(dialog && PickFile(companion_, dialog, IDC_DIVIDE_PICK, kCof));
  EXPECT_TRUE(
      PickFolder(companion_, dialog, IDC_DIVIDE_PICK_FOLDER, L"合成ファイル格納先ディレクトリ選択"));
  return dialog;
}

void DivideFixture::TypeKeyword(const std::wstring& keyword) {
  const HWND dialog = companion_.Dialog(L"暗号化キーワード入力");
  ASSERT_TRUE(dialog);
  SetEdit(dialog, IDC_DIVIDE_KEYWORD, keyword);
  PostButton(dialog, kOk);
}

void DivideFixture::ConfirmKeyword(const std::wstring& keyword) {
  TypeKeyword(keyword);
  EXPECT_EQ(AnswerBox(companion_, L"ファイル分割の実行"),
            L"重要: キーワード \"" + keyword + L"\" はファイル復元時にも必要です。 分割を開始します。");
}

std::wstring DivideFixture::Finish(const std::wstring& box) {
  TickUntil(
      companion_, [&] { return companion_.FindDialog(box) != nullptr; }, 60000);
  const std::wstring text = AnswerBox(companion_, box);
  EXPECT_TRUE(WaitFor([&] { return companion_.Value(kShowProgressMode) == 0; }));
  return text;
}

void DivideFixture::ExpectBoxes(const std::vector<std::wstring>& texts) {
  for (const std::wstring& text : texts) EXPECT_EQ(AnswerBox(companion_, kFailed), text);
}

void DivideFixture::ExpectProgressUntilStopped(HWND dialog) {
  const HWND progress = companion_.Dialog(kRestoreProgress);
  ASSERT_TRUE(progress);
  LetTicksPass();
  EXPECT_EQ(companion_.FindDialog(kRestoreProgress), progress);
  EXPECT_FALSE(companion_.FindDialog(kFailed));
  EXPECT_FALSE(IsWindowEnabled(dialog));
  EXPECT_EQ(companion_.Value(kShowProgressMode), 4);
  EXPECT_EQ(companion_.Value(kShowStepCounter), 1);
  EXPECT_TRUE(EndBy(progress, kStop));
  ExpectIdle(dialog);
}

void DivideFixture::ExpectIdle(HWND dialog) {
  LetTicksPass();
  for (const std::wstring& title : {kFailed, kDivided, kRestored, kDivideProgress, kRestoreProgress}) {
    EXPECT_FALSE(companion_.FindDialog(title));
  }
  EXPECT_TRUE(IsWindowEnabled(dialog));
  EXPECT_EQ(companion_.Value(kShowProgressMode), 0);
  EXPECT_EQ(companion_.Value(kShowStepCounter), 0);
}

void DivideFixture::LetTicksPass() {
  const int last = companion_.Value(kShowTicks) + kFewTicks;
  EXPECT_TRUE(WaitFor([&] { return companion_.Value(kShowTicks) >= last; }));
}

void DivideFixture::StopInTheMiddle(HWND dialog, const std::wstring& progress) {
  const HWND window = companion_.Dialog(progress);
  ASSERT_TRUE(window);
  EXPECT_FALSE(IsWindowEnabled(dialog));
  EXPECT_EQ(companion_.Value(kShowProgressMode), progress == kDivideProgress ? 3 : 4);
  ASSERT_TRUE(WaitFor([&] { return companion_.Value(kShowStepCounter) >= 2 + kFewPieces; }));
  EXPECT_TRUE(EndBy(window, kStop));
  ExpectIdle(dialog);
}

void DivideFixture::Divide(int count, const std::wstring& keyword) {
  const HWND dialog = OpenDivide(count, !keyword.empty());
  PostButton(dialog, IDC_DIVIDE_RUN);
  if (!keyword.empty()) ConfirmKeyword(keyword);
  EXPECT_EQ(Finish(kDivided), L"ファイル分割を終了しました");
  EXPECT_TRUE(EndBy(dialog, kClose));
}

std::wstring DivideFixture::Restore(const std::wstring& keyword, const std::wstring& box) {
  const HWND dialog = OpenRestore();
  PostButton(dialog, IDC_DIVIDE_RUN);
  if (!keyword.empty()) TypeKeyword(keyword);
  const std::wstring text = Finish(box);
  EXPECT_TRUE(EndBy(dialog, kClose));
  return text;
}

ModelDivision DivideFixture::Division(const FileBytes& source, int count, const std::wstring& keyword) {
  return {Text(source), CodePage932(kSource), "piece", count, CodePage932(keyword), 0};
}

void DivideFixture::ExpectModel(const ModelDivision& division) const {
  const std::string cof = Text(Bytes(kCof));
  ASSERT_GE(cof.size(), kCofHead + kCofRecord);
  const ModelChance chance = ModelChanceOf(cof, division.keyword);
  const ModelResult model = ModelDivide(division, chance);
  EXPECT_TRUE(cof == model.cof);
  std::set<std::wstring> names{kCof};
  for (const auto& [name, bytes] : model.pieces) {
    EXPECT_TRUE(Text(Bytes(Wide(name))) == bytes) << name;
    names.insert(Wide(name));
  }
  EXPECT_EQ(DivideFiles(), names);

  // What chance may bring.
  for (std::size_t at = 0; at < 96; ++at) EXPECT_NE(chance.keyBlock[at], '\xFF') << at;
  EXPECT_EQ(chance.keyBlock.substr(96), std::string(4, '\0'));
  EXPECT_EQ(std::set<int>(chance.numbers.begin(), chance.numbers.end()).size(), chance.numbers.size());
  for (std::size_t i = 0; i < chance.numbers.size(); ++i) {
    EXPECT_GE(chance.numbers[i], 1);
    EXPECT_LE(chance.numbers[i], 100);
    if (division.keyword.empty()) {
      EXPECT_EQ(chance.numbers[i], static_cast<int>(i + 1));
    }
  }
}

std::set<std::wstring> DivideFixture::DivideFiles() const {
  std::set<std::wstring> names;
  WIN32_FIND_DATAW data{};
  HANDLE search = FindFirstFileW(companion_.File(L"piece*").c_str(), &data);
  if (search == INVALID_HANDLE_VALUE) return names;
  do names.insert(data.cFileName);
  while (FindNextFileW(search, &data));
  FindClose(search);
  return names;
}

void DivideFixture::DeleteDivideFiles() const {
  for (const std::wstring& name : DivideFiles()) Remove(name);
}
