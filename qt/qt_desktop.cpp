#include "qt/qt_desktop.h"

#include <QApplication>
#include <QEventLoop>
#include <QLocale>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QTranslator>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "qt/accessibility.h"
#include "qt/colors.h"
#include "qt/dialogs.h"
#include "qt/file_chooser.h"
#include "qt/files.h"
#include "qt/fonts.h"
#include "qt/help/help_window.h"
#include "qt/launcher.h"

namespace zarpel {
namespace {

// Milliseconds after the start at which the program does what its first picture can do without.
constexpr int kLaterMs = 300;

// A window that is not on the screen after so many milliseconds may never come there.
constexpr int kLongestWayMs = 1000;

// Acts once, from the event loop, so many milliseconds from now, unless the receiver is gone by then. Not
// QTimer::singleShot, whose timer the leak check takes for lost when the program ends first.
template <class Action>
void After(int milliseconds, QObject* receiver, Action action) {
    auto* const timer = new QTimer(receiver);
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer, &QTimer::timeout, receiver, action);
    QObject::connect(timer, &QTimer::timeout, timer, &QObject::deleteLater);
    timer->start(milliseconds);
}

// The pointer says "busy" while it lives.
struct BusyPointer {
    BusyPointer() { QApplication::setOverrideCursor(Qt::BusyCursor); }
    ~BusyPointer() { QApplication::restoreOverrideCursor(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

// The texts of the toolkit's own dialogs.
void SpeakSpanish() {
    if (qApp->findChild<QTranslator*>()) return;
    auto* const translator = new QTranslator(qApp);
    if (translator->load(QStringLiteral(":/qtbase_es.qm"))) QApplication::installTranslator(translator);
}

}  // namespace

QtDesktop::QtDesktop(const std::string& folder, std::string title)
    : paths_(folder), title_(std::move(title)), style_(new ScaledStyle) {
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    QApplication::setStyle(style_);
    QApplication::setApplicationDisplayName(QString());
    QApplication::setQuitOnLastWindowClosed(false);  // a box can be the last window, and the game go on
    UseLook();
    InstallAccessibility();
}

QtDesktop::~QtDesktop() = default;

void QtDesktop::Leave(int status) { std::_Exit(status); }

// --- Windows ---

FormWindow* QtDesktop::WindowOf(const Form& form) const {
    const auto found = std::find_if(opened_.begin(), opened_.end(),
                                    [&form](const Opened& opened) { return opened.Shown == &form; });
    return found == opened_.end() ? nullptr : found->Window.get();
}

FormWindow* QtDesktop::TopWindow() const { return opened_.empty() ? nullptr : opened_.back().Window.get(); }

void QtDesktop::UseLook() {
    QApplication::setPalette(ClassicPalette());
    QApplication::setFont(FontOf({}, scale_));
}

FormWindow& QtDesktop::Open(Form& form, std::function<void()> unloaded) {
    auto window =
        std::make_unique<FormWindow>(form, ViewContext{scale_, pictures_, GateOf(form)}, TopWindow());
    opened_.push_back({&form, std::move(window), std::move(unloaded)});
    GateOf(form).Idle = [this] { TellNews(); };
    return *opened_.back().Window;
}

void QtDesktop::Show(Form& form) {
    if (WindowOf(form)) return;
    // Not at once: the handler that unloads the form is still running, perhaps before the program's event
    // loop.
    const auto leave = [this, &form] {
        Forget(form);
        QApplication::quit();
    };
    ShowMaximised(
        Open(form, [this, &form, leave] { GateOf(form).Idle = [leave] { After(0, qApp, leave); }; }));
}

// The scale depends on the room that the window really has, under its title and menu bar. The table's widgets
// are made while the window is on its way. The bare table is seen before the game goes on to deal, since to
// read the cards takes longer than all the rest.
void QtDesktop::ShowMaximised(FormWindow& window) {
    UseScale(window.FormSize(), window.screen()->availableSize());
    QEventLoop onItsWay;
    bool there = false;
    window.Fit = [this, &window, &onItsWay, &there] {
        Fit(window);
        there = true;
        onItsWay.quit();
    };
    window.Themed = [this] { UseLook(); };
    window.setGeometry(window.screen()->availableGeometry());
    window.showMaximized();
    window.Fill();
    After(kLongestWayMs, &onItsWay, [&onItsWay] { onItsWay.quit(); });
    if (!there) onItsWay.exec(QEventLoop::ExcludeUserInputEvents);
    window.Fit = [this, &window] { Fit(window); };
    After(kLaterMs, &window, [] {
        SpeakSpanish();
        QApplication::setWindowIcon(ProgramIcon());
    });
}

// The menu bar has the font of the table's scale, so it takes a second look to know the room, and a third to
// fill it.
void QtDesktop::Fit(FormWindow& window) {
    for (int look = 0; look < 2; ++look) UseScale(window.FormSize(), window.ClientSize());
    scale_.FitTo(window.ClientSize(), window.FormSize());
    pictures_.ForgetSizes();
    for (const Opened& opened : opened_) opened.Window->Sync();
    if (!window.focusWidget()) window.FocusFirst();
}

void QtDesktop::UseScale(const QSize& form, const QSize& client) {
    scale_.FitTo(client, form);
    style_->Use(scale_);
    const QFont font = FontOf({}, scale_);
    if (font != QApplication::font()) QApplication::setFont(font);
}

// A window that is blocked passes over a request to close it: one that waits comes before.
void QtDesktop::ShowModal(Form& form) {
    stray_.DropWaiting();
    QEventLoop loop;
    FormWindow& window = Open(form, [&loop] { loop.quit(); });
    window.setWindowModality(Qt::ApplicationModal);
    window.Fill();
    window.PlaceDialog();
    window.show();
    window.FocusFirst();
    TellNews();
    loop.exec();
    Forget(form);
}

void QtDesktop::Forget(const Form& form) {
    std::erase_if(opened_, [&form](const Opened& opened) { return opened.Shown == &form; });
    gates_.erase(&form);
}

void QtDesktop::Unload(Form& form) {
    const auto found = std::find_if(opened_.begin(), opened_.end(),
                                    [&form](const Opened& opened) { return opened.Shown == &form; });
    if (found == opened_.end()) return;
    GateOf(form).Close();
    found->Window->hide();
    found->Unloaded();
}

Place QtDesktop::Screen() const {
    const QScreen* const screen = opened_.empty() ? QApplication::primaryScreen() : TopWindow()->screen();
    const QSize size = screen->size();
    return {0, 0, scale_.Twips(size.width()), scale_.Twips(size.height())};
}

// --- News ---

void QtDesktop::Announce(const std::string& text) {
    news_ += (news_.isEmpty() ? "" : " ") + QString::fromStdString(text);
}

void QtDesktop::TellNews() {
    if (news_.isEmpty() || opened_.empty()) return;
    TopWindow()->Announce(std::exchange(news_, {}));
}

// --- Boxes and choosers ---

Site QtDesktop::BoxSite() const {
    SpeakSpanish();  // the first box may come before the time for it
    return TopWindow() ? TopWindow()->BoxSite() : Site{nullptr, QApplication::primaryScreen()->geometry()};
}

Site QtDesktop::ChooserSite() const { return TopWindow() ? TopWindow()->Middle() : BoxSite(); }

Answer QtDesktop::Show(const Message& message) {
    stray_.DropWaiting();
    return zarpel::Show(BoxSite(), message, Title());
}

std::string QtDesktop::InputBox(const std::string& prompt, const std::string& title,
                                const std::string& proposed, const Label& shownBy) {
    return zarpel::InputBox(BoxSite(), prompt, title, proposed, shownBy);
}

bool QtDesktop::ShowOpen(ChooserState& dialog) { return zarpel::ShowOpen(ChooserSite(), paths_, dialog); }
bool QtDesktop::ShowSave(ChooserState& dialog) { return zarpel::ShowSave(ChooserSite(), paths_, dialog); }
bool QtDesktop::ShowColor(ChooserState& dialog) { return zarpel::ShowColor(ChooserSite(), dialog); }

// --- Files ---

std::optional<std::string> QtDesktop::ReadFile(const std::string& path, std::size_t limit) {
    return zarpel::ReadFile(paths_.ToRead(path), limit);
}

bool QtDesktop::WriteFile(const std::string& path, const std::string& bytes) {
    return zarpel::WriteFile(paths_.ToWrite(path), bytes);
}

// --- Time and chance ---

// The toolkit keeps the player's input back and delivers it, in order, once the loop has ended.
void QtDesktop::Pause(int milliseconds) {
    const BusyPointer busy;
    QEventLoop loop;
    After(milliseconds, &loop, [&loop] { loop.quit(); });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

// --- Other programs ---

void QtDesktop::OpenHelp(const std::string& path) {
    if (!help_) {
        help_ = std::make_unique<HelpWindow>(paths_.ToRead(path));
        QObject::connect(help_.get(), &HelpWindow::News, new Announcer(help_.get()), &Announcer::Say);
    }
    help_->Present();
}

void QtDesktop::Run(const std::string& commandLine) { zarpel::Run(commandLine, paths_); }

}  // namespace zarpel
