#include "world/world_pictures.h"

#include "services/program.h"
#include "services/text.h"

WorldPicturesState WorldPictures;

namespace {

int PicturePath(char* buffer, int size, int chara, int frame, const char* mark) {
  return TextFormat(buffer, static_cast<std::size_t>(size), "%s\\キャラクタ\\Chara%d_%d%s.bmp",
                    Program.RootFolder, chara, frame, mark);
}

void Free(ImageHandle& image) {
  DibFree(image);
  image = nullptr;
}

}  // namespace

int WorldPicturePath(char* buffer, int size, int chara, int frame) {
  return PicturePath(buffer, size, chara, frame, "");
}

int WorldMaskPath(char* buffer, int size, int chara, int frame) {
  return PicturePath(buffer, size, chara, frame, "x");
}

WorldPicture WorldPictureLoad(int chara, int frame) {
  WorldPicture loaded{nullptr, nullptr};
  char path[kRootPathSize];
  WorldPicturePath(path, sizeof path, chara, frame);
  loaded.picture = DibLoad(path);
  if (!loaded.picture) return loaded;
  WorldMaskPath(path, sizeof path, chara, frame);
  loaded.mask = DibLoad(path);
  DibApplyMask(loaded.picture, loaded.mask);
  return loaded;
}

WorldPicture WorldPictureOf(int chara) {
  if (chara < 1 || chara > kWorldCharaMax) return {nullptr, nullptr};
  WorldPicture kept{WorldPictures.pictures[chara - 1], WorldPictures.masks[chara - 1]};
  if (!kept.picture) {
    kept = WorldPictureLoad(chara, 1);
    WorldPictures.pictures[chara - 1] = kept.picture;
    WorldPictures.masks[chara - 1] = kept.mask;
  }
  return kept;
}

void WorldPicturesFree() {
  for (ImageHandle& picture : WorldPictures.pictures) Free(picture);
  for (ImageHandle& mask : WorldPictures.masks) Free(mask);
}
