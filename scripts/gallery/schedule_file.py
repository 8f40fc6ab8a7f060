#!/usr/bin/env python3
"""schedule_file.py FILE COUNT [DAYS]: a schedule of so many lines, to show, that began so
many days ago.

Every second weekday's work is told by a line of a few hours; some are done, some have an
alarm, one is long. The dates are worked out as the program does for days of ten hours
from eight on."""
import datetime
import struct
import sys

TEXTS = ["荷造り", "買い物リストを作る", "会議の準備", "庭の木を切る", "手紙の返事を書く",
         "古い写真を整理して、家族に送るものを選ぶ", "本を返す", "電車の時間を調べる"]
LONG = ("とても長い内容の項目で、表の欄におさまらず、途中で切れて見えるはずの文章です。"
        "それでも全部がここに入っています。")


def date(day, hour):
    return bytes([day.year - 2000, day.month - 1, day.day - 1, hour])


def main():
    path, count = sys.argv[1], int(sys.argv[2])
    today = datetime.date.today() - datetime.timedelta(int(sys.argv[3]) if len(sys.argv) > 3 else 0)
    day, hour = today, 8
    items = b""
    for i in range(count):
        hours = (3, 12, 5, 25, 1)[i % 5]
        text = (LONG if i == 2 else TEXTS[i % len(TEXTS)]).encode("cp932")[:127]
        if hour == 18:
            day, hour = day + datetime.timedelta(1), 8
        start = date(day, hour)
        left = hours
        while hour + left > 18:
            left -= 18 - hour
            day, hour = day + datetime.timedelta(1), 8
        hour += left
        items += struct.pack("<BB4s4sBBIBB10xI128s", i % 3 == 0, 0, start, date(day, hour), 0, 0, hours,
                             i % 4 == 1, 0, 0, text)
    head = b"SCL Data File : " + struct.pack(">Biiiii", 1, count, today.year - 2000, today.month - 1,
                                             today.day - 1, 8)
    head += struct.pack(">Biii", 0, 10, 8, 18) + struct.pack(">iii", 10, 8, 18) * 8
    with open(path, "wb") as file:
        file.write(head + "秋の旅行の計画".encode("cp932").ljust(129, b"\0") + items)


main()
