#include "tests/desktop/scenario_fixture.h"

#include <cstring>

#include "resources/scenario_storage_ids.h"
#include "tests/desktop/dialogs.h"

std::string Narrow(const std::wstring& text) {
  char narrow[600] = "";
  WideCharToMultiByte(932, 0, text.c_str(), -1, narrow, sizeof narrow, nullptr, nullptr);
  return narrow;
}

void PutText(FileImage& bytes, std::size_t at, const std::wstring& text) {
  const std::string narrow = Narrow(text);
  std::memcpy(bytes.data() + at, narrow.data(), narrow.size());
}

void PutLowFirst(FileImage& bytes, std::size_t at, int value) {
  bytes.at(at) = static_cast<unsigned char>(value & 0xFF);
  bytes.at(at + 1) = static_cast<unsigned char>(value >> 8 & 0xFF);
}

std::string TextAt(const FileImage& bytes, std::size_t at) {
  return at < bytes.size() ? reinterpret_cast<const char*>(bytes.data()) + at : "";
}

int LowFirst(const FileImage& bytes, std::size_t at) {
  return at + 1 < bytes.size() ? bytes[at] | bytes[at + 1] << 8 : -1;
}

std::vector<int> LowFirsts(const FileImage& bytes, std::size_t at, std::size_t count) {
  std::vector<int> numbers;
  for (std::size_t i = 0; i < count; ++i) numbers.push_back(LowFirst(bytes, at + 2 * i));
  return numbers;
}

namespace {

// The counts in the file have their high byte first.
int CountAt(const FileImage& bytes, std::size_t at) {
  return at + 1 < bytes.size() ? bytes[at] << 8 | bytes[at + 1] : 0;
}

}  // namespace

SceneLayout::SceneLayout(const FileImage& scene)
    : lines(CountAt(scene, 266635)),
      casts(CountAt(scene, Line(lines + 1))),
      cast(Line(lines + 1) + 2),
      backdrop(Cast(casts + 1)),
      title(backdrop + 902),
      sounds(title + 154),
      keys(sounds + 62000 + 15200),
      scroll(keys + 2760),
      table(scroll + 2736 + 10800),
      end(table + 248) {}

Texts ListTexts(HWND dialog, int id) {
  Texts texts;
  for (int row = 0; row < ListRowCount(dialog, id); ++row) texts.push_back(ListRowText(dialog, id, row));
  return texts;
}

int Chosen(HWND dialog, int combo) {
  return static_cast<int>(SendDlgItemMessageW(dialog, combo, CB_GETCURSEL, 0, 0));
}

void ChooseText(HWND dialog, int id, const std::wstring& text) {
  const Texts texts = ListTexts(dialog, id);
  for (std::size_t row = 0; row < texts.size(); ++row) {
    if (texts[row] == text) return SelectListRow(dialog, id, static_cast<int>(row));
  }
  ADD_FAILURE() << "no such row: " << Narrow(text);
}

bool IsChecked(HWND dialog, int id) {
  return SendDlgItemMessageW(dialog, id, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

HWND ScenarioFixture::Load() {
  companion_.Post(kScenarioLoad);
  const HWND load = companion_.Dialog(L"シナリオのロード");
  if (!load) return nullptr;
  SelectListRow(load, IDC_SNRY_LIST, ListRowCount(load, IDC_SNRY_LIST) - 1);
  PostButton(load, IDOK);
  return companion_.Dialog(L"シナリオ設定");
}

HWND ScenarioFixture::OpenFolder(HWND rout, int row) {
  SelectListRow(rout, IDC_SNRY_FOLDERS, row);
  return OpenBy(companion_, rout, IDC_SNRY_FOLDER_SET, L"シナリオフォルダー設定");
}

HWND ScenarioFixture::OpenScene(HWND folder, int row) {
  SelectListRow(folder, IDC_SNRY_SCENES, row);
  return OpenBy(companion_, folder, IDC_SNRY_SCENE_SET, L"場面ファイル設定");
}

HWND ScenarioFixture::LoadScene(int folder, int scene) {
  rout_ = Load();
  folder_ = rout_ ? OpenFolder(rout_, folder) : nullptr;
  scene_ = folder_ ? OpenScene(folder_, scene) : nullptr;
  return scene_;
}

void ScenarioFixture::EndScene(int button) {
  ASSERT_TRUE(EndBy(scene_, button));
  ASSERT_TRUE(EndBy(folder_, button));
  ASSERT_TRUE(EndBy(rout_, button));
}

void ScenarioFixture::InARunOfItsOwn(const std::function<void()>& deeds) {
  companion_.Start();
  ASSERT_TRUE(LoadScene());
  deeds();
  EndScene();
  EXPECT_EQ(companion_.Close(), 0);
}

HWND ScenarioFixture::OpenFor(int row, int button, const std::wstring& title) {
  SelectListRow(scene_, IDC_SNRY_CAST, row);
  return OpenBy(companion_, scene_, button, title);
}

void ScenarioFixture::Answer(HWND dialog, int button, const std::wstring& caption, const std::wstring& text,
                             int answer) {
  PostButton(dialog, button);
  EXPECT_EQ(AnswerBox(companion_, caption, answer), text);
}
