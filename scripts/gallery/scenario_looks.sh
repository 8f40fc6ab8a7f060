# How a scene looks and sounds, the options of the scenario, and the trace of a parameter:
# of the first scenario of the list.
rout='シナリオ設定'
place='シナリオフォルダー設定'
scene='場面ファイル設定'
keys='キー、マウス割付'
scroll='スクロール設定'
option='オプション設定'
traced='確認するパラメータの指定'
test='パラメータ状態テスト'

send 1923
choose 'シナリオのロード' 101 0
leave 'シナリオのロード' 1
press "$rout" 117
choose "$traced" 100 0
pressed CheckParameterDlg2 'パラメータを確認' "$traced" 101 1
press "$traced" 102
fill "$test" 105 '1'
press "$test" 106
shot CheckParameterDlg3 "$test"
leave "$test" 2
shot CheckParameterDlg "$traced"
leave "$traced" 2
press "$rout" 119
pressed StsBarSettingDlg 'ステータスバー設定' "$option" 248 2
dialog SnryOptionDlg "$option" 2

choose "$rout" 102 0
press "$rout" 113
choose "$place" 103 0
press "$place" 114
press "$scene" 120
fill 'タイトル画面設定' 101 '第一章 港の町'
dialog TitleScnDlg 'タイトル画面設定' 2
pressed TableFormScnDlg '表形式選択' "$scene" 122 2
press "$scene" 121
shot SoundSetDlg 'サウンド設定'
press 'サウンド設定' 126
dialog box_sound_add 'サウンドの追加' 1
sleep 0.3
shot SoundSetDlg_added 'サウンド設定'
leave 'サウンド設定' 1
press "$scene" 123
choose "$keys" 161 3
fill "$keys" 162 '上へ歩く'
press "$keys" 169
dialog box_key_add '割付の追加' 1
choose "$keys" 160 0
choose "$keys" 173 1
fill "$keys" 174 '5'
press "$keys" 175
dialog box_key_parameter 'パラメータの追加' 1
sleep 0.3
shot SceenKeyDlg "$keys"
leave "$keys" 1
press "$scene" 119
press '場面背景設定' 151
hand find "$scroll" >/dev/null
choose "$scroll" 207 1
fill "$scroll" 208 '1'
choose "$scroll" 209 4
press "$scroll" 212
press "$scroll" 214
dialog box_scroll_add 'パラメータ追加' 1
sleep 0.3
dialog SnryBackScrollDlg "$scroll" 1
hand find '場面背景設定' >/dev/null
leave '場面背景設定' 2
leave "$scene" 2
leave "$place" 2
leave "$rout" 2
