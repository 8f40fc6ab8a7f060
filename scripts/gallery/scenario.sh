# Scenarios: each dialog of the folders and scenes, of the parameters, and each page of a
# scene's ways to move on.
rout='シナリオ設定'
place='シナリオフォルダー設定'
scene='場面ファイル設定'
sheet='場面進行方法設定'
para='パラメータ追加'

send 1926
fill '新規シナリオの作成' 101 '冒険の島'
shot NewSnryMainDlg '新規シナリオの作成'
press '新規シナリオの作成' 1
dialog box_scenario_made '新規シナリオファイルを作成' 1
fill "$rout" 101 '冒険の島 - 宝を探す話'
for name in '鍵を持っている' '扉が開いている' '宝の数'; do
  press "$rout" 114
  fill "$para" 101 "$name"
  fill "$para" 102 '0'
  fill "$para" 103 '物語の途中で変わる値'
  [ "$name" != '宝の数' ] || shot AddSnryParaDlg "$para"
  leave "$para" 1
done
press "$rout" 110
shot MkNewSnryFolderDlg 'シナリオフォルダー新規作成'
press 'シナリオフォルダー新規作成' 1
sleep 0.5
shot box_scenario_folder 'シナリオフォルダー新規作成'
press 'シナリオフォルダー新規作成' 1
hand gone 'シナリオフォルダー新規作成'
pressed AddSnryFolderDlg 'シナリオフォルダー追加' "$rout" 111 3
choose "$rout" 102 0
press "$rout" 113
fill "$place" 101 '第一章 港の町'
press "$place" 111
shot MkNewSnryFileDlg '場面ファイル新規作成'
press '場面ファイル新規作成' 1
dialog box_scene_made '新規場面ファイル作成' 1
sleep 0.3
press "$place" 110
choose 'シナリオ起動条件' 101 1
fill 'シナリオ起動条件' 102 '1'
dialog SnrySelParaDlg 'シナリオ起動条件' 1
pressed AddSnryFileDlg '場面ファイル追加' "$place" 112 2
choose "$place" 103 0
pressed DelSnryFileDlg '場面ファイル削除' "$place" 113 2
shot SnryFolderSetting "$place"
press "$place" 114
shot SnryFileSetting "$scene"
press "$scene" 117
choose '場面起動条件' 101 2
dialog SceneSelParaDlg '場面起動条件' 1

press "$scene" 118
press "$sheet" 101
choose "$sheet" 105 1
for text in '港へ行く' '灯台に登る' '町の人に聞く'; do
  fill "$sheet" 128 "$text"
  press "$sheet" 129
  dialog box_menu_add 'メニューの追加' 1
done
choose "$sheet" 108 3
fill "$sheet" 109 '5'
press "$sheet" 110
dialog box_para_add 'パラメータの追加' 1
sleep 0.3
shot PSDialog1no1 "$sheet"
hand page "$sheet" 1
fill "$sheet" 120 '合い言葉'
fill "$sheet" 126 '開けごま'
choose "$sheet" 108 2
choose "$sheet" 133 0
choose "$sheet" 134 0
press "$sheet" 110
leave 'パラメータの追加' 1
sleep 0.3
shot PSDialog1no2 "$sheet"
hand page "$sheet" 2
fill "$sheet" 120 '50'
choose "$sheet" 108 3
choose "$sheet" 130 1
choose "$sheet" 131 1
press "$sheet" 110
leave 'パラメータの追加' 1
sleep 0.3
shot PSDialog1no3 "$sheet"
leave "$sheet" 1
leave "$scene" 1
leave "$place" 1
choose "$rout" 103 1
pressed ChgSnryParaDlg 'パラメータ変更' "$rout" 115 2
press "$rout" 116
shot DelSnryParaDlg 'パラメータ削除'
leave 'パラメータ削除' 2
choose "$rout" 102 0
pressed DelSnryFolderDlg 'シナリオフォルダー削除' "$rout" 112 2
shot RoutSnrySetting "$rout"
leave "$rout" 1
sent SnryMainLoad 'シナリオのロード' 1923 2
send 1924
choose 'シナリオの削除' 101 0
shot SnryMainDelete 'シナリオの削除'
leave 'シナリオの削除' 2

# The same scene in the form of a table: the byte of its flags, in the main file that has
# just been saved.
main=$(ls "$program"/ワールド/冒険の島/シナリオメイン.cff)
printf '\x01' | dd of="$main" bs=1 seek=$((15414 + 596)) conv=notrunc status=none
send 1923
choose 'シナリオのロード' 101 '[冒険'
leave 'シナリオのロード' 1
choose "$rout" 102 0
press "$rout" 113
choose "$place" 103 0
press "$place" 114
press "$scene" 118
hand page "$sheet" 1
shot PSDialog1no2_2 "$sheet"
leave "$sheet" 2
leave "$scene" 2
leave "$place" 2
leave "$rout" 2
