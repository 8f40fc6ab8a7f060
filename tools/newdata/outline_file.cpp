#include "newdata/outline_file.h"

#include <stdexcept>
#include <string>

namespace {

constexpr int kPointMax = 65535;

void AddCoordinate(Bytes& file, int value) {
  if (value < 0 || value > kPointMax) {
    throw std::runtime_error(
        "the figure stands too near to the edge of its picture: a point of the outline is " +
        std::to_string(value));
  }
  AddBE16(file, static_cast<std::uint32_t>(value));
}

}  // namespace

Bytes OutlineFile(const Outlines& outlines, OutlineKind kind) {
  const OutlineRule rule = OutlineRuleOf(kind);
  Bytes file{kFrameSlots};
  for (const OutlineFrame& frame : outlines) {
    AddBE32(file, static_cast<std::uint32_t>(frame.corners.size()));
    for (const Corner& corner : frame.corners) {
      AddCoordinate(file, corner.x + rule.right);
      AddCoordinate(file, frame.pictureHeight + rule.up - corner.y);
    }
  }
  return file;
}

Corner CornerOfPoint(int x, int y, int pictureHeight, OutlineKind kind) {
  const OutlineRule rule = OutlineRuleOf(kind);
  return {x - rule.right, pictureHeight + rule.up - y};
}
