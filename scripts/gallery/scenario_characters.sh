# The characters of the world and their registration, in the sample scenario. One gets a
# picture that is larger than its box for the while.
rout='シナリオ設定'
regi='登場キャラクタ登録(キャスティング)'
cp "$program/どんぐりの森/背景/丘.bmp" "$program/キャラクタ/Chara7_1.bmp"
send 1923
choose 'シナリオのロード' 101 0
leave 'シナリオのロード' 1
press "$rout" 118
shot CharaRegiDlg "$regi"
register='登場キャラクタの登録'
choose "$regi" 101 14
press "$regi" 102
fill "$register" 111 '時計台'
dialog SetOrChkCharRegiDlg "$register" 2
choose "$regi" 101 6
pressed SetOrChkCharRegiDlg_scaled "$register" "$regi" 102 2
choose "$regi" 101 4
pressed SetOrChkCharRegiDlg_empty "$register" "$regi" 102 2
choose "$regi" 101 0
pressed SetOrChkCharRegiDlg2 '登場キャラクタの確認と変更' "$regi" 102 2
pressed DelCharRegiDlg '登場キャラクタの登録削除' "$regi" 103 2
leave "$regi"
leave "$rout" 2
rm "$program/キャラクタ/Chara7_1.bmp"
