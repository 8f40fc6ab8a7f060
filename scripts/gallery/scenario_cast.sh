# The cast of a scene of the sample scenario, and what stands behind it.
rout='シナリオ設定'
place='シナリオフォルダー設定'
scene='場面ファイル設定'
send 1923
choose 'シナリオのロード' 101 0
leave 'シナリオのロード' 1
choose "$rout" 102 0
press "$rout" 113
choose "$place" 103 0
press "$place" 114
shot SnryFileSetting_cast "$scene"

add='登場キャラクター追加'
press "$scene" 110
choose "$add" 103 1
sleep 0.3
dialog FileCharaAddDlg "$add" 2
choose "$scene" 101 0
pressed FileCharaDelDlg '登場キャラクター削除' "$scene" 111 2
copies='コピーの作成'
choose "$scene" 101 0
press "$scene" 112
fill "$copies" 110 '3'
shot FileCharaCopyDlg "$copies"
fill "$copies" 110 '999'
press "$copies" 1
dialog box_copies 'コピー数設定エラー' 1
leave "$copies" 2
choose "$scene" 101 3
pressed box_copy_remove 'キャラクタ削除の無効' "$scene" 111 1
pressed box_copy_copy 'キャラクタコピーの無効' "$scene" 112 1

lines='キャラクター台詞設定'
choose "$scene" 101 2
press "$scene" 113
choose "$lines" 103 0
shot SnryCharMessageDlg "$lines"
press "$lines" 104
dialog box_line_add '台詞の追加' 2
leave "$lines"
motions='キャラクター動作設定'
choose "$scene" 101 0
press "$scene" 114
choose "$motions" 103 1
dialog SnryCharPlayDlg "$motions"
choose "$scene" 101 3
pressed SnryCharEntryDlg 'キャラクター登場/退場' "$scene" 115 2
choose "$scene" 101 0
pressed SnryCharBariaDlg '前後関係と衝突検知' "$scene" 116 2

back='場面背景設定'
press "$scene" 119
shot SnryCharBackDlg "$back"
choose "$back" 103 0
press "$back" 143
fill "$back" 148 '90'
fill "$back" 149 '160'
fill "$back" 150 '220'
sleep 0.3
dialog SnryCharBackDlg_colour "$back" 2
leave "$scene" 2
leave "$place" 2
leave "$rout" 2
