#include "schedule/applications/hand_off.h"

// No schedule program is started by this program yet, so none answers.
bool SclHandOffCheck() {
  return false;
}
