# The plan: its window for study and for training, its editors, and its questions.
plan='学習作業スケジュール作成'
training='筋トレ スケジュール作成'
prepare='計画表からスケジュールへの変換準備'
# plan_at WINDOW X Y: the place of a point of the window's client area, by its first key.
plan_at() {
  local key
  key=($(hand part "$1" 102))
  echo $((key[0] - 12 + $2)) $((key[1] - 72 + $3))
}
plan_double() {
  xdotool mousemove $(plan_at "$@") click --repeat 2 --delay 80 1
  sleep 0.3
}
# plan_load NAME: a sample of the data set.
plan_load() {
  press "$plan" 108
  if [ -z "${plan_folder:-}" ]; then
    double "$picker_load" 2 '[計画表]'
    sleep 0.3
    plan_folder=known
  fi
  choose "$picker_load" 103 "$1"
  leave "$picker_load" 1
  sleep 0.5
}
picker_load='ファイルのロード'

send 2025
shot SchedulePlan1Dlg_new "$plan"
plan_load '学習計画.GPP'
shot SchedulePlan1Dlg "$plan"
xdotool mousemove $(plan_at "$plan" 30 250) mousedown 1
xdotool mousemove $(plan_at "$plan" 30 270) mousemove $(plan_at "$plan" 30 290) mouseup 1
send 2210
shot SchedulePlan1Dlg_copied "$plan"
xdotool mousemove $(plan_at "$plan" 300 290) click 1
shot SchedulePlan1Dlg_cell "$plan"
pressed SCPSttTimeSetDlg '開始年月日設定' "$plan" 102
pressed SCPRepeatIntSetDlg '学習作業復習-時間間隔設定' "$plan" 103
pressed SCPDayTimeDlg '1日のワーク時間設定' "$plan" 105
rests='休憩時間設定'
press "$plan" 106
shot PSDialog2no1 "$rests"
hand page "$rests" 1
shot PSDialog2no2 "$rests"
leave "$rests" 2
plan_double "$plan" 200 250
dialog SCPContentSetDlg '内容設定'
plan_double "$plan" 540 250
dialog SCPRsvTimeSetDlg '学習時間設定'
plan_double "$plan" 640 250
dialog SCPRepeatTimeSetDlg '復習回数'
xdotool mousemove $(plan_at "$plan" 30 330) click 3
sleep 0.4
shot menu_plan_row -
xdotool key Escape
plan_load '筋トレ計画.GPP'
shot SchedulePlan1Dlg_training "$plan"
plan_double "$plan" 540 250
dialog SCPRsvTime2SetDlg '負荷・時間設定'
plan_load '学習計画.GPP'
press "$plan" 107
dialog box_plan_convert "$prepare" 2
press "$plan" 106
leave "$rests" 1
press "$plan" 107
shot box_plan_convert_changed "$prepare"
leave "$prepare" 2
dialog box_plan_lose 'スケジュール移行への確認' 2
press "$plan" 109
shot SchedulePlan_save 'ファイルの保存'
leave 'ファイルの保存' 3
plan_load '学習計画.GPP'
press "$plan" 107
leave "$prepare" 1
shot ScheduleMakeDlg_converted 'スケジュール表'
leave 'スケジュール表' 2
send 2218
shot SCHEDULEPLAN2DLG "$training"
pressed SCPRepeat2IntSetDlg '負荷ごとの疲労回復時間設定' "$training" 104
leave "$training"
xdotool mousemove 2 2
