// The world character list of a new data set, EDTCFLAG.edf and EDTCDATA.edf: the
// names of the characters and of their frames. scenario/world_list.h tells the
// layout.
#pragma once

#include "newdata/bytes.h"
#include "newdata/cast.h"

// Numbers that nobody has are characters without name and frames. Frames of the
// same name are one figure.
Bytes WorldFlagFile(const std::vector<CastMember>& cast);
Bytes WorldDataFile(const std::vector<CastMember>& cast);
