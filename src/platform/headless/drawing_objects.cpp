#include "platform/headless/drawing_objects.h"

#include "platform/posix/faults.h"
#include "platform/posix/live_counts.h"

namespace {

constexpr Colour kFace = 0xF0F0F0;

HandleTable<BrushTag, HeadlessBrush> brushes;
HandleTable<PenTag, HeadlessPen> pens;
HandleTable<FontTag, HeadlessFont> fonts;
HandleTable<RegionTag, HeadlessRegion> regions;

template <typename Tag, typename Object>
std::shared_ptr<Object> Use(const HandleTable<Tag, Object>& table, Tag* handle, const char* call,
                            const char* what) {
  if (!handle) return nullptr;
  std::shared_ptr<Object> found = table.Find(handle);
  if (!found) Failure(std::string(call) + ": the " + what + " is deleted");
  return found;
}

// True if the object may go now.
template <typename Tag, typename Object>
bool Delete(HandleTable<Tag, Object>& table, Tag* handle, const char* call, const char* what) {
  if (!Use(table, handle, call, what)) return false;
  if (CanvasHolds(handle)) Failure(std::string(call) + ": a canvas still holds the " + what);
  return table.Remove(handle);
}

RegionHandle AddRegion(RegionKind kind, std::vector<Point> points) {
  auto region = std::make_shared<HeadlessRegion>();
  region->kind = kind;
  region->points = std::move(points);
  ++PosixLive().regions;
  return regions.Add(region);
}

// The borrowed objects stay for ever.
template <typename Tag, typename Object>
Tag* Borrowed(HandleTable<Tag, Object>& table, Tag*& handle, const Object& object) {
  if (!table.Find(handle)) handle = table.Add(std::make_shared<Object>(object));
  return handle;
}

}  // namespace

BrushHandle BrushCreate(Colour colour) {
  ++PosixLive().brushes;
  return brushes.Add(std::make_shared<HeadlessBrush>(HeadlessBrush{colour, true, false}));
}

void BrushDelete(BrushHandle brush) {
  const auto found = BrushUse(brush, "BrushDelete");
  if (!found) return;
  if (found->borrowed) {
    Failure("BrushDelete: the brush is the system's");
  } else if (Delete(brushes, brush, "BrushDelete", "brush")) {
    --PosixLive().brushes;
  }
}

PenHandle PenCreate(PenStyle style, int width, Colour colour) {
  ++PosixLive().pens;
  return pens.Add(std::make_shared<HeadlessPen>(HeadlessPen{style, width, colour, true, false}));
}

void PenDelete(PenHandle pen) {
  const auto found = PenUse(pen, "PenDelete");
  if (!found) return;
  if (found->borrowed) {
    Failure("PenDelete: the pen is the system's");
  } else if (Delete(pens, pen, "PenDelete", "pen")) {
    --PosixLive().pens;
  }
}

FontHandle FontCreate(int width, int height, int weight, bool italic, const char* face) {
  (void)weight;
  (void)italic;
  (void)face;
  const int tall = height < 0 ? -height : height;
  ++PosixLive().fonts;
  return fonts.Add(std::make_shared<HeadlessFont>(HeadlessFont{width > 0 ? width : tall / 2, tall}));
}

void FontDelete(FontHandle font) {
  if (font && Delete(fonts, font, "FontDelete", "font")) --PosixLive().fonts;
}

BrushHandle BrushFace() {
  static BrushHandle face = nullptr;
  return Borrowed(brushes, face, HeadlessBrush{kFace, true, true});
}

BrushHandle BrushNothing() {
  static BrushHandle nothing = nullptr;
  return Borrowed(brushes, nothing, HeadlessBrush{0, false, true});
}

PenHandle PenNothing() {
  static PenHandle nothing = nullptr;
  return Borrowed(pens, nothing, HeadlessPen{PenStyle::Solid, 1, 0, false, true});
}

Colour FaceColour() {
  return kFace;
}

RegionHandle RegionPolygon(const Point* points, int count) {
  if (FaultMeets(FaultKind::Region)) return nullptr;
  if (!points || count <= 0) return nullptr;
  return AddRegion(RegionKind::Polygon, std::vector<Point>(points, points + count));
}

RegionHandle RegionEllipse(const Rect& bounds) {
  if (FaultMeets(FaultKind::Region)) return nullptr;
  return AddRegion(RegionKind::Ellipse, {{bounds.left, bounds.top}, {bounds.right, bounds.bottom}});
}

RegionHandle RegionRect(const Rect& bounds) {
  if (FaultMeets(FaultKind::Region)) return nullptr;
  return AddRegion(RegionKind::Rectangle, {{bounds.left, bounds.top}, {bounds.right, bounds.bottom}});
}

void RegionDelete(RegionHandle region) {
  const auto found = Use(regions, region, "RegionDelete", "region");
  if (!found) return;
  if (found->owned) {
    Failure("RegionDelete: the region belongs to a window");
    return;
  }
  regions.Remove(region);
  --PosixLive().regions;
}

bool RegionIsThere(RegionHandle region, const char* call) {
  const auto found = Use(regions, region, call, "region");
  if (found && found->owned) {
    Failure(std::string(call) + ": the region belongs to a window already");
    return false;
  }
  return found != nullptr;
}

void RegionOwned(RegionHandle region) {
  if (const auto found = regions.Find(region); found && !found->owned) {
    found->owned = true;
    --PosixLive().regions;
  }
}

void RegionSystemDelete(RegionHandle region) {
  regions.Remove(region);
}

std::vector<Point> RegionPoints(RegionHandle region) {
  const auto found = regions.Find(region);
  return found ? found->points : std::vector<Point>();
}

RegionKind RegionKindOf(RegionHandle region) {
  const auto found = regions.Find(region);
  return found ? found->kind : RegionKind::None;
}

std::shared_ptr<HeadlessBrush> BrushUse(BrushHandle brush, const char* call) {
  return Use(brushes, brush, call, "brush");
}
std::shared_ptr<HeadlessPen> PenUse(PenHandle pen, const char* call) {
  return Use(pens, pen, call, "pen");
}
std::shared_ptr<HeadlessFont> FontUse(FontHandle font, const char* call) {
  return Use(fonts, font, call, "font");
}

void DrawingObjectsReset() {
  brushes.Clear();
  pens.Clear();
  fonts.Clear();
  regions.Clear();
  PosixLive().brushes = 0;
  PosixLive().pens = 0;
  PosixLive().fonts = 0;
  PosixLive().regions = 0;
}
