#include "engine/errorgrave.h"

namespace zarpel {

void ErrorGrave(Desktop& desktop, const std::string& texto) {
    desktop.Show({.Text = texto, .Icon = BoxIcon::Critical, .Title = "Error grave"});
    desktop.Show({.Text = "Reinstale el programa"});
    desktop.End(kInstalacionDanada);
}

}  // namespace zarpel
