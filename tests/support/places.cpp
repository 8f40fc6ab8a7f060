#include "tests/support/places.h"

const char* const kResourceFile = MIRRELL_RES_FILE;
const char* const kTestResourceFile = MIRRELL_TEST_RES_FILE;
const char* const kNewdataProgram = MIRRELL_NEWDATA;

std::string SourcePath(const std::string& relative) {
  return MIRRELL_SOURCE_DIR "/" + relative;
}
