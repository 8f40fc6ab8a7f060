// Scenarios in the folder of the real program, opened and left through its dialogs.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/desktop/companion.h"

inline constexpr unsigned kScenarioLoad = 1923;
inline constexpr unsigned kScenarioDelete = 1924;
inline constexpr unsigned kScenarioNew = 1926;

// Sizes and places in the files.
inline constexpr std::size_t kMainSize = 2371558;
inline constexpr std::size_t kScenesAt = 15414;
inline constexpr std::size_t kSceneRecSize = 982;
inline constexpr std::size_t kParasAt = 1734178;
inline constexpr std::size_t kOptionsAt = 2371430;
inline constexpr std::size_t kEventsAt = 181835;
inline constexpr std::size_t kRandomsAt = 229035;

using FileImage = std::vector<unsigned char>;
using Texts = std::vector<std::wstring>;

// What a text is inside the files.
std::string Narrow(const std::wstring& text);
void PutText(FileImage& bytes, std::size_t at, const std::wstring& text);
void PutLowFirst(FileImage& bytes, std::size_t at, int value);
std::string TextAt(const FileImage& bytes, std::size_t at);
// A number of two bytes, its low byte first; -1 behind the end.
int LowFirst(const FileImage& bytes, std::size_t at);
// Several of them, one behind the other.
std::vector<int> LowFirsts(const FileImage& bytes, std::size_t at, std::size_t count);

// Where the sections of a scene's file are, by the two counts in it.
struct SceneLayout {
  explicit SceneLayout(const FileImage& scene);
  std::size_t Line(int id) const { return 266637 + 181 * (static_cast<std::size_t>(id) - 1); }
  std::size_t Cast(int id) const { return cast + 1638 * (static_cast<std::size_t>(id) - 1); }

  int lines;
  int casts;
  std::size_t cast;
  std::size_t backdrop;
  std::size_t title;
  std::size_t sounds;
  std::size_t keys;
  std::size_t scroll;
  std::size_t table;
  std::size_t end;
};

Texts ListTexts(HWND dialog, int id);
int Chosen(HWND dialog, int combo);
void ChooseText(HWND dialog, int id, const std::wstring& text);
bool IsChecked(HWND dialog, int id);

class ScenarioFixture : public testing::Test {
 protected:
  // A file of the scenario that a data set has.
  std::wstring Sample(const std::wstring& name) const { return companion_.File(L"どんぐりの森\\" + name); }
  FileImage SampleMain() const { return ReadWholeFile(Sample(L"シナリオメイン.cff")); }

  // RoutSnrySetting of the last scenario of the list: a data set has one of its own.
  HWND Load();
  // SnryFolderSetting of a folder, SnryFileSetting of a scene.
  HWND OpenFolder(HWND rout, int row = 0);
  HWND OpenScene(HWND folder, int row = 0);
  // All three of them, from the command on; null when one does not come.
  HWND LoadScene(int folder = 0, int scene = 0);
  // Leaves them with the same button each, from the scene on.
  void EndScene(int button = IDOK);
  // Starts the companion, does something in the scene, leaves with OK and ends the companion.
  void InARunOfItsOwn(const std::function<void()>& deeds);
  // A dialog behind a button of the scene, for a row of its cast.
  HWND OpenFor(int row, int button, const std::wstring& title);
  // Presses a button that asks, and agrees or not.
  void Answer(HWND dialog, int button, const std::wstring& caption, const std::wstring& text,
              int answer = IDOK);

  Companion companion_;
  HWND rout_ = nullptr;
  HWND folder_ = nullptr;
  HWND scene_ = nullptr;
};
