#include "qt/dialogs.h"

#include <QColorDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <array>

#include "qt/colors.h"

namespace zarpel {
namespace {

// In the order of Icon.
constexpr std::array kIcons = {QMessageBox::NoIcon, QMessageBox::Critical, QMessageBox::Question,
                               QMessageBox::Warning, QMessageBox::Information};

// A box breaks its lines after so many pixels, whatever the size of the letters; a short text stays on one
// line all the same. `kWidest` is what fits beside the icon into the largest box that the toolkit makes.
void KeepLines(QMessageBox& box) {
    constexpr int kWidest = 700, kLetters = 50;
    auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (!label) return;
    const int letters = kLetters * box.fontMetrics().averageCharWidth();
    label->setMinimumWidth(std::min({label->sizeHint().width(), letters, kWidest}));
}

}  // namespace

Answer Show(QWidget* owner, const Message& message, const std::string& applicationTitle) {
    QMessageBox box(owner);
    box.setTextFormat(Qt::PlainText);  // a nickname is no markup
    box.setText(QString::fromStdString(message.Text));
    box.setWindowTitle(QString::fromStdString(message.Title.empty() ? applicationTitle : message.Title));
    box.setIcon(kIcons.at(static_cast<std::size_t>(message.Icon)));
    KeepLines(box);
    if (message.Buttons == BoxButtons::Ok) {
        box.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
        box.exec();
        return Answer::Ok;
    }
    QPushButton* const yes = box.addButton(QStringLiteral("Sí"), QMessageBox::YesRole);
    QPushButton* const no = box.addButton(QStringLiteral("No"), QMessageBox::NoRole);
    box.setDefaultButton(message.Preselected == Answer::No ? no : yes);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes ? Answer::Yes : Answer::No;
}

std::string InputBox(QWidget* owner, const std::string& prompt, const std::string& title,
                     const std::string& proposed) {
    QInputDialog box(owner);
    box.setWindowTitle(QString::fromStdString(title));
    box.setLabelText(QString::fromStdString(prompt));
    box.setTextValue(QString::fromStdString(proposed));
    box.setOkButtonText(QStringLiteral("Aceptar"));
    box.setCancelButtonText(QStringLiteral("Cancelar"));
    return box.exec() == QDialog::Accepted ? box.textValue().toStdString() : std::string();
}

bool ShowColor(QWidget* owner, ChooserState& dialog) {
    const QColor chosen = QColorDialog::getColor(ColorOf(dialog.Color), owner, QStringLiteral("Color"),
                                                 QColorDialog::DontUseNativeDialog);
    if (!chosen.isValid()) return false;
    dialog.Color = CodeOf(chosen);
    return true;
}

}  // namespace zarpel
