# --- A clock and a calendar are put on the desktop, and taken off again.
for part in 'clock:1911:時計 選択/設定:101' 'calendar:1913:カレンダー 選択/設定:101'; do
  IFS=: read -r name command title box <<<"$part"
  hand send "$command"
  hand find "$title" >/dev/null
  push "$title" "$box"
  picture "${name}_chosen"
  push "$title" 1
  hand gone "$title"
  picture "${name}_shown"
done
for part in '1911:時計 選択/設定:101' '1913:カレンダー 選択/設定:101'; do
  IFS=: read -r command title box <<<"$part"
  hand send "$command"
  hand find "$title" >/dev/null
  push "$title" "$box"
  push "$title" 1
  hand gone "$title"
done
picture desktop_cleared
