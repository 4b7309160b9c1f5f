#include "storage/fields.h"

#include <algorithm>

namespace zarpel {
namespace {

// Far more than the game ever writes. What lies beyond counts as missing, so that a huge file costs no more
// time and memory than this.
constexpr std::size_t kLongestFile = std::size_t{4} << 20;

}  // namespace

void SaveFile(Desktop& desktop, const std::string& path, const Fields& fields) {
    ValueWriter file;
    for (const Field& field : fields) field.Save(file);
    if (desktop.WriteFile(path, file.Bytes())) return;
    desktop.Show({.Text = "No se pudo guardar el archivo\n" + path,
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
