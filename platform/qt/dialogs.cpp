#include "platform/qt/dialogs.h"

#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <algorithm>

#include "platform/qt/colors.h"
#include "platform/qt/files.h"

namespace zarpel {
namespace {

QMessageBox::Icon IconOf(Icon icon) {
    switch (icon) {
        case Icon::Critical:
            return QMessageBox::Critical;
        case Icon::Question:
            return QMessageBox::Question;
        case Icon::Exclamation:
            return QMessageBox::Warning;
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

// From pairs of description and patterns, "Text(*.a)|*.a;*.b|...", to the toolkit's "Text (*.a *.b)".
QStringList FiltersOf(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString text = parts[i].section('(', 0, 0).trimmed();
        const QString patterns = QString(parts[i + 1]).replace(';', ' ').replace("*.*", "*");
        filters.push_back(QStringLiteral("%1 (%2)").arg(text, patterns).trimmed());
    }
    return filters;
}

// Where "/" divides a path, the toolkit takes "\\" for a letter, but the game opens it as "/": the chooser
// would ask about another file than the one replaced.
void RefuseBackslash(const QFileDialog& chooser) {
    static const QRegularExpressionValidator noBackslash(QRegularExpression(R"([^\\]*)"));
    auto* const name = chooser.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (name && QDir::separator() == '/') name->setValidator(&noBackslash);
}

bool AskFile(QFileDialog& chooser, CommonDialog& dialog) {
    chooser.setOption(QFileDialog::DontUseNativeDialog);  // native ones speak the system's language
    RefuseBackslash(chooser);
    chooser.setNameFilters(FiltersOf(dialog.Filter));
    chooser.setDefaultSuffix(QString::fromStdString(dialog.DefaultExt));
    const QFileInfo last(SystemPath(dialog.FileName));
    chooser.setDirectory(dialog.FileName.empty() ? QDir::homePath() : last.absolutePath());
    if (!dialog.FileName.empty()) chooser.selectFile(last.fileName());
    if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty()) return false;
    dialog.FileName = QDir::toNativeSeparators(chooser.selectedFiles().constFirst()).toStdString();
    return true;
}

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

Answer ShowMessage(QWidget* owner, const Message& message, const std::string& applicationTitle) {
    QMessageBox box(owner);
    box.setTextFormat(Qt::PlainText);  // a nickname is no markup
    box.setText(QString::fromStdString(message.Text));
    box.setWindowTitle(QString::fromStdString(message.Title.empty() ? applicationTitle : message.Title));
    box.setIcon(IconOf(message.Icon));
    KeepLines(box);
    if (message.Buttons == Buttons::Ok) {
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

std::string AskText(QWidget* owner, const std::string& prompt, const std::string& title,
                    const std::string& proposed) {
    QInputDialog box(owner);
    box.setWindowTitle(QString::fromStdString(title));
    box.setLabelText(QString::fromStdString(prompt));
    box.setTextValue(QString::fromStdString(proposed));
    box.setOkButtonText(QStringLiteral("Aceptar"));
    box.setCancelButtonText(QStringLiteral("Cancelar"));
    return box.exec() == QDialog::Accepted ? box.textValue().toStdString() : std::string();
}

bool AskFileToOpen(QWidget* owner, CommonDialog& dialog) {
    QFileDialog chooser(owner, QStringLiteral("Abrir"));
    chooser.setFileMode(QFileDialog::ExistingFile);
    return AskFile(chooser, dialog);
}

bool AskFileToSave(QWidget* owner, CommonDialog& dialog) {
    QFileDialog chooser(owner, QStringLiteral("Guardar"));
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    return AskFile(chooser, dialog);
}

bool AskColor(QWidget* owner, CommonDialog& dialog) {
    QColorDialog chooser(ColorOf(dialog.Color), owner);
    chooser.setWindowTitle(QStringLiteral("Color"));
    chooser.setOption(QColorDialog::DontUseNativeDialog);
    if (chooser.exec() != QDialog::Accepted) return false;
    dialog.Color = CodeOf(chooser.selectedColor());
    return true;
}

}  // namespace zarpel
