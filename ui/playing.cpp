#include "ui/playing.h"

#include "engine/zarpelfunc.h"

namespace zarpel {

Playing::Playing(Desktop& desktop) : Mesa(desktop) { ConnectEvents(); }

void Playing::Load() {
    Design();
    Form_Load();
}

void Playing::UbicaArchivoNaipes() { ArchivoNaipes = desktop_.PathOf("naipe.dat"); }

void Playing::Form_Load() {
    UbicaArchivoNaipes();
    Naipes.emplace(desktop_);
    Reparto.emplace();
    ResetGame();
}

void Playing::ConnectEvents() {
    for (std::size_t i = 0; i < kLugaresMesa; ++i) {
        mesaimg.at(i).Click = [this, i] { mesaimg_Click(i); };
    }
    for (std::size_t i = 0; i < kLugaresMano; ++i) {
        cartap2img.at(i).Click = [this, i] { cartap2img_Click(i); };
    }
    LevantarBtn.Click = [this] { LevantarBtn_Click(); };
    Frame1.DragDrop = [this](Image& source) { Frame1_DragDrop(source); };
    Frame1.DropPlace = [this] { return LugarLibre() ? &LugarLibre()->Imagen : nullptr; };
    Toolbar1.ButtonClick = [this](const std::string& key) { Toolbar1_ButtonClick(key); };
    Nuevomnu.Click = [this] { Nuevomnu_Click(); };
    abrirmnu.Click = [this] { abrirmnu_Click(); };
    guardarmnu.Click = [this] { guardarmnu_Click(); };
    nombremnu.Click = [this] { nombremnu_Click(); };
    preferenciasmnu.Click = [this] { preferenciasmnu_Click(); };
    salir.Click = [this] { salir_Click(); };
    contenidosmnu.Click = [this] { contenidosmnu_Click(); };
    acercamnu.Click = [this] { acercamnu_Click(); };
}

}  // namespace zarpel
