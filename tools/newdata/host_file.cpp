#include "newdata/host_file.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

Bytes ReadHostFile(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  Bytes content{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  if (!in) throw std::runtime_error(file.string() + ": cannot be read");
  return content;
}

void WriteHostFile(const std::filesystem::path& file, const Bytes& content) {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(content.data()), static_cast<std::streamsize>(content.size()));
  out.close();
  if (!out) throw std::runtime_error(file.string() + ": cannot be written");
}
