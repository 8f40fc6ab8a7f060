# The calendar: its three pages in three sizes, Japanese and English, and its dialogs.
# Sourced by scripts/gallery.sh.

calendars='カレンダー 選択/設定'
calendar='カレンダー 詳細設定'

# calendar_set DEED...: a change in the editing dialog.
calendar_set() {
  send 2276
  press "$calendars" 106
  "$@"
  leave "$calendar" 1
  leave "$calendars" 1
  sleep 0.5
}
# calendar_choose ROW: loads a calendar of the list.
calendar_choose() {
  send 1913
  choose "$calendars" 102 "$1"
  press "$calendars" 105
  leave "$calendars" 1
  sleep 0.5
}
# calendar_page NAME: the calendar's window, which has no title.
calendar_page() { shot "FlyingBat3_$1" -; }
# calendar_click BUTTON DX DY [BUTTON]: in the calendar's window, and once more.
calendar_click() {
  local place
  place=($(hand find -))
  xdotool mousemove $((place[0] + $2)) $((place[1] + $3))
  sleep 0.3
  xdotool click "$1"
  [ -z "${4:-}" ] || xdotool click "$4"
  sleep 0.3
}

send 1913
shot SelCalenderDlg "$calendars"
press "$calendars" 101
leave "$calendars" 1
send 1913
press "$calendars" 106
fill "$calendar" 110 '友人と映画を見る'
press "$calendar" 111
shot CalenderAdustDlg "$calendar"
press "$calendar" 112
stickers='カレンダーにシールを貼る'
place=($(hand find "$stickers"))
xdotool mousemove $((place[0] + 3 + 5 + 2 * 41 + 18)) $((place[1] + 26 + 5 + 20)) click 1
sleep 0.3
shot SelectCalenSheelDialog "$stickers"
leave "$stickers" 1
xdotool mousemove 2 2
press "$calendar" 114
dialog SetCalenBmpDlg 'カレンダー絵貼り付け' 2
pressed DspCalenImageDlg 'イメージ確認' "$calendar" 113 1
pressed box_calendar_clear_notes '月の書きこみクリア' "$calendar" 117 2
pressed box_calendar_clear_holidays '月の休日設定全解除' "$calendar" 118 2
pressed box_calendar_clear_stickers '月の全シールを剥す' "$calendar" 119 2
shot CalenderAdustDlg_sticker "$calendar"
leave "$calendar" 1
leave "$calendars" 1
sleep 0.5

for kind in 0:month 1:week 2:day; do
  calendar_choose "${kind%:*}"
  for size in 0 1 2; do
    calendar_set choose "$calendar" 103 "$size"
    calendar_page "${kind#*:}_$size"
  done
  calendar_set press "$calendar" 115
  calendar_page "${kind#*:}_without_picture"
  calendar_set press "$calendar" 115
done

# The day page of another day, the memo panel, the popup and its note.
calendar_set choose "$calendar" 103 1
calendar_choose 0
calendar_click 1 40 262 1
shot FlyingBat3_memo -
calendar_click 1 190 322
xdotool mousemove 2 2
calendar_click 3 40 262
shot menu_calendar_popup -
xdotool key --delay 200 Down Down Return
dialog CalenCommentDlg 'カレンダー書き込み' 2
xdotool mousemove 2 2
send 1913
press "$calendars" 101
leave "$calendars" 1
