#include "character/chara_set.h"

#include <algorithm>

#include "shell/shell.h"

void WalkStartPlace(int code, int* x, int* y) {
  switch (code) {
    case 0:
      *x = ScreenWidth, *y = ScreenHeight;
      break;
    case 1:
      *x = ScreenWidth, *y = 0;
      break;
    case 2:
      *x = 0, *y = ScreenHeight;
      break;
    case 3:
      *x = 0, *y = 0;
      break;
    case 4:
      *x = ScreenWidth / 2, *y = ScreenHeight / 2;
      break;
    case 5:
      *x = ScreenWidth, *y = ScreenHeight / 2;
      break;
    case 6:
      *x = 0, *y = ScreenHeight / 2;
      break;
    default:
      *x = 700, *y = 600;
      break;
  }
  *x = std::min(*x, ScreenWidth);
  *y = std::min(*y, ScreenHeight);
}
