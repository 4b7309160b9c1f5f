#include "tests/support/scripted_desktop.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

namespace zarpel {
namespace {

constexpr int kCards = 40;
constexpr std::size_t kRecord = 16;

std::string CardName(int carta) { return "carta" + std::to_string(carta) + ".png"; }

std::string CardList() {
    std::string list;
    for (int carta = 1; carta <= kCards; ++carta) {
        const std::string name = CardName(carta);
        std::string record{static_cast<char>(name.size()), '\0'};
        record += name;
        record.resize(kRecord, '\0');
        list += record;
    }
    return list;
}

// The defaults that come with the game.
std::string Preferences() {
    std::ifstream file(ZARPEL_DATA "/pordefecto.dat", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The next prepared answer, or `otherwise` when none is left.
template <class T>
T Take(std::deque<T>& prepared, T otherwise) {
    if (prepared.empty()) return otherwise;
    T next = std::move(prepared.front());
    prepared.pop_front();
    return next;
}

}  // namespace

std::string PathOf(const std::string& name) { return std::string(ScriptedDesktop::kFolder) + "\\" + name; }
std::string CardPicture(int carta) { return PathOf(CardName(carta)); }

ScriptedDesktop::ScriptedDesktop(unsigned seed) : generator_(seed) {
    Files[PathOf("naipe.dat")] = CardList();
    for (int carta = 1; carta <= kCards; ++carta) Files[CardPicture(carta)] = "";
    Files[PathOf("dibujo.jpg")] = "";
    Files[PathOf("lastprop.dat")] = Preferences();
    Files[PathOf("pordefecto.dat")] = Preferences();
}

std::vector<std::string> ScriptedDesktop::TakeBoxTexts() {
    std::vector<std::string> texts;
    for (const Message& message : std::exchange(Boxes, {})) texts.push_back(message.Text);
    return texts;
}

std::vector<std::string> ScriptedDesktop::TakeCalls() { return std::exchange(Calls, {}); }

void ScriptedDesktop::Leave(int status) {
    Calls.push_back("end " + std::to_string(status));
    throw Ended{status};
}

bool ScriptedDesktop::IsShown(const Form& form) const {
    return std::find(Shown.begin(), Shown.end(), &form) != Shown.end();
}

void ScriptedDesktop::Show(Form& form) {
    if (!IsShown(form)) Shown.push_back(&form);
}

void ScriptedDesktop::ShowModal(Form& form) {
    Calls.push_back("modal " + form.Caption.get());
    Shown.push_back(&form);
    Take<std::function<void(Form&)>>(Modal, [](Form& shown) { shown.Form_QueryClose(); })(form);
    if (IsShown(form)) form.Form_QueryClose();
}

void ScriptedDesktop::Unload(Form& form) { std::erase(Shown, &form); }

Answer ScriptedDesktop::Show(const Message& message) {
    Calls.push_back("box " + message.Text);
    Boxes.push_back(message);
    OnBox(message);
    return message.Buttons == Buttons::Ok ? Answer::Ok : Take(Answers, Answer::Yes);
}

std::string ScriptedDesktop::InputBox(const std::string& prompt, const std::string& title,
                                      const std::string& proposed) {
    Calls.push_back("input " + prompt + "|" + title + "|" + proposed);
    return Take(Typed, std::string());
}

bool ScriptedDesktop::Choose(const std::string& how, CommonDialog& dialog) {
    Calls.push_back(how + " " + dialog.Filter + " " + dialog.FileName);
    const std::string name = Take(Chosen, std::string());
    if (name.empty()) return false;
    dialog.FileName = name;
    return true;
}

bool ScriptedDesktop::ShowColor(CommonDialog& dialog) {
    Calls.push_back("color " + std::to_string(dialog.Color));
    const auto color = Take<std::optional<ColorCode>>(Colors, std::nullopt);
    if (color) dialog.Color = *color;
    return color.has_value();
}

bool ScriptedDesktop::LoadPicture(const std::string& path) {
    return Files.contains(path) && (path.ends_with(".png") || path.ends_with(".jpg"));
}

std::optional<std::string> ScriptedDesktop::ReadFile(const std::string& path, std::size_t limit) {
    const auto file = Files.find(path);
    if (file == Files.end()) return std::nullopt;
    return file->second.substr(0, limit);
}

bool ScriptedDesktop::WriteFile(const std::string& path, const std::string& bytes) {
    Calls.push_back("write " + path);
    if (!WritesFail) Files[path] = bytes;
    return !WritesFail;
}

void ScriptedDesktop::Pause(int milliseconds) {
    Calls.push_back("pause " + std::to_string(milliseconds));
    Pauses.push_back(milliseconds);
    OnPause();
}

double ScriptedDesktop::Rnd() {
    ++DrawCount;
    if (!Draws.empty()) return Take(Draws, 0.0);
    return std::uniform_real_distribution<double>(0.0, 1.0)(generator_);
}

}  // namespace zarpel
