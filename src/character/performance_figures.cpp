#include "character/performance_figures.h"

#include "character/character.h"
#include "character/character_tables.h"
#include "character/frames.h"

PerformanceFiguresState PerformanceFigures;

namespace {

constexpr int kClockAlarmRow = 2;  // of AlarmCharaSel

// The selected character's number; 0 for none.
int CharacterNumber() {
  const std::int32_t place = Character.AlarmCharaSel[kClockAlarmRow] - 1;
  return place >= 0 && place < CharaTables.AlarmCharaCount && place < kAlarmCharaMax
             ? CharaTables.AlarmCharas[place]
             : 0;
}

}  // namespace

bool PerformanceCharacterIsSelected() {
  return CharacterNumber() > 0;
}

MaskedFrame PerformanceFigure(int step) {
  if (step < 0 || step >= kFrameMax || CharacterNumber() <= 0) return {};
  PerformanceFigureSlot& figure = PerformanceFigures.figures[step];
  if (!figure.tried) MaskedFrameLoad(figure.images, CharacterNumber(), step);
  figure.tried = true;
  return figure.images;
}

void PerformanceFiguresFree() {
  for (PerformanceFigureSlot& figure : PerformanceFigures.figures) {
    MaskedFrameFree(figure.images);
    figure.tried = false;
  }
}
