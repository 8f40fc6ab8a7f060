// The folder scope of the real program on a tree of known sizes.
#include <gtest/gtest.h>

#include "resources/filetools_ids.h"
#include "tests/desktop/companion.h"
#include "tests/desktop/dialogs.h"

namespace {

constexpr unsigned kScopeCommand = 1914;
constexpr int kFolderRows = 2;
constexpr int kCancel = 3;
constexpr int kClose = 2;
constexpr int kEntryMax = 3105;

class ScopeTest : public testing::Test {
 protected:
  // Opens the scope on a folder of the program's folder.
  void Open(const std::wstring& folder) {
    companion_.Start();
    companion_.Post(kScopeCommand);
    dialog_ = companion_.Dialog(L"フォルダースコープ");
    ASSERT_TRUE(dialog_);
    const HWND list = GetDlgItem(dialog_, kFolderRows);
    const std::wstring text = L"[" + folder + L"]";
    const LRESULT row = SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                     reinterpret_cast<LPARAM>(text.c_str()));
    ASSERT_GE(row, 0);
    SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
    SendMessageW(dialog_, WM_COMMAND, MAKEWPARAM(kFolderRows, LBN_DBLCLK), reinterpret_cast<LPARAM>(list));
  }

  // The bar chart; null when it closes by itself.
  HWND Bars() {
    PostButton(dialog_, IDC_SCOPE_BARS);
    if (!companion_.Dialog(L"指定フォルダ検索中")) return nullptr;
    TickUntil(
        companion_, [&] { return companion_.Value(kShowProgressMode) == 0; }, 60000);
    HWND chart = nullptr;
    WaitFor([&] {
      return (chart = companion_.FindDialog(L"フォルダー統計 棒グラフ")) != nullptr ||
             IsWindowEnabled(dialog_);
    });
    return chart;
  }

  void Make(const std::wstring& name, std::size_t size) {
    WriteWholeFile(companion_.File(L"tree\\" + name), std::vector<unsigned char>(size, 'x'));
  }

  Companion companion_;
  HWND dialog_ = nullptr;
};

}  // namespace

TEST_F(ScopeTest, ListsTheFilesByKindAndShowsTheirSharesAsBars) {
  CreateDirectoryW(companion_.File(L"tree").c_str(), nullptr);
  CreateDirectoryW(companion_.File(L"tree\\deep").c_str(), nullptr);
  CreateDirectoryW(companion_.File(L"tree\\deep\\deeper").c_str(), nullptr);
  Make(L"a.txt", 10000);
  Make(L"b.bmp", 2000);
  Make(L"c.d.txt", 0);
  Make(L".hidden", 90000);
  Make(L"deep\\x.wav", 20000);
  Make(L"deep\\deeper\\y.wav", 8000);
  Open(L"tree");
  EXPECT_EQ(ListRowCount(dialog_, IDC_SCOPE_FILES), 3);
  constexpr int kTextFiles = 8;
  SendDlgItemMessageW(dialog_, IDC_SCOPE_FILTER, CB_SETCURSEL, kTextFiles, 0);
  SendMessageW(dialog_, WM_COMMAND, MAKEWPARAM(IDC_SCOPE_FILTER, CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(GetDlgItem(dialog_, IDC_SCOPE_FILTER)));
  ASSERT_EQ(ListRowCount(dialog_, IDC_SCOPE_FILES), 1) << "an extension begins at the first dot";
  EXPECT_EQ(ListRowText(dialog_, IDC_SCOPE_FILES, 0), L"a.txt");

  const HWND chart = Bars();
  ASSERT_TRUE(chart);
  EXPECT_EQ(EditText(chart, IDC_STATICS_FOLDER), companion_.File(L"tree"));
  // Of 40000 bytes the folder below has 28000, the files 10000, 2000 and 0: of the
  // 300 pixels 210, 75, 15 and none.
  POINT origin{0, 0};
  ClientToScreen(chart, &origin);
  constexpr std::uint32_t kBlue = 0x0000FF;
  constexpr int kBarLeft = 212;
  const auto barWidth = [&](int row) {
    const std::vector<std::uint32_t> line = ScreenPixels(
        static_cast<int>(origin.x) + kBarLeft, static_cast<int>(origin.y) + 160 + 20 * row + 8, 302, 1);
    int width = 0;
    for (const std::uint32_t pixel : line) width += pixel == kBlue;
    return width;
  };
  EXPECT_TRUE(WaitFor([&] { return barWidth(3) > 0; }, 5000));
  // The outline takes a pixel of each end.
  EXPECT_NEAR(barWidth(1), 210, 2);
  EXPECT_NEAR(barWidth(2), 75, 2);
  EXPECT_NEAR(barWidth(3), 15, 2);
  EXPECT_EQ(barWidth(4), 0);
  EXPECT_TRUE(EndBy(chart, kClose));
  EXPECT_TRUE(EndBy(dialog_, kCancel));
}

TEST_F(ScopeTest, AFolderOf3105EntriesClosesTheStatisticsSilentlyAndOneLessShowsThem) {
  CreateDirectoryW(companion_.File(L"tree").c_str(), nullptr);
  for (int i = 0; i < kEntryMax; ++i) Make(std::to_wstring(i), 0);
  Open(L"tree");
  EXPECT_EQ(ListRowCount(dialog_, IDC_SCOPE_FILES), kEntryMax);
  EXPECT_FALSE(Bars());
  EXPECT_TRUE(companion_.Runs());
  EXPECT_TRUE(IsWindowVisible(dialog_));
  ASSERT_TRUE(DeleteFileW(companion_.File(L"tree\\5").c_str()));
  const HWND chart = Bars();
  ASSERT_TRUE(chart);
  EXPECT_TRUE(EndBy(chart, kClose));
  EXPECT_TRUE(EndBy(dialog_, kCancel));
}
