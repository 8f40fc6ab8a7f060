#include "newdata/cast.h"

#include <algorithm>

#include "clock_calendar/clock/clock.h"

namespace {

// Idle lives: four bored frames of the first pattern, three of the second. The
// lists' rows: delays 0 is 5 minutes, 1 is 10 minutes; speeds 4 holds a frame for
// about two seconds, 5 for two and a half; repeats 0 plays once, 1 and 2 play
// again 2 and 3 times; blinks 9 come at random.
const std::vector<IdleLife> kIdleLives = {
    {1, 2, {3, 4, 5, 6}, {7, 8, 9}, 0, 4, 0, 9},
    {1, 2, {3, 4, 5, 6}, {7, 8, 9}, 0, 5, 0, 9},
    {1, 2, {3, 4, 5, 6}, {7, 8, 9}, 0, 4, 1, 9},
    {1, 2, {3, 4, 5, 6}, {7, 8, 9}, 0, 5, 1, 9},
};

const std::vector<int> kPerformance = {2, 3, 4, 5, 6, 7, 8};

const std::vector<Dial> kDials = {
    {kHandDiamond,
     27,
     41,
     72,
     72,
     {66, 34, 42},
     {255, 246, 228},
     true,
     kPerformance,
     {6, 6, 8, 16, 16, 10, 6}},
    {kHandDot, 15, 23, 70, 108, {66, 34, 42}, {255, 246, 228}, true, kPerformance, {6, 8, 14, 14, 14, 12, 8}},
    {kHandBar, 16, 24, 68, 95, {66, 34, 42}, {255, 246, 228}, true, kPerformance, {4, 4, 8, 12, 6, 12, 6}},
    {kHandAmPm,
     0,
     0,
     25,
     26,
     {255, 226, 140},
     {29, 36, 51},
     false,
     kPerformance,
     {10, 10, 14, 14, 14, 20, 10}},
};

const std::vector<Sound> kSounds = {
    {"旗印.wav", "hata.txt"},       {"foot1.wav", "foot1.txt"}, {"foot2.wav", "foot2.txt"},
    {"ringout.wav", "ringout.txt"}, {"kan.wav", "kan.txt"},     {"po2.wav", "po2.txt"},
    {"nya.wav", "nya.txt"},         {"手紙.wav", "tegami.txt"},
};

const std::vector<Background> kBackgrounds = {{"春.bmp", 1}, {"夏.bmp", 2}, {"秋.bmp", 3}, {"冬.bmp", 4}};

const std::vector<CastMember> kCast = {
    {1,
     Role::Main,
     "どんぐり配達員 ミルル",
     {"立つ", "メニュー", "まばたき", "大あくび", "うとうと", "ぐっすり", "びっくり", "頭にどんぐり",
      "バランス", "もぐもぐ"}},
    {2,
     Role::Main,
     "書庫番ふくろう ホーリオ",
     {"立つ", "メニュー", "まばたき", "読書", "ページめくり", "こっくり", "本の下でねる", "首をかしげる",
      "さかさま", "目がまわる"}},
    {3,
     Role::Main,
     "若葉のちび竜 メンティ",
     {"立つ", "メニュー", "まばたき", "鼻がむずむず", "すいこむ", "くしゃみの火", "てれかくし",
      "芽にちょうちょ", "手にちょうちょ", "鼻にちょうちょ"}},
    {4,
     Role::Main,
     "月夜のトビネズミ ツキハ",
     {"立つ", "メニュー", "まばたき", "のびをする", "耳でかくれる", "まるくねむる", "片耳おきる",
      "星をみつける", "星をかかげる", "星とおどる"}},
    {6, Role::Alarm, "すずめ郵便 ピチュ便", {"やってくる", "ひとはね", "着地", "手紙をみせる", "呼びかける"}},
    {8,
     Role::Alarm,
     "予定係ハムスター コロモン",
     {"手帳を左へ", "手帳を上へ", "手帳を右へ", "また上へ", "予定をみせる"}},
    {9,
     Role::Alarm,
     "めざまし小僧 リンゴロ",
     {"左に鳴らす", "右に鳴らす", "はねて鳴らす", "さけぶ", "ひとやすみ"}},
    {10, Role::Walker, "旗もちペンギン ハタペン", {"一歩", "二歩", "到着"}},
    {11, Role::Walker, "はりねずみ散歩家 ハリトト", {"一歩", "二歩", "到着"}},
    {12, Role::Walker, "かっぱ着のかえる ケロップ", {"一歩", "二歩", "到着"}},
    {13, Role::Walker, "鈴もち子羊 メェリン", {"一歩", "二歩", "到着"}},
    {15,
     Role::Dial,
     "星窓の丸時計",
     {"文字盤", "窓がうごく", "窓がひらく", "小鳥の登場", "左に歌う", "右に歌う", "おじぎ", "窓がとじる"}},
    {16,
     Role::Dial,
     "ぽんぽこ腹時計",
     {"文字盤", "気がつく", "ばんざい", "左でぽん", "右でぽん", "両手でぽん", "うたう", "にっこり"}},
    {17,
     Role::Dial,
     "森の鳩時計小屋",
     {"文字盤", "とびらが動く", "のぞく小鳥", "小鳥の登場", "ぽっぽう", "ひとやすみ", "もういちど",
      "とびらが閉じる"}},
    {18,
     Role::Dial,
     "おはよう路面電車",
     {"表示窓", "ライト点灯", "帽子がのぞく", "運転士の登場", "左手をふる", "右手をふる", "敬礼",
      "しゃがむ"}},
    {20, Role::Sticker, "カレンダーのシール", {"たんじょう日", "デート",   "だいじな日",     "しごと",
                                               "べんきょう",   "かいもの", "きゅうりょう日", "のみかい",
                                               "りょこう",     "でんしゃ", "びょういん",     "スポーツ",
                                               "おんがく",     "でんわ",   "ごみの日",       "おはなみ",
                                               "おまつり",     "あめの日", "クリスマス",     "おやすみ"}},
    {21, Role::Figure, "季節の空のなかま", {"ちょうちょ", "かもめ", "とんぼ", "ゆきだるま"}},
    {22, Role::Figure, "季節の雲", {"はるのくも", "なつのくも", "ゆうやけぐも", "ゆきぐも"}},
    {23, Role::Figure, "日めくりの数字", {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}},
    {24, Role::Figure, "日めくりの赤い数字", {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}},
    {25, Role::Figure, "庭の木", {"さくら", "わかば", "もみじ", "ゆきのき"}},
    {26, Role::Mark, "地図のしるし", {"できた", "とりかかり中", "あとまわし"}},
};

}  // namespace

const std::vector<CastMember>& Cast() {
  return kCast;
}

std::vector<const CastMember*> CastOf(Role role) {
  std::vector<const CastMember*> members;
  for (const CastMember& member : kCast) {
    if (member.role == role) members.push_back(&member);
  }
  return members;
}

const IdleLife& IdleLifeOf(int place) {
  return kIdleLives.at(static_cast<std::size_t>(place));
}

const Dial& DialOf(int place) {
  return kDials.at(static_cast<std::size_t>(place));
}

const std::vector<Sound>& Sounds() {
  return kSounds;
}

const std::vector<Background>& Backgrounds() {
  return kBackgrounds;
}
