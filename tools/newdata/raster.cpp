#include "newdata/raster.h"

#include <librsvg/rsvg.h>

#include <cmath>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

constexpr std::uint32_t kSolidAlpha = 128;

struct Unref {
  void operator()(RsvgHandle* handle) const { g_object_unref(handle); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* context) const { cairo_destroy(context); }
};
using Drawing = std::unique_ptr<RsvgHandle, Unref>;
using Surface = std::unique_ptr<cairo_surface_t, Unref>;
using Context = std::unique_ptr<cairo_t, Unref>;

[[noreturn]] void Fail(const std::filesystem::path& file, const std::string& what, GError* error) {
  std::string text = file.string() + ": " + what;
  if (error) {
    text += std::string(": ") + error->message;
    g_error_free(error);
  }
  throw std::runtime_error(text);
}

Drawing Open(const std::filesystem::path& file) {
  GError* error = nullptr;
  Drawing drawing(rsvg_handle_new_from_file(file.c_str(), &error));
  if (!drawing) Fail(file, "cannot be read as a drawing", error);
  return drawing;
}

bool HasFrame(const Drawing& drawing, int frame) {
  return rsvg_handle_has_sub(drawing.get(), ("#frame" + std::to_string(frame)).c_str()) != 0;
}

void ShowOnly(const Drawing& drawing, const std::filesystem::path& file, int frame) {
  if (!HasFrame(drawing, frame)) Fail(file, "has no frame " + std::to_string(frame), nullptr);
  const std::string style =
      ".frame{display:none !important} #frame" + std::to_string(frame) + "{display:inline !important}";
  GError* error = nullptr;
  if (!rsvg_handle_set_stylesheet(drawing.get(), reinterpret_cast<const guint8*>(style.data()), style.size(),
                                  &error)) {
    Fail(file, "does not take a style", error);
  }
}

Surface Render(const Drawing& drawing, const std::filesystem::path& file, int frame, int width, int height) {
  ShowOnly(drawing, file, frame);
  Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
  Context context(cairo_create(surface.get()));
  const RsvgRectangle viewport{0, 0, static_cast<double>(width), static_cast<double>(height)};
  GError* error = nullptr;
  if (!rsvg_handle_render_document(drawing.get(), context.get(), &viewport, &error)) {
    Fail(file, "frame " + std::to_string(frame) + " cannot be rendered", error);
  }
  context.reset();
  cairo_surface_flush(surface.get());
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) {
    Fail(file, "frame " + std::to_string(frame) + " has no pixels", nullptr);
  }
  return surface;
}

// One pixel of a surface: alpha in the high byte, colours multiplied by it.
std::uint32_t PixelOf(const Surface& surface, int x, int y) {
  const unsigned char* row = cairo_image_surface_get_data(surface.get()) +
                             static_cast<std::ptrdiff_t>(cairo_image_surface_get_stride(surface.get())) * y;
  return reinterpret_cast<const std::uint32_t*>(row)[x];
}

std::uint8_t Unmultiply(std::uint32_t pixel, unsigned shift, std::uint32_t alpha) {
  const std::uint32_t value = (pixel >> shift) & 255U;
  return static_cast<std::uint8_t>(std::min<std::uint32_t>(255, (value * 255 + alpha / 2) / alpha));
}

Rgb ColourOf(std::uint32_t pixel) {
  const std::uint32_t alpha = pixel >> 24U;
  if (alpha == 0) return kBlack;
  return Rgb{Unmultiply(pixel, 16, alpha), Unmultiply(pixel, 8, alpha), Unmultiply(pixel, 0, alpha)};
}

cairo_status_t AppendBytes(void* to, const unsigned char* from, unsigned size) {
  auto* bytes = static_cast<Bytes*>(to);
  bytes->insert(bytes->end(), from, from + size);
  return CAIRO_STATUS_SUCCESS;
}

}  // namespace

int DrawingFrames(const std::filesystem::path& file) {
  const Drawing drawing = Open(file);
  int frames = 0;
  while (HasFrame(drawing, frames + 1)) ++frames;
  return frames;
}

Frame RenderFrame(const std::filesystem::path& file, int frame) {
  const Drawing drawing = Open(file);
  double w = 0;
  double h = 0;
  if (!rsvg_handle_get_intrinsic_size_in_pixels(drawing.get(), &w, &h) || w < 1 || h < 1) {
    Fail(file, "does not tell its size in pixels", nullptr);
  }
  const int width = static_cast<int>(std::lround(w));
  const int height = static_cast<int>(std::lround(h));
  const Surface surface = Render(drawing, file, frame, width, height);
  Frame result{Picture(width, height, kWhite), PixelSet(width, height)};
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const std::uint32_t pixel = PixelOf(surface, x, y);
      if (pixel >> 24U < kSolidAlpha) continue;
      result.figure.Set(x, y, true);
      result.picture.At(x, y) = ColourOf(pixel);
    }
  }
  return result;
}

AlphaPicture RenderScaled(const std::filesystem::path& file, int frame, int width, int height) {
  const Drawing drawing = Open(file);
  const Surface surface = Render(drawing, file, frame, width, height);
  AlphaPicture result{width, height, {}};
  result.rgba.reserve(static_cast<std::size_t>(width) * height * 4);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const std::uint32_t pixel = PixelOf(surface, x, y);
      const Rgb colour = ColourOf(pixel);
      result.rgba.insert(result.rgba.end(),
                         {colour.red, colour.green, colour.blue, static_cast<std::uint8_t>(pixel >> 24U)});
    }
  }
  return result;
}

Bytes RenderPng(const std::filesystem::path& file, int frame, int width, int height) {
  const Drawing drawing = Open(file);
  const Surface surface = Render(drawing, file, frame, width, height);
  Bytes png;
  if (cairo_surface_write_to_png_stream(surface.get(), AppendBytes, &png) != CAIRO_STATUS_SUCCESS) {
    Fail(file, "frame " + std::to_string(frame) + " cannot be packed", nullptr);
  }
  return png;
}
