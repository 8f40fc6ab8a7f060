#include "scenario/cast/cast_member.h"

#include "platform/dialog.h"
#include "resources/scenario_cast_ids.h"
#include "scenario/storage/snry_cast_list.h"
#include "services/text.h"

CastMemberState CastMember;

bool CastMemberTake(int row) {
  CastMember = {};
  if (row < 0) return false;
  CastMember.place = SnryCastPlaceOfRow(SnryCastShow::All, row);
  CastMember.id = SnryCastIdOfRow(SnryCastShow::All, row);
  return CastMember.id != 0;
}

SnryCastRec& CastMemberRecord() {
  return SnryCastAt(CastMember.id - 1);
}

int CastCharacterOf(int id) {
  const int character = SnryCastIsCopy(id) ? SnryCastAt(id - 1).master : id;
  return character >= 1 && character <= kSnryCharaMax ? character : 0;
}

void CastName(int id, char* text, int size) {
  const auto room = static_cast<std::size_t>(size);
  const int character = CastCharacterOf(id);
  const char* name = character == 0 ? "" : SnryMain.charaNames[character - 1].text;
  if (SnryCastIsCopy(id)) {
    TextFormat(text, room, "%sのコピー%d", name, SnryCastAt(id - 1).copies + 1);
  } else {
    TextCopy(text, room, name);
  }
}

const char* CastStageName(int id) {
  const int character = CastCharacterOf(id);
  return character == 0 ? "" : SnryMain.castNames[character - 1].text;
}

void CastMemberShow(WindowHandle dialog, int id) {
  char name[kSnryNameSize + 32];
  CastName(id, name, sizeof name);
  ControlSetText(dialog, IDC_CAST_NAME, name);
  ControlSetText(dialog, IDC_CAST_STAGE_NAME, CastStageName(id));
}
