// The random numbers of a division, drawn one by one in the order of the format.
#pragma once

#include "tests/filetools/divide/divide_model.h"

ModelChance ModelDraw(const ModelDivision& division);
