#include "newdata/world_list_file.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "services/big_endian.h"
#include "world/world_list.h"

namespace {

// The names of the figures in the order of their ids.
std::vector<std::string> FigureNames(const std::vector<CastMember>& cast) {
  std::vector<std::string> names;
  for (const CastMember& member : cast) {
    for (const char* frame : member.frames) {
      if (std::find(names.begin(), names.end(), frame) == names.end()) names.emplace_back(frame);
    }
  }
  return names;
}

// A name goes in whole, with its terminator.
void PutName(Bytes& file, std::size_t place, const std::string& name, int size) {
  if (name.size() >= static_cast<std::size_t>(size)) throw std::runtime_error("a name is too long: " + name);
  std::copy(name.begin(), name.end(), file.begin() + static_cast<std::ptrdiff_t>(place));
}

int LastNumber(const std::vector<CastMember>& cast) {
  int last = 0;
  for (const CastMember& member : cast) last = std::max(last, member.number);
  return last;
}

}  // namespace

Bytes WorldFlagFile(const std::vector<CastMember>& cast) {
  const std::vector<std::string> figures = FigureNames(cast);
  Bytes file(kEdtcHeaderSize + kEdtcFigureSize * figures.size());
  PutBE32(&file[kEdtcCharaCount], static_cast<std::uint32_t>(LastNumber(cast)));
  PutBE32(&file[kEdtcFigureCount], static_cast<std::uint32_t>(figures.size()));
  for (std::size_t i = 0; i < figures.size(); ++i) {
    const std::size_t record = kEdtcHeaderSize + kEdtcFigureSize * i;
    file[record + kEdtcFigureUsed] = 1;
    PutName(file, record + kEdtcFigureName, figures[i], kWorldFigureNameSize);
  }
  return file;
}

Bytes WorldDataFile(const std::vector<CastMember>& cast) {
  const std::vector<std::string> figures = FigureNames(cast);
  Bytes file(static_cast<std::size_t>(kEdtcCharSize) * LastNumber(cast));
  for (const CastMember& member : cast) {
    const std::size_t record = static_cast<std::size_t>(kEdtcCharSize) * (member.number - 1);
    PutName(file, record + kEdtcCharName, member.name, kWorldNameSize);
    for (std::size_t frame = 0; frame < member.frames.size(); ++frame) {
      // In memory a frame's name keeps 24 bytes.
      PutName(file, record + kEdtcCharFrameNames + kWorldFrameNameSize * frame, member.frames[frame],
              kWorldFrameNameMax + 1);
      const auto figure = std::find(figures.begin(), figures.end(), member.frames[frame]);
      PutBE32(&file[record + kEdtcCharFigureIds + 4 * frame],
              static_cast<std::uint32_t>(figure - figures.begin() + 1));
    }
  }
  return file;
}
