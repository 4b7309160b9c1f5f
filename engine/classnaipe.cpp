#include "engine/classnaipe.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "engine/errorgrave.h"
#include "engine/zarpelfunc.h"
#include "platform/codepage.h"

namespace zarpel {
namespace {

constexpr std::array<const char*, 4> kPalos = {"espada", "basto", "oro", "copa"};
constexpr std::size_t kRecord = 16;
constexpr std::size_t kLongestName = 14;

std::optional<std::string> NameInRecord(const std::string& file, std::size_t record) {
    if (file.size() < (record + 1) * kRecord) return std::nullopt;
    const std::string_view bytes(file.data() + record * kRecord, kRecord);
    const auto low = static_cast<unsigned char>(bytes[0]);
    const auto high = static_cast<unsigned char>(bytes[1]);
    const std::size_t length = low | std::size_t{high} << 8;
    if (length > kLongestName) return std::nullopt;
    return Utf8FromWindows1252(bytes.substr(2, length));
}

}  // namespace

void classnaipe::Setnaipe(std::int16_t maxvect) {
    const int porPalo = (maxvect + 2) / static_cast<int>(kPalos.size());
    for (int i = 1; i <= CantCartas(); ++i) {
        const int antes = i - 1;
        const std::size_t palo = std::min(static_cast<std::size_t>(antes / porPalo), kPalos.size() - 1);
        Carta(i) = {static_cast<std::int16_t>(antes % porPalo + 1), kPalos.at(palo), duenios::kNinguno,
                    desktop_->PathOf(LoadImage(i))};
    }
}

std::string classnaipe::LoadImage(int pos) const {
    const auto file = desktop_->ReadFile(ArchivoNaipes, kCartas * kRecord);
    const auto name = file ? NameInRecord(*file, static_cast<std::size_t>(pos - 1)) : std::nullopt;
    if (!name) ErrorGrave(*desktop_, "El archivo naipes.dat esta dañado o no existe");
    return *name;
}

}  // namespace zarpel
