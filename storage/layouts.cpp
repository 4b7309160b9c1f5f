#include "storage/layouts.h"

#include "engine/zarpelfunc.h"

namespace zarpel {
namespace {

void Append(Fields& fields, std::initializer_list<Field> more) { fields.insert(fields.end(), more); }

// A match can only be saved after the first distribution of a deal, so the flag is never set in a file.
Field FirstDistribution() {
    return FieldFrom([] { return false; }, [](bool primermano) { Naipes->aPrimermano(primermano); });
}

}  // namespace

Field Nickname() { return RecordField(*Naipes, &classnaipe::Nombrejugador, &classnaipe::aNombrejugador); }

Fields MatchFields(Mesa& mesa) {
    Fields fields = {PropertyField(mesa.puntajeP1Lbl.Caption), PropertyField(mesa.puntajeP2Lbl.Caption),
                     PropertyField(mesa.SumandoLbl.Caption)};
    for (std::size_t k = 0; k < kLugaresMesa; ++k) {
        if (k < kLugaresMano) {
            Image& cpu = mesa.cartap1img[k];
            Image& humano = mesa.cartap2img[k];
            Append(fields, {PropertyField(cpu.Tag), PropertyField(humano.Tag), PropertyField(cpu.Visible),
                            PropertyField(humano.Visible)});
        }
        Image& lugar = mesa.mesaimg[k];
        Append(fields, {PropertyField(lugar.Tag), PropertyField(lugar.Visible)});
    }
    Append(fields,
           {Nickname(), RecordField(*Reparto, &classzarpel::UltimoqLevanta, &classzarpel::aUltimoqLevanta),
            RecordField(*Naipes, &classnaipe::Repartidas, &classnaipe::aRepartidas),
            RecordField(*Reparto, &classzarpel::ZarpelP1, &classzarpel::aZarpelP1),
            RecordField(*Reparto, &classzarpel::ZarpelP2, &classzarpel::aZarpelP2),
            RecordField(*Naipes, &classnaipe::LaMano, &classnaipe::aLaMano),
            RecordField(*Naipes, &classnaipe::Puntajecpu, &classnaipe::aPuntajecpu),
            RecordField(*Naipes, &classnaipe::Puntajehumano, &classnaipe::aPuntajehumano),
            FirstDistribution(), RecordField(*Reparto, &classzarpel::Turno, &classzarpel::aTurno)});
    for (int i = 1; i <= Naipes->CantCartas(); ++i) {
        Append(fields, {RecordField(*Naipes, &classnaipe::Mazo_Duenio, &classnaipe::aMazo_Duenio, i),
                        RecordField(*Naipes, &classnaipe::Mazo_Imagen, &classnaipe::aMazo_Imagen, i),
                        RecordField(*Naipes, &classnaipe::Mazo_Numero, &classnaipe::aMazo_Numero, i),
                        RecordField(*Naipes, &classnaipe::Mazo_Palo, &classnaipe::aMazo_Palo, i)});
    }
    return fields;
}

}  // namespace zarpel
