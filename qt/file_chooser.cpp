#include "qt/file_chooser.h"

#include <QDir>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QRegularExpressionValidator>
#include <QSplitter>
#include <QTreeView>
#include <algorithm>

namespace zarpel {
namespace {

// From pairs of description and patterns, "Text(*.a)|*.a;*.b|...", to the toolkit's "Text(*.a) (*.a *.b)", of
// which it shows what stands before the last pair of brackets. Where programs have no ".exe", a list that
// begins with it begins with all files instead.
QStringList FiltersOf(const std::string& filter) {
    const QStringList parts = QString::fromStdString(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString patterns = QString(parts[i + 1]).replace(';', ' ').replace("*.*", "*");
        filters.push_back(QStringLiteral("%1 (%2)").arg(parts[i], patterns));
    }
    if (QDir::separator() == '/') {
        std::stable_partition(filters.begin(), filters.end(),
                              [](const QString& each) { return each.endsWith("(*)"); });
    }
    return filters;
}

// The places at the side with their whole names.
void WidenSideBar(const QFileDialog& chooser) {
    auto* const places = chooser.findChild<QListView*>(QStringLiteral("sidebar"));
    auto* const splitter = chooser.findChild<QSplitter*>();
    if (!places || !splitter) return;
    int width = 2 * places->frameWidth();
    for (int row = 0; row < places->model()->rowCount(); ++row) {
        width = std::max(width, places->sizeHintForIndex(places->model()->index(row, 0)).width() +
                                    2 * places->frameWidth());
    }
    places->setMinimumWidth(std::min(width, chooser.width() / 3));
    splitter->setSizes({width, chooser.width()});
}

// The toolkit writes what its list says of a file in the system's language, whatever the program's is.
class SpanishList : public QIdentityProxyModel {
  public:
    using QIdentityProxyModel::QIdentityProxyModel;

    QVariant data(const QModelIndex& index, int role) const override {
        constexpr int kType = 2, kDate = 3;  // columns
        const auto* const files = qobject_cast<QFileSystemModel*>(sourceModel());
        if (!files || role != Qt::DisplayRole) return QIdentityProxyModel::data(index, role);
        const QFileInfo file = files->fileInfo(mapToSource(index));
        if (index.column() == kType)
            return file.isDir() ? QStringLiteral("Carpeta") : QStringLiteral("Archivo");
        if (index.column() == kDate) return QLocale().toString(file.lastModified(), QLocale::ShortFormat);
        return QIdentityProxyModel::data(index, role);
    }
};

// In the field for the name the toolkit takes double quotes as marks around several names: another file would
// be opened or replaced than the one named.
void RefuseQuotes(const QFileDialog& chooser) {
    auto* const name = chooser.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (name) name->setValidator(new QRegularExpressionValidator(QRegularExpression("[^\"]*"), name));
}

bool AskFile(const Site& site, QFileDialog& chooser, const GamePaths& paths, ChooserState& dialog) {
    constexpr int kLetters = 90, kLines = 28;  // else large letters stand in a small window
    const QFontMetrics letters = chooser.fontMetrics();
    chooser.setOption(QFileDialog::DontUseNativeDialog);  // native ones speak the system's language
    chooser.setProxyModel(new SpanishList(&chooser));
    RefuseQuotes(chooser);
    chooser.setOption(QFileDialog::HideNameFilterDetails);
    chooser.setNameFilters(FiltersOf(dialog.Filter));
    chooser.setDefaultSuffix(QString::fromStdString(dialog.DefaultExt));
    const QFileInfo last(paths.ToRead(dialog.FileName));
    chooser.setDirectory(dialog.FileName.empty() ? QDir::homePath() : last.absolutePath());
    if (!dialog.FileName.empty()) chooser.selectFile(last.fileName());
    if (auto* const list = chooser.findChild<QTreeView*>()) list->header()->setStretchLastSection(true);
    chooser.resize(kLetters * letters.averageCharWidth(), kLines * letters.height());
    WidenSideBar(chooser);
    PlaceAt(site, chooser);
    if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty()) return false;
    dialog.FileName = paths.ForTheGame(chooser.selectedFiles().constFirst());
    return true;
}

}  // namespace

bool ShowOpen(const Site& site, const GamePaths& paths, ChooserState& dialog) {
    QFileDialog chooser(site.Owner, QStringLiteral("Abrir"));
    chooser.setFileMode(QFileDialog::ExistingFile);
    return AskFile(site, chooser, paths, dialog);
}

bool ShowSave(const Site& site, const GamePaths& paths, ChooserState& dialog) {
    QFileDialog chooser(site.Owner, QStringLiteral("Guardar"));
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    return AskFile(site, chooser, paths, dialog);
}

}  // namespace zarpel
