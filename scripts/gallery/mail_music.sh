# Sourced by scripts/gallery.sh: mail and music. The companion starts anew, so that its
# pickers begin in the program folder.
companion_end
companion_start "$program"

# --- Mail, with a server that finds none.
mail='メール受信連絡'
account='メール通信設定'
mail_address=127.0.0.2
python3 - "$mail_address" <<'SERVER' &
import socket, sys
listener = socket.create_server((sys.argv[1], 110))
client, _ = listener.accept()
for reply in ("ready", "", "0 messages", "bye"):
    client.sendall(f"+OK {reply}\r\n".encode())
    client.recv(1000)
SERVER
mail_server=$!
trap 'kill "$mail_server" 2>/dev/null || true; display_stop' EXIT
send 1918
press "$mail" 101
choose "$mail" 102 4
fill "$mail" 103 'お便りが届きました'
press "$mail" 104
fill "$account" 101 "$mail_address"
fill "$account" 102 'mirrell'
fill "$account" 103 'himitsu'
dialog MYPOPDLG "$account" 1
pressed SetMailAnimeDlg 'メール受信時アニメーション設定' "$mail" 105 2
shot MailSettingMenuDlg "$mail"
leave "$mail" 1
# The dialog goes, and the first box comes.
sleep 0.5
for reply in greeting user password quit; do
  dialog "box_mail_$reply" 'Server' 1
done
wait "$mail_server"
trap display_stop EXIT
# Nobody listens there any more; and then there is no such host, and no server at all.
sent box_mail_connection 'メール受信連絡エラー' 2079 1
for failure in 'host:pop3.invalid:メール受信連絡エラー' 'unset::通信設定エラー'; do
  send 1918
  press "$mail" 104
  fill "$account" 101 "$(cut -d: -f2 <<<"$failure")"
  leave "$account" 1
  leave "$mail" 1
  dialog "box_mail_${failure%%:*}" "${failure##*:}" 1
done
send 1918
press "$mail" 101
leave "$mail" 1

# --- Music.
music='BGM 設定'
python3 - "$program/朝の曲.bgm" <<'TABLE'
import struct, sys
songs = [(1, 7, 0, "C:\\音楽\\朝\\鳥の声.wav"), (1, 7, 30, "C:\\音楽\\朝\\小川.wav"),
         (0, 12, 5, "C:\\音楽\\昼\\" + "とても長い名前の付いた" * 4 + "夏の歌.wav"), (1, 18, 45, "C:\\音楽\\夕方\\夕焼け.mp3")]
rows = b"".join(struct.pack(">Biii600s", on, hour, minute, 0, path.encode("cp932"))
                for on, hour, minute, path in songs)
with open(sys.argv[1], "wb") as file:
    file.write(struct.pack(">i", len(songs)) + rows.ljust(122600, b"\0"))
TABLE
send 1921
shot EntertainmentBGMDlg_empty "$music"
press "$music" 101
choose "$picker" 103 '朝の曲'
leave "$picker" 1
# music_click X Y CLICK...: at pixels of the window behind its frame and caption.
music_click() {
  local place
  place=($(hand find "$music"))
  xdotool mousemove $((place[0] + 3 + $1)) $((place[1] + 22 + $2))
  xdotool click "${@:3}"
}
double_click=(--repeat 2 --delay 60 1)
music_click 100 110 1
shot EntertainmentBGMDlg "$music"
music_click 600 70 "${double_click[@]}"
dialog BGMRsvTimeSetDlg '時間設定'
music_click 100 20 "${double_click[@]}"
fill '表タイトル' 101 '一日の曲'
dialog SCLTitleDlg_music '表タイトル' 1
music_click 20 130 3
shot menu_music_row -
xdotool key Escape
hand gone -
shot EntertainmentBGMDlg_row "$music"
leave "$music" 2
xdotool mousemove 2 2
