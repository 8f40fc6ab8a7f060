# The clock: its designs, its strike, its dialogs and its alarm window, at a time of the
# day that stands in the pictures. Only the tests' build lets its time be set.
companion_end
companion_start "$program" "$PWD/build/windows/src/mirrell-report.exe"
sleep 1
clock='時計 選択/設定'
adust='時計 詳細設定'
alarms='時計アラーム設定'
events='時計イベント選択実行'
notice='時計 アラーム'
# clock_at HOUR MINUTE SECOND: and lets it be seen.
clock_at() {
  hand time $((($1 * 60 + $2) * 60 + $3))
  sleep 1
}

send 1911
shot SelWatchDlg "$clock"
press "$clock" 101
# It strikes twelve times at noon, which leaves time for a picture.
press "$clock" 103
press "$adust" 114
sleep 0.3
leave "$adust" 1
leave "$clock" 1
for design in 0 1 2 3; do
  send 1911
  choose "$clock" 102 "$design"
  leave "$clock" 1
  clock_at 10 8 0
  shot "FlyingBat6_$design" -
  clock_at 11 59 59
  sleep 1
  shot "FlyingBat6_${design}_strike" -
done
# Half past ten in the evening, and five past midnight.
send 2254
clock_at 22 30 0
shot FlyingBat6_3_evening -
clock_at 0 5 0
shot FlyingBat6_3_midnight -
send 1911
choose "$clock" 102 0
leave "$clock" 1
for time in '0 1' '3 0' '6 30' '9 45'; do
  clock_at $time 20
  send 2254
  shot "FlyingBat6_0_${time/ /_}" -
done
xdotool mousemove $(hand find - | awk '{ print $1 + $3 / 2, $2 + $4 / 2 }') click 3
shot menu_clock_own -
xdotool key Escape
xdotool mousemove 2 2

send 1911
press "$clock" 103
sleep 0.5
shot WatchAdustDlg "$adust"
press "$adust" 113
sleep 0.7
dialog AlarmChkDialog_clock 'アラーム動作の確認' 2
leave "$adust" 2
leave "$clock" 2

send 2330
fill "$alarms" 150 '起きる時間です'
press "$alarms" 110
choose "$alarms" 120 6
choose "$alarms" 130 30
choose "$alarms" 140 1
fill "$alarms" 151 'お茶の時間になりました。きょうのおやつは、はちみつの入ったどんぐりのケーキと、あたたかいミルクです。'
press "$alarms" 111
choose "$alarms" 121 15
choose "$alarms" 131 0
choose "$alarms" 141 1
shot SetClockAlarmDlg "$alarms"
leave "$alarms" 1
clock_at 14 59 50
clock_at 15 0 0
sleep 0.5
dialog FlyingBat5_alarm "$notice" 1

send 2339
choose "$events" 101 0
shot SetClockEventDlg "$events"
brief FlyingBat5_event "$notice" "$events" 1
leave "$notice" 1

add='時計イベント追加'
change='時計イベント変更'
for event in '7:0:0:朝の体操' '12:30:0:おひるごはん' '21:5:30:あしたの用意'; do
  send 2106
  fill "$add" 103 "$(cut -d: -f1 <<<"$event")"
  fill "$add" 104 "$(cut -d: -f2 <<<"$event")"
  fill "$add" 105 "$(cut -d: -f3 <<<"$event")"
  fill "$add" 106 "$(cut -d: -f4 <<<"$event")"
  shot WatchListAddDlg "$add"
  leave "$add" 1
done
sent WatchListChgDlg "$change" 2108
sent WatchListDelDlg '時計イベント削除' 2107

# The pictures of the other rooms have no clock in them.
send 1911
press "$clock" 101
leave "$clock" 1
companion_end
companion_start "$program"
