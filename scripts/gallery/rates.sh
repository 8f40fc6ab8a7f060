# How far a schedule has come, and its map: of the sample schedule, whose lines are open,
# begun, put off and done, and of one that began a month ago.
table='スケジュール表'
rates='予定表 - 目標達成率表示'
map='予定表ステータス マップ表示'

# rates_at X Y: the place of a point of the table's window, by its scroll bar.
rates_at() {
  local bar
  bar=($(hand part "$table" 100))
  echo $((bar[0] - 782 + $1)) $((bar[1] - 50 + $2))
}

send 2021
double "$picker" 2 '[スケジュール表]'
sleep 0.3
choose "$picker" 103 '見本の予定'
leave "$picker" 1
shot ScheduleMakeDlg_statuses "$table"
xdotool mousemove $(rates_at 30 100) click 1
sleep 0.3
sent SelMapListScnDlg 'マップ位置設定' 2344
sent SetSclStatusDlg '予定表 ステータス設定' 2345
send 2342
shot SclSucsPerAndMapDlg "$rates"
press "$rates" 2343
shot DispCelSclMapPosDlg "$map"
button=($(hand part "$map" 2))
xdotool mousemove $((button[0] - 668 + 44)) $((button[1] - 496 + 138)) click 1
sleep 0.3
dialog DispCelSclMapPosDlg_chosen "$map" 2
leave "$rates" 1

python3 scripts/gallery/schedule_file.py "$program/先月の予定.GPI" 31 30
send 2021
fill "$picker" 100 '先月の予定.GPI'
leave "$picker" 1
sleep 0.5
sent SclSucsPerAndMapDlg_due "$rates" 2342 1
leave "$table" 2
xdotool mousemove 2 2
