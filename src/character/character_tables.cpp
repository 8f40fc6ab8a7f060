#include "character/character_tables.h"

CharaTablesState CharaTables;

void ClockDesignsBegin(int count, int firstNumber) {
  CharaTables.ClockDesignCount = count;
  for (ClockDesignRow& row : CharaTables.ClockDesigns) row.record = ClockDesignRecord{};
  for (int i = 0; i < count; ++i)
    CharaTables.ClockDesigns[i].number = static_cast<std::uint16_t>(firstNumber + i);
}
