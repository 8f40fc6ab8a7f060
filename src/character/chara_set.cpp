#include "character/chara_set.h"

#include <algorithm>

#include "services/screen_figures.h"

void WalkStartPlace(int code, int* x, int* y) {
  switch (code) {
    case 0:
      *x = Screen.ScreenWidth, *y = Screen.ScreenHeight;
      break;
    case 1:
      *x = Screen.ScreenWidth, *y = 0;
      break;
    case 2:
      *x = 0, *y = Screen.ScreenHeight;
      break;
    case 3:
      *x = 0, *y = 0;
      break;
    case 4:
      *x = Screen.ScreenWidth / 2, *y = Screen.ScreenHeight / 2;
      break;
    case 5:
      *x = Screen.ScreenWidth, *y = Screen.ScreenHeight / 2;
      break;
    case 6:
      *x = 0, *y = Screen.ScreenHeight / 2;
      break;
    default:
      *x = 700, *y = 600;
      break;
  }
  *x = std::min(*x, Screen.ScreenWidth);
  *y = std::min(*y, Screen.ScreenHeight);
}
