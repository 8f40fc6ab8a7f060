#include "scenario/storage/snry_cast_list.h"

#include "scenario/storage/snry_tables.h"
#include "services/text.h"

namespace {

bool IsShown(SnryCastShow show, int id) {
  return SnryCharaIsRegistered(id) || (show == SnryCastShow::All && SnryCastIsCopy(id));
}

// The first place that is shown and fits; -1 for none.
template <class Fits>
int FindPlace(SnryCastShow show, Fits fits) {
  const SnrySceneRec& scene = SnrySceneNow();
  int row = 0;
  for (int place = 0; place < SnryCastCount(scene); ++place) {
    if (!IsShown(show, scene.cast[place])) continue;
    if (fits(row, scene.cast[place])) return place;
    ++row;
  }
  return -1;
}

void CopyText(int number, int id, char* text, std::size_t size) {
  const SnryCastRec& copy = SnryCastAt(id - 1);
  const int master = copy.master;
  const int ordinal = copy.copies + 1;
  if (master < 1 || master > kSnryCharaMax) {
    TextCopy(text, size, "-------未定義コピーキャラクタ---------");
  } else if (SnryCharaIsRegistered(master)) {
    TextFormat(text, size, "%d. %sのコピー%d [登場名: %s]", number, SnryMain.charaNames[master - 1].text,
               ordinal, SnryMain.castNames[master - 1].text);
  } else {
    TextFormat(text, size, "%d. %sのコピー%d", number, SnryMain.charaNames[master - 1].text, ordinal);
  }
}

void CharacterText(const char* format, int number, int id, char* text, int size) {
  TextFormat(text, static_cast<std::size_t>(size), format, number, SnryMain.charaNames[id - 1].text,
             SnryMain.castNames[id - 1].text);
}

}  // namespace

void SnryCharaText(int number, int chara, char* text, int size) {
  CharacterText("%d. %s [登場名: %s]", number, chara, text, size);
}

bool SnryCharaIsRegistered(int id) {
  return id >= 1 && id <= kSnryCharaMax && SnryMain.registered[id - 1] != 0;
}

int SnryCastRows(SnryCastShow show) {
  int count = 0;
  FindPlace(show, [&](int, int) { return ++count < 0; });
  return count;
}

int SnryCastPlaceOfRow(SnryCastShow show, int row) {
  return FindPlace(show, [row](int at, int) { return at == row; });
}

int SnryCastIdOfRow(SnryCastShow show, int row) {
  const int place = SnryCastPlaceOfRow(show, row);
  return place < 0 ? 0 : SnrySceneNow().cast[place];
}

int SnryCastRowOfId(SnryCastShow show, int id) {
  int found = -1;
  FindPlace(show, [&](int row, int at) {
    if (at == id) found = row;
    return at == id;
  });
  return found;
}

void SnryCastRowText(SnryCastShow show, int row, char* text, int size) {
  const int id = SnryCastIdOfRow(show, row);
  const auto room = static_cast<std::size_t>(size);
  if (id == 0) {
    text[0] = '\0';
  } else if (SnryCastIsCopy(id)) {
    CopyText(row + 1, id, text, room);
  } else if (show == SnryCastShow::Characters && SnryCastAt(id - 1).copies != 0) {
    CharacterText("%d. %s(コピー含む) [登場名: %s]", row + 1, id, text, size);
  } else {
    SnryCharaText(row + 1, id, text, size);
  }
}
