#include "tests/scenario/cast/cast_model.h"

#include <algorithm>

ModelCast::ModelCast() : slots(713), list(256) {
  for (int slot = 0; slot < 512; ++slot) slots[static_cast<std::size_t>(slot)].tag = slot + 1;
}

namespace {
std::size_t At(int place) {
  return static_cast<std::size_t>(place);
}
}  // namespace

int ModelCast::Sum() const {
  int sum = 0;
  for (int place = 0; place < count; ++place) {
    if (registered.contains(list[At(place)])) sum += slots[At(list[At(place)] - 1)].copies;
  }
  return sum;
}

int ModelCast::Most() const {
  return std::max(0, std::min(200 - Sum(), 712 - End()));
}

int ModelCast::End() const {
  int end = 512;
  for (int place = 0; place < count; ++place) {
    const int id = list[At(place)];
    if (id >= 1 && id <= 512) end += slots[At(id - 1)].copies;
  }
  return std::min(712, end);
}

bool ModelCast::Add(int chara) {
  if (count == 256) return false;
  list[At(count++)] = chara;
  return true;
}

void ModelCast::Free(ModelMember& member) {
  for (const ModelLine& line : member.lines) used.erase(line.id);
  member.lines.clear();
}

void ModelCast::Clear(int first, int last) {
  for (int slot = first; slot <= last; ++slot) slots[At(slot)] = {};
}

int ModelCast::SlotBehind(int chara, int stays, int end) const {
  std::vector<int> own;
  for (int slot = 512; slot < end; ++slot) {
    if (slots[At(slot)].master == chara) own.push_back(slot);
  }
  if (own.empty()) return end;
  if (stays == 0) return own.front();
  return own[std::min(own.size(), At(stays)) - 1] + 1;
}

int ModelCast::PlaceBehind(int chara, int stays) const {
  std::vector<int> own;
  int self = count;
  for (int place = count - 1; place >= 0; --place) {
    const int id = list[At(place)];
    if (id == chara) self = place;
    if (id > 512 && id <= 712 && slots[At(id - 1)].master == chara) own.insert(own.begin(), place);
  }
  if (own.empty()) return std::min(count, self + 1);
  if (stays == 0) return own.front();
  return own[std::min(own.size(), At(stays)) - 1] + 1;
}

void ModelCast::Grow(int chara, int from, int to, int end) {
  const int more = to - from;
  const int slot = SlotBehind(chara, from, end);
  const int place = PlaceBehind(chara, from);

  std::vector<ModelMember> moved(slots.begin() + slot, slots.begin() + std::max(slot, end));
  for (int i = 0; i < static_cast<int>(moved.size()); ++i) {
    if (slot + more + i <= 712) slots[At(slot + more + i)] = moved[At(i)];
  }
  for (int i = 0; i < more; ++i) {
    if (slot + i > 712) continue;
    slots[At(slot + i)] = {chara, from + i, slots[At(chara - 1)].tag, {}};
  }

  std::vector<int> now(list.begin(), list.begin() + place);
  for (int i = 0; i < more; ++i) now.push_back(slot + i + 1);
  for (int old = place; old < count; ++old)
    now.push_back(list[At(old)] > slot ? list[At(old)] + more : list[At(old)]);
  count = std::min(256, static_cast<int>(now.size()));
  now.resize(256);
  list = now;
}

void ModelCast::Shrink(int chara, int from, int to, int end) {
  const int fewer = from - to;
  const int slot = SlotBehind(chara, to, end);
  const int place = PlaceBehind(chara, to);

  // What is behind the removed slots takes their places. Where it is shorter than what
  // went, the rest of that stays as it is, lines and all.
  const std::vector<ModelMember> old = slots;
  const int behind = std::max(0, end - slot - fewer);
  for (int i = 0; i < std::min(behind, fewer); ++i) Free(slots[At(slot + i)]);
  for (int i = 0; i < behind; ++i) slots[At(slot + fewer + i)] = {};
  for (int i = 0; i < behind; ++i) slots[At(slot + i)] = old[At(slot + fewer + i)];

  const std::vector<int> ids = list;
  const int rest = std::max(0, count - place - fewer);
  for (int i = 0; i < rest; ++i) list[At(place + fewer + i)] = 0;
  for (int i = 0; i < rest; ++i) {
    const int id = ids[At(place + fewer + i)];
    list[At(place + i)] = id >= slot + 1 ? id - fewer : id;
  }
  for (int i = 0; i < count; ++i) {
    if (list[At(i)] > slot + 1) list[At(i)] -= fewer;
  }
  count = std::max(0, count - fewer);
}

void ModelCast::SetCopies(int chara, int copies) {
  const int from = slots[At(chara - 1)].copies;
  if (from == copies) return;
  const int end = End();
  if (copies > from) {
    Grow(chara, from, copies, end);
  } else {
    Shrink(chara, from, copies, end);
  }
  slots[At(chara - 1)].copies = copies;
  Clear(std::max(0, 200 - Sum()), 199);
  std::fill(list.begin() + count, list.end(), 0);
}

void ModelCast::Remove(int place) {
  const int chara = list[At(place)];
  if (chara >= 1 && chara <= 512 && slots[At(chara - 1)].copies > 0) {
    SetCopies(chara, 0);
    for (int slot = 512; slot < End(); ++slot) {
      ModelMember& member = slots[At(slot)];
      if (member.master != chara) continue;
      Free(member);
      member.master = 0;
      member.copies = 0;
    }
  }
  list[At(place)] = 0;
  if (place == count - 1) --count;

  const bool any =
      std::any_of(list.begin(), list.begin() + count, [this](int id) { return registered.contains(id); });
  if (!any) {
    count = 0;
    std::fill(list.begin(), list.end(), 0);
    Clear(512, 712);
    return;
  }
  Clear(End(), 712);
  // One empty slot after the other goes from the list, from the end.
  for (int slot = 711; slot >= 512; --slot) {
    if (slots[At(slot)].master != 0) continue;
    for (int i = 0; i < count; ++i) {
      if (list[At(i)] == slot + 1) list[At(i)] = 0;
      if (list[At(i)] > slot + 1) --list[At(i)];
    }
  }
  const auto rest = std::stable_partition(slots.begin() + 512, slots.begin() + 712,
                                          [](const ModelMember& member) { return member.master != 0; });
  std::fill(rest, slots.begin() + 712, ModelMember{});
}

bool ModelCast::AddLine(int id, const ModelLine& line) {
  ModelMember& member = slots[At(id - 1)];
  if (member.lines.size() == 100) return false;
  int free = 1;
  while (used.contains(free)) ++free;
  used.insert(free);
  member.lines.push_back({free, line.parameter, line.value});
  return true;
}
