#include "newdata/world_list_file.h"

#include <algorithm>
#include <stdexcept>
#include <string>

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

// A name goes in whole, with its terminator, of `size` bytes at most.
template <std::size_t N>
void PutName(char (&to)[N], const std::string& name, std::size_t size = N - 1) {
  if (name.size() >= size) throw std::runtime_error("a name is too long: " + name);
  std::copy(name.begin(), name.end(), to);
}

int LastNumber(const std::vector<CastMember>& cast) {
  int last = 0;
  for (const CastMember& member : cast) last = std::max(last, member.number);
  return last;
}

}  // namespace

Bytes WorldFlagFile(const std::vector<CastMember>& cast) {
  const std::vector<std::string> figures = FigureNames(cast);
  Bytes file;
  AddRecord(file, EdtcHead{static_cast<std::uint32_t>(LastNumber(cast)),
                           static_cast<std::uint32_t>(figures.size())});
  for (const std::string& name : figures) {
    EdtcFigureRec figure{};
    figure.used = true;
    PutName(figure.name, name);
    AddRecord(file, figure);
  }
  return file;
}

Bytes WorldDataFile(const std::vector<CastMember>& cast) {
  const std::vector<std::string> figures = FigureNames(cast);
  std::vector<EdtcCharRec> charas(static_cast<std::size_t>(LastNumber(cast)));
  for (const CastMember& member : cast) {
    EdtcCharRec& chara = charas.at(static_cast<std::size_t>(member.number - 1));
    PutName(chara.name, member.name);
    for (std::size_t frame = 0; frame < member.frames.size(); ++frame) {
      // In memory a frame's name keeps 24 bytes.
      PutName(chara.frameNames[frame], member.frames[frame], kWorldFrameNameMax + 1);
      const auto figure = std::find(figures.begin(), figures.end(), member.frames[frame]);
      chara.figures[frame].id = static_cast<std::uint16_t>(figure - figures.begin() + 1);
    }
  }
  Bytes file;
  for (const EdtcCharRec& chara : charas) AddRecord(file, chara);
  return file;
}
