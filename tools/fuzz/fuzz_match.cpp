// Opens bytes as a saved match and plays on. A match that was read must come back as it is when it is saved
// and opened once more.
#include <algorithm>

#include "tools/fuzz/fuzz_files.h"

namespace {

bool Opens(zarpel::Playing& window, zarpel::ScriptedDesktop& desktop, const std::string& path) {
    desktop.Boxes.clear();
    window.CargarJuego(path);  // when it is damaged, the chooser that follows is cancelled
    return std::none_of(desktop.Boxes.begin(), desktop.Boxes.end(),
                        [](const zarpel::Message& box) { return box.Title == "Hubo un Error"; });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zarpel::InstalledDesktop desktop;
    zarpel::Playing window(desktop);
    desktop.Files["entrada"] = zarpel::BytesOf(data, size);
    if (Opens(window, desktop, "entrada")) {
        window.GuardaJuego("primera");
        zarpel::Require(Opens(window, desktop, "primera"));
        window.GuardaJuego("segunda");
        zarpel::Require(desktop.Files["primera"] == desktop.Files["segunda"]);
    }
    zarpel::PlayOn(window, desktop);
    return 0;
}
