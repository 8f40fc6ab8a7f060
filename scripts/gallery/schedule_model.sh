# Sourced by gallery.sh: the applications that schedules are made with.

registered='スケジュール用アプリケーション登録'
send 2367
for name in '予定表.exe' '練習帳.exe'; do
  press "$registered" 2356
  fill "$picker" 100 "$name"
  leave "$picker" 1
done
choose "$registered" 101 0
shot SclRegiApliListDialog "$registered"
pressed box_application_delete 'アプリケーション登録' "$registered" 2357 2
leave "$registered"
sent SclApliListDialog 'スケジュール用アプリケーション選択' 2020
sent MyAplicationDlg 'アプリケーション' 1912
