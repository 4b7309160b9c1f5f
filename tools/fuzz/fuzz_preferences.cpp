// Starts the game with bytes as its preference file and plays. What was applied must come back as it is when
// it is saved and read once more.
#include "tools/fuzz/fuzz_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string path = zarpel::PathOf("lastprop.dat");
    zarpel::InstalledDesktop desktop;
    zarpel::Playing window(desktop);
    desktop.Files[path] = zarpel::BytesOf(data, size);
    window.Load();
    window.SaveProperty();
    const std::string saved = desktop.Files[path];
    desktop.TakeBoxTexts();
    window.LoadProperty(path);
    window.SaveProperty();
    zarpel::Require(desktop.TakeBoxTexts().empty() && desktop.Files[path] == saved);
    zarpel::PlayOn(window, desktop);
    return 0;
}
