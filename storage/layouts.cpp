#include "storage/layouts.h"

#include "engine/zarpelfunc.h"

namespace zarpel {
namespace {

void Append(Fields& fields, std::initializer_list<Field> more) { fields.insert(fields.end(), more); }

Field Nickname() { return Of(*Naipes, &classnaipe::Nombrejugador, &classnaipe::aNombrejugador); }

// A match can only be saved after the first distribution of a deal, so the flag is never set in a file.
Field FirstDistribution() {
    return Of([] { return false; }, [](bool primermano) { Naipes->aPrimermano(primermano); });
}

}  // namespace

Fields PreferenceFields(const PreferencePlaces& places) {
    return {Nickname(), Of(places.Application), Of(places.Table), Of(places.Rectangle), Of(places.CardBack)};
}

Fields MatchFields(Mesa& mesa) {
    Fields fields = {Of(mesa.puntajeP1Lbl.Caption), Of(mesa.puntajeP2Lbl.Caption),
                     Of(mesa.SumandoLbl.Caption)};
    for (int k = 0; k < kLugaresMesa; ++k) {
        if (k < kLugaresMano) {
            Image& cpu = mesa.SlotCpu(k).Imagen;
            Image& humano = mesa.SlotHumano(k).Imagen;
            Append(fields, {Of(cpu.Tag), Of(humano.Tag), Of(cpu.Visible), Of(humano.Visible)});
        }
        Image& lugar = mesa.SlotMesa(k).Imagen;
        Append(fields, {Of(lugar.Tag), Of(lugar.Visible)});
    }
    Append(fields, {Nickname(), Of(*Reparto, &classzarpel::UltimoqLevanta, &classzarpel::aUltimoqLevanta),
                    Of(*Naipes, &classnaipe::Repartidas, &classnaipe::aRepartidas),
                    Of(*Reparto, &classzarpel::ZarpelP1, &classzarpel::aZarpelP1),
                    Of(*Reparto, &classzarpel::ZarpelP2, &classzarpel::aZarpelP2),
                    Of(*Naipes, &classnaipe::LaMano, &classnaipe::aLaMano),
                    Of(*Naipes, &classnaipe::Puntajecpu, &classnaipe::aPuntajecpu),
                    Of(*Naipes, &classnaipe::Puntajehumano, &classnaipe::aPuntajehumano), FirstDistribution(),
                    Of(*Reparto, &classzarpel::Turno, &classzarpel::aTurno)});
    for (int i = 1; i <= Naipes->CantCartas(); ++i) {
        Append(fields, {Of(*Naipes, &classnaipe::Mazo_Duenio, &classnaipe::aMazo_Duenio, i),
                        Of(*Naipes, &classnaipe::Mazo_Imagen, &classnaipe::aMazo_Imagen, i),
                        Of(*Naipes, &classnaipe::Mazo_Numero, &classnaipe::aMazo_Numero, i),
                        Of(*Naipes, &classnaipe::Mazo_Palo, &classnaipe::aMazo_Palo, i)});
    }
    return fields;
}

}  // namespace zarpel
