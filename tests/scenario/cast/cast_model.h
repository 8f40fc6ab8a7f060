// The cast of a scene told a second time, as plain lists: what the tables are held against.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

// A line of a member: its id and the condition.
struct ModelLine {
  int id = 0;
  int parameter = 0;
  int value = 0;
  bool operator==(const ModelLine&) const = default;
};

// A slot. `tag` stands for everything that a copy inherits; a slot that was cleared has 0.
struct ModelMember {
  int master = 0;
  int copies = 0;
  int tag = 0;
  std::vector<ModelLine> lines;
  bool operator==(const ModelMember&) const = default;
};

struct ModelCast {
  std::vector<ModelMember> slots;  // 713: the last lies behind the table
  std::vector<int> list;           // 256 places
  int count = 0;
  std::set<int> registered;  // characters, from 1
  std::set<int> used;        // line ids

  // A fresh scene: each character's slot has a tag of its own, its number.
  ModelCast();

  int Sum() const;   // copies of the registered
  int Most() const;  // copies that can be added
  bool Add(int chara);
  void Remove(int place);
  void SetCopies(int chara, int copies);
  bool AddLine(int id, const ModelLine& line);  // `line.id` is not looked at

 private:
  int End() const;
  int SlotBehind(int chara, int stays, int end) const;
  int PlaceBehind(int chara, int stays) const;
  void Grow(int chara, int from, int to, int end);
  void Shrink(int chara, int from, int to, int end);
  void Free(ModelMember& member);
  void Clear(int first, int last);  // slots, both in
};
