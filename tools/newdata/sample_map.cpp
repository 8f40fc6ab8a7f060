#include "newdata/sample_map.h"

#include <iterator>

#include "newdata/bmp.h"
#include "newdata/bytes.h"
#include "newdata/cast.h"
#include "newdata/data_set.h"
#include "newdata/host_file.h"
#include "newdata/raster.h"
#include "services/text.h"
#include "world/sef_records.h"
#include "world/wef_records.h"

namespace {

// The marks are as large as a cell, so that none is stretched.
constexpr SefGrid kGrid{9, 5, 88, 92, {185, 154, 92}, 0, {}};
constexpr char kPicture[] = "どんぐり町.bmp";
constexpr std::uint8_t kPaper[3] = {233, 220, 180};  // what lies around the picture

Bytes SceneFile() {
  const int chara = CastOf(Role::Mark).at(0)->number;
  Bytes file;
  AddText(file, "シナリオ シーン 編集ファイル");
  AddBE32(file, std::size(kSampleStatuses));
  AddRecord(file, kGrid);
  for (const SampleStatus& status : kSampleStatuses) {
    AddRecord(file,
              SefObject{static_cast<std::uint32_t>(chara), static_cast<std::uint16_t>(status.frame - 1)});
  }
  AddBE32(file, std::size(kSampleSpots));
  for (const SampleSpot& spot : kSampleSpots) {
    SefStage stage{{}, static_cast<std::uint16_t>(spot.column), static_cast<std::uint16_t>(spot.row)};
    TextCopy(stage.name, sizeof stage.name, spot.name);
    AddRecord(file, stage);
  }
  SefTypes types{};
  for (const SampleStatus& status : kSampleStatuses) {
    const int type = types.count++;
    types.numbers[type] = static_cast<std::uint8_t>(status.code);
    TextCopy(types.names[type], sizeof types.names[type], status.name);
    types.objects[type] = static_cast<std::uint16_t>(type + 1);
  }
  AddRecord(file, types);
  return file;
}

// One area of one scene.
Bytes WorldFile() {
  Bytes file;
  AddText(file, "シナリオ作業 編集ファイル");
  AddRecord(file, WefHead{1});
  AddBE32(file, 1);
  file.resize(file.size() + kWefBlockSize + kWefAreaSize);
  WefScene scene{};
  TextCopy(scene.background, sizeof scene.background, kPicture);
  std::copy(std::begin(kPaper), std::end(kPaper), scene.fallback);
  AddRecord(file, scene);
  return file;
}

}  // namespace

void WriteSampleMap(const std::filesystem::path& folder, const std::filesystem::path& assets) {
  const std::filesystem::path map = folder / kSampleMapFolder;
  std::filesystem::create_directories(map / kBackgroundFolder);
  WriteHostFile(map / u8"どんぐり町_1_1.sef", SceneFile());
  WriteHostFile(map / u8"どんぐり町.wef", WorldFile());
  const Frame frame = RenderFrame(assets / "map" / "chizu.svg", 1);
  WriteHostFile(map / kBackgroundFolder / u8"どんぐり町.bmp", BmpFile(frame.picture));
}
