#include "world/world_pictures.h"

#include "services/program.h"
#include "services/text.h"

WorldPicturesState WorldPictures;

namespace {

int PicturePath(char* buffer, int size, int chara, int frame, const char* mark) {
  return TextFormat(buffer, static_cast<std::size_t>(size), "%s\\キャラクタ\\Chara%d_%d%s.bmp",
                    Program.RootFolder, chara, frame, mark);
}

void Load(ImageHandle& picture, ImageHandle& mask, int chara) {
  char path[kRootPathSize];
  WorldPicturePath(path, sizeof path, chara, 1);
  picture = DibLoad(path);
  if (!picture) return;
  WorldMaskPath(path, sizeof path, chara, 1);
  mask = DibLoad(path);
  DibApplyMask(picture, mask);
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

WorldPicture WorldPictureOf(int chara) {
  if (chara < 1 || chara > kWorldCharaMax) return {nullptr, nullptr};
  ImageHandle& picture = WorldPictures.pictures[chara - 1];
  ImageHandle& mask = WorldPictures.masks[chara - 1];
  if (!picture) Load(picture, mask, chara);
  return {picture, mask};
}

void WorldPicturesFree() {
  for (ImageHandle& picture : WorldPictures.pictures) Free(picture);
  for (ImageHandle& mask : WorldPictures.masks) Free(mask);
}
