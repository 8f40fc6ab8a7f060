# --- A schedule is typed in, charted, and closed.
hand send 2017
table='スケジュール表'
hand find "$table" >/dev/null
# cell X Y: twice on a place of the table, found by its scroll bar.
cell() {
  local bar
  bar=($(hand part "$table" 100))
  double_click $((bar[0] - 782 + $1)) $((bar[1] - 50 + $2))
  sleep 0.5
}
picture schedule_empty
cell 300 60
xdotool type 'nizukuri'
picture schedule_content
xdotool key Return
cell 600 60
xdotool key ctrl+a
xdotool type '12'
xdotool key Return
cell 750 60
picture schedule_line
push "$table" 2022
hand find '計画-線表' >/dev/null
picture schedule_chart
push '計画-線表' 2
push "$table" 2
hand gone "$table"
