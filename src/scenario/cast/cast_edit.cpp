#include "scenario/cast/cast_edit.h"

CastEditState CastEdit;
