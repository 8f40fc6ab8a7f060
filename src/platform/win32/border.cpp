#include "platform/win32/border.h"

#include <algorithm>
#include <cstring>

#include "platform/cp932.h"

namespace {
constexpr UINT kCodePage = 932;

int CopyStart(const std::string& text, std::size_t length, char* buffer) {
  std::memcpy(buffer, text.data(), length);
  buffer[length] = '\0';
  return static_cast<int>(length);
}
}  // namespace

std::wstring Wide(const char* text, int length) {
  if (length < 0) length = static_cast<int>(std::strlen(text));
  if (length == 0) return {};
  // No byte becomes more than one character.
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  const int made = MultiByteToWideChar(kCodePage, 0, text, length, wide.data(), length);
  wide.resize(static_cast<std::size_t>(made));
  return wide;
}

std::string Narrow(const wchar_t* text, int length) {
  if (length < 0) length = static_cast<int>(std::wcslen(text));
  if (length == 0) return {};
  const int needed = WideCharToMultiByte(kCodePage, 0, text, length, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(kCodePage, 0, text, length, narrow.data(), needed, nullptr, nullptr);
  return narrow;
}

int CopyNarrow(const wchar_t* text, char* buffer, int size) {
  if (size <= 0) return 0;
  const std::string narrow = Narrow(text);
  return CopyStart(narrow, Cp932Cut(narrow, static_cast<std::size_t>(size) - 1), buffer);
}

int CopyNarrowBytes(const wchar_t* text, char* buffer, int size) {
  if (size <= 0) return 0;
  const std::string narrow = Narrow(text);
  return CopyStart(narrow, std::min(narrow.size(), static_cast<std::size_t>(size) - 1), buffer);
}

bool CopyNarrowWhole(const wchar_t* text, char* buffer, int size) {
  const std::string narrow = Narrow(text);
  if (static_cast<int>(narrow.size()) >= size) return false;
  std::memcpy(buffer, narrow.c_str(), narrow.size() + 1);
  return true;
}

namespace {
// Whether the text is the same after going to code page 932 and back.
bool IsNarrow(const wchar_t* text) {
  BOOL replaced = FALSE;
  const int needed =
      WideCharToMultiByte(kCodePage, WC_NO_BEST_FIT_CHARS, text, -1, nullptr, 0, nullptr, &replaced);
  return needed > 0 && !replaced;
}
}  // namespace

bool CopyNarrowPath(const wchar_t* path, char* buffer, int size) {
  if (IsNarrow(path)) return CopyNarrowWhole(path, buffer, size);
  wchar_t shortPath[MAX_PATH];
  const DWORD length = GetShortPathNameW(path, shortPath, MAX_PATH);
  return length > 0 && length < MAX_PATH && IsNarrow(shortPath) && CopyNarrowWhole(shortPath, buffer, size);
}

LiveObjects& Live() {
  static LiveObjects live{};
  return live;
}

LiveObjects DiagnosticsLive() {
  return Live();
}

HFONT TextFont() {
  static HFONT font = nullptr;
  if (font) return font;
  // The stock font serves where it is the Japanese one of 8 x 16; on other
  // locales it has no Japanese glyphs.
  const auto stock = static_cast<HFONT>(GetStockObject(SYSTEM_FIXED_FONT));
  HDC screen = GetDC(nullptr);
  HGDIOBJ old = SelectObject(screen, stock);
  TEXTMETRICW metrics{};
  GetTextMetricsW(screen, &metrics);
  SIZE full{};
  GetTextExtentPoint32W(screen, L"漢", 1, &full);
  SelectObject(screen, old);
  ReleaseDC(nullptr, screen);
  if (metrics.tmCharSet == SHIFTJIS_CHARSET && metrics.tmAveCharWidth == 8 && metrics.tmHeight == 16 &&
      full.cx == 16) {
    font = stock;
    return font;
  }
  font = CreateFontW(16, 8, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, SHIFTJIS_CHARSET, OUT_DEFAULT_PRECIS,
                     CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, FIXED_PITCH | FF_MODERN, L"ＭＳ ゴシック");
  if (!font) font = stock;
  return font;
}
