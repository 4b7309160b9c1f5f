#include "app/command_line.h"

#include "app/summary.h"
#include "ui/version.h"

namespace zarpel {
namespace {

CommandLine Help() {
    return {.Answer = std::string(kNameAndVersion) + ": " + kSummary + "\n\n" +
                      "Uso: zarpel [ARCHIVO]\n\n"
                      "  ARCHIVO     una partida guardada (.zrp), con la que se empieza\n"
                      "  --help      muestra esta ayuda\n"
                      "  --version   muestra la versión\n"};
}

CommandLine Error(const std::string& fault) {
    return {.Answer = "zarpel: " + fault + "\nPruebe \"zarpel --help\".\n", .Wrong = true};
}

}  // namespace

CommandLine ReadCommandLine(const std::vector<std::string>& words) {
    CommandLine line;
    bool options = true;
    for (const std::string& word : words) {
        if (options && word == "--") {
            options = false;
        } else if (options && word == "--help") {
            return Help();
        } else if (options && word == "--version") {
            return {.Answer = std::string(kNameAndVersion) + "\n"};
        } else if (options && word.starts_with('-')) {
            return Error("no existe la opción \"" + word + "\"");
        } else if (word.empty()) {
            return Error("el nombre del archivo está vacío");
        } else if (line.Match) {
            return Error("solo se puede abrir un archivo");
        } else {
            line.Match = word;
        }
    }
    return line;
}

}  // namespace zarpel
