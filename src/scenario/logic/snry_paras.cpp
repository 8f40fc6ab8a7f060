#include "scenario/logic/snry_paras.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <span>

#include "services/slots.h"
#include "services/text.h"

namespace {

constexpr char kNotSet[] = "未設定";
constexpr int kUnsignedDigits = 5;
constexpr int kUnsignedHighest = 65535;

bool IsPara(int id) {
  return id >= 1 && id <= kSnryParaMax && SnryMain.paras[id - 1].used != 0;
}

int UsedBefore(int slot) {
  return SlotsUsed(std::span(SnryMain.paras, static_cast<std::size_t>(slot)), &SnryParaRec::used);
}

// How a parameter reads in a combo box and in the list, by what it does for the player
// besides.
constexpr const char* kComboTexts[] = {"%s", "%s(&Load)", "%s(&Save)", "%s(&Exit)"};
constexpr const char* kListTexts[] = {"%d. %s", "%d. %s(&Load)", "%d. %s(&Save)", "%d. %s(&Exit)"};

template <std::size_t N>
const char* TextOf(const char* const (&texts)[N], const SnryParaRec& para) {
  const auto assignment = static_cast<std::size_t>(para.assignment);
  return texts[assignment < N ? assignment : 0];
}

// A parameter by its id; false for one that is none.
bool ComboText(int id, char* text, int size) {
  if (id == 0) TextCopy(text, static_cast<std::size_t>(size), kNotSet);
  if (!IsPara(id)) return id == 0;
  const SnryParaRec& para = SnryMain.paras[id - 1];
  TextFormat(text, static_cast<std::size_t>(size), TextOf(kComboTexts, para), para.name);
  return true;
}

}  // namespace

int SnryParaRowOf(int id) {
  return IsPara(id) ? 1 + UsedBefore(id - 1) : 0;
}

int SnryParaIdOf(int row) {
  return SnryParaSlotOfRow(row - 1) + 1;
}

Rows SnryParaRows() {
  return RowsOf(1 + kSnryParaMax, ComboText);
}

void SnryParaExchange(Form& form, int id, std::uint16_t& parameter) {
  int row = SnryParaRowOf(parameter);
  form.Choice(id, row, SnryParaRows());
  if (form.Takes()) parameter = static_cast<std::uint16_t>(SnryParaIdOf(row));
}

void SnryPairExchange(Form& form, int paraId, int valueId, SnryPair& pair, int digits) {
  SnryParaExchange(form, paraId, pair.parameter);
  form.Number(valueId, pair.value, digits);
}

void SnryUnsignedPairExchange(Form& form, int paraId, int valueId, SnryPair& pair) {
  SnryParaExchange(form, paraId, pair.parameter);
  form.NumberIn(valueId, pair.value, kUnsignedDigits, 0, kUnsignedHighest);
}

const char* SnryParaName(int id) {
  return IsPara(id) ? SnryMain.paras[id - 1].name : kNotSet;
}

int SnryParaUsedCount() {
  return SlotsUsed(SnryMain.paras, &SnryParaRec::used);
}

int SnryParaSlotOfRow(int row) {
  return SlotOfRow(SnryMain.paras, row, &SnryParaRec::used);
}

void SnryParaListText(int row, char* text, int size) {
  text[0] = '\0';
  const int slot = SnryParaSlotOfRow(row);
  if (slot < 0) return;
  const SnryParaRec& para = SnryMain.paras[slot];
  TextFormat(text, static_cast<std::size_t>(size), TextOf(kListTexts, para), row + 1, para.name);
}

bool SnryParaNameIsTaken(const char* name) {
  return std::any_of(std::begin(SnryMain.paras), std::end(SnryMain.paras), [name](const SnryParaRec& para) {
    return para.used != 0 && std::strcmp(para.name, name) == 0;
  });
}

// kept: a new parameter goes behind the last slot that was given; a gap in between is not used
// again.
bool SnryParaAdd(const SnryParaRec& para) {
  // kept: a parameter too many is left out in silence.
  if (SnryMain.paraCount >= kSnryParaMax) return false;
  SnryMain.paras[SnryMain.paraCount] = para;
  SnryMain.paras[SnryMain.paraCount].used = 1;
  ++SnryMain.paraCount;
  return true;
}

void SnryParaChange(int slot, const SnryParaRec& para) {
  if (slot >= 0 && slot < kSnryParaMax) SnryMain.paras[slot] = para;
}

// kept: who uses a deleted parameter goes on naming its slot; the count falls by one only behind
// the highest slot, whatever the slot below it holds.
void SnryParaRemove(int slot) {
  if (slot < 0 || slot >= kSnryParaMax) return;
  SnryParaRec& para = SnryMain.paras[slot];
  para.used = 0;
  para.name[0] = '\0';
  para.assignment = SnryAssignment::None;
  if (slot + 1 == SnryMain.paraCount) --SnryMain.paraCount;
}
