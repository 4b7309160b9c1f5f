#include "storage/fields.h"

#include <algorithm>

namespace zarpel {
namespace {

// Far more than a match takes (about 7 KB). What lies beyond counts as missing, so that no text of a file is
// so long that it slows the game down.
constexpr std::size_t kLongestFile = std::size_t{64} << 10;

}  // namespace

void SaveFile(Desktop& desktop, const std::string& path, const Fields& fields) {
    ValueWriter file;
    for (const Field& field : fields) field.Save(file);
    if (desktop.WriteFile(path, file.Bytes())) return;
    desktop.Show({.Text = "No se pudo guardar el archivo\n" + desktop.ShownPath(path, FileUse::Writing),
                  .Icon = BoxIcon::Critical,
                  .Title = "Hubo un error"});
}

bool LoadFile(Desktop& desktop, const std::string& path, const Fields& fields) {
    const auto bytes = desktop.ReadFile(path, kLongestFile);
    if (!bytes) return false;
    ValueReader file(*bytes);
    return std::all_of(fields.begin(), fields.end(),
                       [&file](const Field& field) { return field.Load(file); });
}

}  // namespace zarpel
