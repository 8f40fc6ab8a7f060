#include "newdata/picture_files.h"

#include <stdexcept>
#include <string>

#include "newdata/bmp.h"
#include "newdata/host_file.h"
#include "newdata/raster.h"
#include "newdata/sound.h"
#include "newdata/trace.h"
#include "platform/posix/posix_paths.h"

namespace {

Polygon OutlineOf(const Frame& frame, const std::filesystem::path& drawing, int number) {
  try {
    return TraceOutline(frame.figure);
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(drawing.string() + ": frame " + std::to_string(number) + ": " + error.what());
  }
}

}  // namespace

void WriteCharacter(const CastMember& member, const std::filesystem::path& drawing,
                    const std::filesystem::path& folder) {
  const int frames = DrawingFrames(drawing);
  if (frames != static_cast<int>(member.frames.size())) {
    throw std::runtime_error(drawing.string() + ": has " + std::to_string(frames) + " frames, expected are " +
                             std::to_string(member.frames.size()));
  }
  const std::string stem = "Chara" + std::to_string(member.number);
  Outlines outlines;
  for (int number = 1; number <= frames; ++number) {
    const Frame frame = RenderFrame(drawing, number);
    if (HasOutline(member.role))
      outlines[static_cast<std::size_t>(number) - 1] = {OutlineOf(frame, drawing, number),
                                                        frame.picture.height};
    const std::string picture = stem + "_" + std::to_string(number);
    WriteHostFile(folder / (picture + ".bmp"), BmpFile(frame.picture));
    WriteHostFile(folder / (picture + "x.bmp"), BmpFile(MaskPicture(frame.figure)));
  }
  try {
    WriteHostFile(folder / (stem + ".dwc"), OutlineFile(outlines, OutlineKindOf(member.role)));
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(drawing.string() + ": " + error.what());
  }
}

void WriteCharacters(const std::filesystem::path& drawings, const std::filesystem::path& folder) {
  for (const CastMember& member : Cast()) {
    std::string number = std::to_string(member.number);
    if (number.size() < 2) number.insert(0, "0");
    WriteCharacter(member, drawings / ("chara" + number + ".svg"), folder);
  }
}

void WriteSounds(const std::filesystem::path& recipes, const std::filesystem::path& folder) {
  for (const Sound& sound : Sounds()) {
    WriteHostFile(folder / Cp932ToUtf8(sound.file), WavFile(MakeSoundOf(recipes / sound.recipe)));
  }
}

void WriteBackgrounds(const std::filesystem::path& drawings, const std::filesystem::path& folder) {
  for (const Background& background : Backgrounds()) {
    const Frame frame = RenderFrame(drawings / "haikei.svg", background.frame);
    WriteHostFile(folder / Cp932ToUtf8(background.file), BmpFile(frame.picture));
  }
}
