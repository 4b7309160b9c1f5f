// Reading and writing whole files of this system.
#pragma once

#include <QString>
#include <cstddef>
#include <optional>
#include <string>

namespace zarpel {

// True for a file with content of its own, followed through links: no folder, pipe or device. A name that
// begins with ":/" is a file built into the program.
bool IsRegularFile(const QString& path);

// As Desktop::ReadFile and Desktop::WriteFile, by the system's paths.
std::optional<std::string> ReadFile(const QString& path, std::size_t limit);
bool WriteFile(const QString& path, const std::string& bytes);

}  // namespace zarpel
