# The schedule: its menus, its table empty and filled, its chart, and its dialogs.
table='スケジュール表'
menu='スケジュール表 メニュー'
chart='計画-線表'
line='指定ラインの詳細'
for count in 31 300; do
  python3 scripts/gallery/schedule_file.py "$program/予定$count.GPI" "$count"
done
# schedule_load COUNT: the schedule of so many lines, in the table.
schedule_load() {
  send 2021
  fill 'ファイルのロード' 100 "予定$1.GPI"
  leave 'ファイルのロード' 1
  sleep 0.5
}
# table_at X Y: the place of a point of the table's window, by its scroll bar.
table_at() {
  local bar
  bar=($(hand part "$table" 100))
  echo $((bar[0] - 782 + $1)) $((bar[1] - 50 + $2))
}
# table_double X Y: a double click there.
table_double() {
  xdotool mousemove $(table_at "$@") click --repeat 2 --delay 80 1
  sleep 0.3
}

sent ScheduleSelDlg2 "$menu" 1910
sent ScheduleSelDlg "$menu" 2019
sent box_schedule_none '実行スケジュール編集エラー' 2264 1
send 2017
shot ScheduleMakeDlg_empty "$table"
schedule_load 31
shot ScheduleMakeDlg "$table"
xdotool mousemove $(table_at 30 120) mousedown 1
xdotool mousemove $(table_at 30 140) mousemove $(table_at 30 180) mouseup 1
send 2210
shot ScheduleMakeDlg_copied "$table"
xdotool mousemove $(table_at 300 100) click 1
shot ScheduleMakeDlg_cell "$table"
press "$table" 2257
dialog box_schedule_chosen '実行スケジュールの指定' 1
sleep 0.5
shot ScheduleMakeDlg_executing "$table"
table_double 750 40
dialog ScheduleAlarmDlg 'スケジュールのアラーム設定'
table_double 30 100
dialog DspSclClickLineData "$line" 2
press "$table" 2022
shot ScheduleLineDlg_31 "$chart"
bar=($(hand part "$chart" 101))
xdotool mousemove $((bar[0] - 934 + 220)) $((bar[1] - 90 + 60)) click --repeat 2 --delay 80 1
dialog DspSclClickDayData '指定日のスケジュール' 2
leave "$chart" 2
xdotool mousemove $(table_at 30 100) click 3
sleep 0.4
shot menu_schedule_row -
xdotool key Escape
press "$table" 2257
dialog box_schedule_unchosen '実行スケジュール指定の解除' 2
schedule_load 300
press "$table" 2022
press "$chart" 104
sleep 0.3
shot ScheduleLineDlg_300 "$chart"
leave "$chart" 2
hand find "$table" >/dev/null
press "$table" 2
dialog box_schedule_save 'スケジュールのセーブ確認' 2
hand gone "$table"
xdotool mousemove 2 2
