#include "qt/dialogs.h"

#include <QCloseEvent>
#include <QColorDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <algorithm>
#include <array>

#include "qt/colors.h"
#include "qt/fonts.h"

namespace zarpel {
namespace {

// In the order of Icon.
constexpr std::array kIcons = {QMessageBox::NoIcon, QMessageBox::Critical, QMessageBox::Question,
                               QMessageBox::Warning, QMessageBox::Information};

// What a title needs to be read whole, in pixels: the desktop draws it, in its own letters, beside its
// buttons.
int TitleWidth(const QString& title) {
    constexpr int kLetters = 15, kButtons = 150;
    QFont font;
    font.setBold(true);
    font.setPixelSize(std::max(kLetters, font.pixelSize()));
    return QFontMetrics(font).horizontalAdvance(title) + kButtons;
}

// The text with words that are no wider than this, and with no more lines than fit into the height (pixels).
QString Bounded(const QString& text, const QFontMetrics& letters, const QSize& room) {
    QStringList lines = text.split('\n');
    for (QString& line : lines) {
        QStringList words = line.split(' ');
        for (QString& word : words) word = letters.elidedText(word, Qt::ElideMiddle, room.width());
        line = words.join(' ');
    }
    QString bounded = lines.join('\n');
    const QRect paper(0, 0, room.width(), QWIDGETSIZE_MAX);
    while (letters.boundingRect(paper, Qt::TextWordWrap, bounded).height() > room.height()) {
        bounded = bounded.left(bounded.size() / 2) + QStringLiteral("…");
    }
    return bounded;
}

// The beginning of the text that the label can show whole.
QString AsMuchAsFits(const QString& text, const Label& label) {
    constexpr int kMost = 100;  // more than any label has room for
    QString kept = text.left(kMost);
    while (!FitsWhole(kept, label)) kept.chop(kept.back().isLowSurrogate() ? 2 : 1);
    return kept;
}

class Box : public QMessageBox {
  public:
    Box(const Site& site, const Message& message, const QString& title)
        : QMessageBox(site.Owner), site_(site) {
        setTextFormat(Qt::PlainText);  // a nickname is no markup
        setWindowTitle(title);
        setIcon(kIcons.at(static_cast<std::size_t>(message.Icon)));
        SetLines(QString::fromStdString(message.Text));
        setStandardButtons(message.Buttons == BoxButtons::Ok ? Ok : Yes | No);
        if (message.Buttons == BoxButtons::Ok) return;
        setDefaultButton(message.Preselected == Answer::No ? No : Yes);
        mustAnswer_ = message.Preselected != Answer::No;
    }

  protected:
    void showEvent(QShowEvent* event) override {
        QMessageBox::showEvent(event);
        PlaceAt(site_, *this);
    }
    void closeEvent(QCloseEvent* event) override {
        if (!mustAnswer_) return QMessageBox::closeEvent(event);
        event->ignore();
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (!mustAnswer_ || event->key() != Qt::Key_Escape) QMessageBox::keyPressEvent(event);
    }

  private:
    // A box breaks its lines after so many pixels, whatever the size of the letters; a short text stays on
    // one line all the same. `kWidest` is what the toolkit gives the text of a box at most, beside the icon.
    void SetLines(const QString& text) {
        constexpr int kWidest = 700, kLetters = 50, kLargeScreen = 1024, kBesides = 480;
        constexpr double kOfBox = 0.7, kOfScreen = 0.5;
        const QSize room = screen()->availableSize();
        const int box = room.width() > kLargeScreen ? room.width() - kBesides : room.width();
        const int widest =
            std::min({int(box * kOfBox), kWidest, kLetters * fontMetrics().averageCharWidth()});
        setText(Bounded(text, fontMetrics(), {widest, int(room.height() * kOfScreen)}));
        auto* const label = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        if (!label) return;
        label->setMinimumWidth(
            std::max(std::min(label->sizeHint().width(), widest), TitleWidth(windowTitle())));
    }

    Site site_;
    bool mustAnswer_ = false;  // neither Escape nor the title bar's button answers for the player
};

}  // namespace

Answer Show(const Site& site, const Message& message, const std::string& applicationTitle) {
    Box box(site, message, QString::fromStdString(message.Title.empty() ? applicationTitle : message.Title));
    const int pressed = box.exec();
    if (message.Buttons == BoxButtons::Ok) return Answer::Ok;
    return pressed == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

std::string InputBox(const Site& site, const std::string& prompt, const std::string& title,
                     const std::string& proposed, const Label& shownBy) {
    QInputDialog box(site.Owner);
    box.setWindowTitle(QString::fromStdString(title));
    box.setLabelText(QString::fromStdString(prompt));
    box.setTextValue(QString::fromStdString(proposed));
    if (auto* const line = box.findChild<QLineEdit*>()) line->setMinimumWidth(TitleWidth(box.windowTitle()));
    QObject::connect(&box, &QInputDialog::textValueChanged, &box, [&box, &shownBy](const QString& typed) {
        const QString kept = AsMuchAsFits(typed, shownBy);
        if (kept != typed) box.setTextValue(kept);
    });
    box.adjustSize();
    PlaceAt(site, box);
    return box.exec() == QDialog::Accepted ? box.textValue().toStdString() : std::string();
}

bool ShowColor(const Site& site, ChooserState& dialog) {
    QColorDialog box(ColorOf(dialog.Color), site.Owner);
    box.setOption(QColorDialog::DontUseNativeDialog);  // native ones speak the system's language
    box.setWindowTitle(QStringLiteral("Color"));
    box.adjustSize();
    PlaceAt(site, box);
    if (box.exec() != QDialog::Accepted) return false;
    dialog.Color = CodeOf(box.selectedColor());
    return true;
}

}  // namespace zarpel
