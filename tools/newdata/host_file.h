// Whole files of the machine that the tool runs on. Their names are UTF-8.
#pragma once

#include <filesystem>

#include "newdata/bytes.h"

// Both throw std::runtime_error, which names the file.
Bytes ReadHostFile(const std::filesystem::path& file);
void WriteHostFile(const std::filesystem::path& file, const Bytes& content);
