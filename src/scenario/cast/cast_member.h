// The member of the cast that a dialog is about.
#pragma once

#include <cstdint>

#include "platform/types.h"
#include "scenario/storage/scenario.h"
#include "scenario/storage/snry_tables.h"

struct CastMemberState {
  std::int32_t place = 0;  // of the cast list
  std::int32_t id = 0;     // cast id; 0 for none
};
extern CastMemberState CastMember;

// Takes the member at a row of the scene's cast list. False for a row that there is not.
bool CastMemberTake(int row);

// Its record.
SnryCastRec& CastMemberRecord();

// The character of a cast id: itself, or the one that it copies; 0 for none.
int CastCharacterOf(int id);

// The name of a character, "nameのコピー1" of a copy; and the name under which its
// character comes on stage. Empty for none.
void CastName(int id, char* text, int size);
const char* CastStageName(int id);

// Shows both in the controls that all dialogs of a member have for them; 0 for nobody.
void CastMemberShow(WindowHandle dialog, int id);
