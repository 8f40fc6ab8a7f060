// The words of the file tools' dialogs, letter by letter, blanks included, as they
// stand in the compiled resources.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/headless/resource_file.h"
#include "resources/filetools_ids.h"
#include "resources/mail_music_ids.h"
#include "tests/support/places.h"

namespace {

struct Labels {
  int dialog;
  const char* caption;  // null: any
  std::vector<const char*> texts;
};

const Labels kLabels[] = {
    // Opening files.
    {IDD_FileOpnDialog,
     "ファイル オープン",
     {"開くファイル", "参照", "参照", "開く", "グループ登録", "グループ呼び出し", "記録をグループ化",
      "記録確認", "記録クリア", "オープン履歴削除", "アニメーション/サウンド"}},
    {IDD_FileOpnGrpSetDlg, nullptr, {"追加", "削除", "詳細表示", "設定", "キャンセル"}},
    {IDD_SetGrpOpnFileRecDlg, nullptr, {"グループに登録"}},
    {IDD_TakeOpnGrpSetDlg, nullptr, {"ファイル名検索", "コメント検索", "ファイルオープン実行"}},
    {IDD_SerchOpnFileGrpSelDlg, "検索したグループの選択", {"選択"}},
    {IDD_DelListOpnFileHisDlg, nullptr, {"削除する", "全てを削除"}},
    {IDD_SetOpnFileAnimeDlg,
     "ファイルオープン アニメーション/サウンド設定",
     {"アニメーションを有効にする", "サウンドを有効にする", "動作チェック", "設定"}},
    {IDD_SetMailAnimeDlg,
     nullptr,
     {"アニメーションを有効にする", "サウンドを有効にする", "動作チェック", "設定"}},
    // Back-up.
    {IDD_FileBackUpSetDlg,
     "ファイル バックアップ",
     {"バックアップソースファイル選択", "バックアップ先ディレクトリ選択", "ソース選択解除",
      "全ソースの選択解除", "バックアップを実行", "日付で比較", "内容で比較", "設定ファイルセーブ",
      "コメント"}},
    {IDD_BackUpDlg, "バックアップ実行中", {"中止"}},
    {IDD_FileBackUpDirDlg, "バックアップ先ディレクトリ指定", {"   選 択   ", " キャンセル"}},
    {IDD_FileBackUpDateDlg,
     "バックアップファイル日付比較",
     {" 日付の違うソースファイル一覧     ファイル名(日付 元 - 先)"}},
    // Dividing and restoring.
    {IDD_FileDivideSetDlg, "ファイル 分割/復元選択", {"ファイルを分割する", "分割ファイルを復元する"}},
    {IDD_FileDivideSetDlg2,
     "ファイル 分割",
     {"分割するファイルを選択", "分割ファイル格納先選択", "分割データを格納するファイル(代表名)",
      "ソースファイルサイス: ", "分割数: ", "分割時に暗号化する", "ファイル分割を実行"}},
    {IDD_FileDivFileDlg, "分割ファイル格納先ディレクトリ選択", {"   選 択   ", " キャンセル"}},
    {IDD_FileDivideSetDlg3,
     "ファイル 復元",
     {"合成ファイル選択", "復元ファイル格納先選択", "分割ファイルを復元"}},
    {IDD_FileUDivFileDlg, "合成ファイル格納先ディレクトリ選択", {"   選 択   ", " キャンセル"}},
    {IDD_FileDivKeyWordDlg, "暗号化キーワード入力", {"(全角なら2文字以上)"}},
    {IDD_FileDivKeyWordDlg2,
     "暗号化キーワード入力",
     {"復元用のキーワードを入力してください ", "(全角なら2文字以上)"}},
    {IDD_FileDivExeDlg, "ファイル分割中", {"中止"}},
    {IDD_FileUnDivExeDlg, "ファイル復元中", {"中止"}},
    // Folder scope.
    {IDD_FolderScopeSetDlg, "フォルダースコープ", {"拡張子フィルター:", "円グラフを表示", "棒グラフを表示"}},
    {IDD_FolderStaticsDlg, "フォルダー統計 円グラフ", {"指定フォルダー名:"}},
    {IDD_FolderStaticsDlg2, "フォルダー統計 棒グラフ", {"指定フォルダー名:"}},
    {IDD_SerchDrvDlg, "指定ドライブ検索中", {"中止"}},
    {IDD_SerchFolderDlg, "指定フォルダ検索中", {"中止"}},
    // Desktop tidy.
    {IDD_FileDesktopClrDlg,
     "デスクトップの整理",
     {" 整理フォルダー名 ", "デスクトップの整理実行", "整理フォルダーを開く",
      "整理フォルダーからデスクトップへ戻す", "デスクトップ整理後アイコンを整頓",
      "拡張子ごとに整理フォルダーを分ける", " 整理対象指定 :", " 終了"}},
    {IDD_DesktopIconSetDlg,
     "デスクトップ カバー設定",
     {" カバー選択リスト ", "デスクトップへ貼り付け", "カバー表示イネーブル", " 終了"}},
};

TEST(FileToolsLabelsTest, EveryLabelStandsInItsDialogLetterByLetter) {
  ResourceSet set;
  ASSERT_EQ(ResourceLoad(kResourceFile, &set), nullptr);
  for (const Labels& labels : kLabels) {
    ASSERT_EQ(set.dialogs.count(labels.dialog), 1U) << labels.dialog;
    const ResourceDialog& dialog = set.dialogs.at(labels.dialog);
    if (labels.caption) {
      EXPECT_EQ(dialog.caption, labels.caption);
    }
    std::vector<std::string> texts;
    for (const ResourceControl& control : dialog.controls) texts.push_back(control.text);
    for (const char* text : labels.texts) {
      const auto found = std::find(texts.begin(), texts.end(), text);
      EXPECT_NE(found, texts.end()) << text << " in dialog " << labels.dialog;
      if (found != texts.end()) texts.erase(found);  // a label told twice stands twice
    }
  }
}

}  // namespace
