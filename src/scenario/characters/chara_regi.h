// The characters that a scenario has to choose its casts from: which of the world's are
// registered, and the names under which they come on stage.
#pragma once

#include "platform/types.h"
#include "scenario/storage/scenario.h"

// What SetOrChkCharRegiDlg and its two like are about.
struct CharaRegiState {
  std::int32_t chara = 0;  // from 0
  SnryNameRec castName = {};
};
extern CharaRegiState CharaRegi;

// "1. name [登場名: ...]": a row of the world's characters, from 0; the cast name of one
// that is registered only.
void CharaRegiRowText(int chara, char* text, int size);

// Stores the cast name of a character (from 0); registers it if it is not yet.
void CharaRegister(int chara, const SnryNameRec& castName);

// Takes the registration back; the cast name stays.
void CharaUnregister(int chara);

// CharaRegiDlg.
void CharaRegiDlgRun(WindowHandle owner);

// SetOrChkCharRegiDlg, SetOrChkCharRegiDlg2 and DelCharRegiDlg, about a character from 0:
// the first for one that is not registered, the others for one that is.
void SetOrChkCharRegiDlgRun(WindowHandle owner, int chara);
void DelCharRegiDlgRun(WindowHandle owner, int chara);
