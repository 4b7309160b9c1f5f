#include "qt/help/help_window.h"

#include <QAction>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "qt/help/help_browser.h"

namespace zarpel {
namespace {

constexpr QSize kUsualSize(1000, 760);  // pixels, as the pages were laid out, where there is room for it
constexpr int kContentsShare = 27;      // per cent of the width
constexpr int kPageRole = Qt::UserRole;

QUrl PageOf(const QTreeWidgetItem* item) { return item->data(0, kPageRole).toUrl(); }

// As long as the text, in small letters without accents: who looks for "raton" means "Ratón".
QString Folded(QString text) {
    for (QChar& letter : text) {
        const QString parts = letter.decomposition();
        letter = (parts.isEmpty() ? letter : parts.front()).toLower();
    }
    return text;
}

}  // namespace

HelpWindow::HelpWindow(const QString& file, QWidget* parent)
    : QWidget(parent, Qt::Window), path_(file), contents_(new QTreeWidget), page_(new HelpBrowser) {
    setAttribute(Qt::WA_QuitOnClose, false);
    contents_->setHeaderHidden(true);
    contents_->setAccessibleName(tr("Contenido de la ayuda"));
    contents_->setMinimumWidth(120);
    page_->setAccessibleName(tr("Página de la ayuda"));
    page_->setMinimumWidth(200);

    auto* const halves = new QSplitter;
    halves->addWidget(contents_);
    halves->addWidget(page_);
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tools_ = MakeToolBar());
    column->addWidget(halves, 1);
    column->addWidget(searchBar_ = MakeSearchBar());
    CloseSearch();

    connect(contents_, &QTreeWidget::currentItemChanged, this, &HelpWindow::FollowContents);
    connect(contents_, &QTreeWidget::itemActivated, this, &HelpWindow::FollowContents);
    connect(page_, &QTextBrowser::sourceChanged, this, &HelpWindow::MarkPage);
    connect(page_, &HelpBrowser::LinkReached, this,
            [this](const QString& text) { emit News(text + tr(", enlace")); });
    connect(MakeAction({}, {Qt::Key_Escape}, {}), &QAction::triggered, this, &HelpWindow::Leave);

    resize((kUsualSize * page_->Enlargement()).boundedTo(screen()->availableSize() * 95 / 100));
    halves->setSizes({width() * kContentsShare / 100, width() * (100 - kContentsShare) / 100});
}

QAction* HelpWindow::MakeAction(const QString& text, const QList<QKeySequence>& keys,
                                const QString& keyName) {
    auto* const action = new QAction(text, this);
    action->setShortcuts(keys);
    action->setShortcutVisibleInContextMenu(
        false);  // the toolkit would name the keys in the system's language
    action->setToolTip(QStringLiteral("%1 (%2)").arg(text, keyName));
    addAction(action);
    return action;
}

QToolBar* HelpWindow::MakeToolBar() {
    auto* const bar = new QToolBar;

    auto* const back = MakeAction(tr("Atrás"), {Qt::ALT | Qt::Key_Left, Qt::Key_Back}, tr("Alt+Izquierda"));
    auto* const forward =
        MakeAction(tr("Adelante"), {Qt::ALT | Qt::Key_Right, Qt::Key_Forward}, tr("Alt+Derecha"));
    auto* const first = MakeAction(tr("Inicio"), {Qt::ALT | Qt::Key_Home}, tr("Alt+Inicio"));
    auto* const find = MakeAction(tr("Buscar"), {Qt::CTRL | Qt::Key_F}, tr("Ctrl+F"));
    auto* const smaller = MakeAction(tr("Más pequeño"), {Qt::CTRL | Qt::Key_Minus}, tr("Ctrl+-"));
    auto* const larger =
        MakeAction(tr("Más grande"), {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, tr("Ctrl++"));
    auto* const normal = MakeAction(tr("Tamaño normal"), {Qt::CTRL | Qt::Key_0}, tr("Ctrl+0"));

    connect(back, &QAction::triggered, page_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, page_, &QTextBrowser::forward);
    connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(first, &QAction::triggered, this, [this] { page_->setSource(page_->File()->FirstPage()); });
    connect(find, &QAction::triggered, this, &HelpWindow::OpenSearch);
    connect(larger, &QAction::triggered, page_, [this] { page_->ZoomBy(1); });
    connect(smaller, &QAction::triggered, page_, [this] { page_->ZoomBy(-1); });
    connect(normal, &QAction::triggered, page_, [this] { page_->SetZoom(100); });

    bar->addActions({back, forward, first, find, smaller, larger});
    bar->insertSeparator(first);
    bar->insertSeparator(smaller);
    MakePageMenu({back, forward, larger, smaller, normal});
    return bar;
}

// In place of the toolkit's own menu, which would be in the system's language.
void HelpWindow::MakePageMenu(const QList<QAction*>& navigation) {
    auto* const copy = new QAction(tr("Copiar"), this);
    auto* const all = new QAction(tr("Seleccionar todo"), this);
    connect(copy, &QAction::triggered, page_, &QTextBrowser::copy);
    connect(all, &QAction::triggered, page_, &QTextBrowser::selectAll);
    connect(page_, &QTextBrowser::copyAvailable, copy, &QAction::setEnabled);
    copy->setEnabled(false);
    page_->setContextMenuPolicy(Qt::ActionsContextMenu);
    page_->addActions(navigation);
    page_->addActions({copy, all});
}

QWidget* HelpWindow::MakeSearchBar() {
    auto* const bar = new QWidget;
    searchText_ = new QLineEdit;
    searchText_->setAccessibleName(tr("Texto que se busca"));
    searchText_->setContextMenuPolicy(Qt::NoContextMenu);
    searchResult_ = new QLabel;
    auto* const label = new QLabel(tr("Buscar en la página:"));
    label->setBuddy(searchText_);

    auto* const next = MakeAction(tr("Siguiente"), {Qt::Key_F3}, tr("F3"));
    auto* const previous = MakeAction(tr("Anterior"), {Qt::SHIFT | Qt::Key_F3}, tr("Mayús+F3"));
    connect(next, &QAction::triggered, this, [this] { Search(false); });
    connect(previous, &QAction::triggered, this, [this] { Search(true); });
    connect(searchText_, &QLineEdit::returnPressed, this, [this] { Search(false); });

    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(8, 4, 8, 4);
    row->addWidget(label);
    row->addWidget(searchText_, 1);
    for (QAction* const action : {previous, next}) {
        auto* const button = new QToolButton;
        button->setDefaultAction(action);
        row->addWidget(button);
    }
    row->addWidget(searchResult_, 1);
    return bar;
}

void HelpWindow::Present() {
    Read();
    if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void HelpWindow::Read() {
    page_->SetFile(HelpFile::Open(path_));
    const bool readable = page_->File().has_value();
    tools_->setVisible(readable);
    contents_->setVisible(readable);
    for (QAction* const action : actions()) action->setEnabled(readable || action->text().isEmpty());
    FillContents();
    if (!readable) {
        ShowFailure();
        return;
    }
    const QString title = page_->File()->Title();
    setWindowTitle(title.isEmpty() ? tr("Ayuda") : title);
    page_->setSource(page_->File()->FirstPage());
    page_->setFocus();
}

void HelpWindow::FillContents() {
    const QSignalBlocker quiet(contents_);
    contents_->clear();
    if (!page_->File()) return;
    std::vector<QTreeWidgetItem*> branch{contents_->invisibleRootItem()};  // the last entry of each depth
    for (const HelpTopic& topic : page_->File()->Contents()) {
        const auto depth = std::min(static_cast<std::size_t>(topic.Depth), branch.size() - 1);
        branch.resize(depth + 1);
        auto* const item = new QTreeWidgetItem(branch.back(), {topic.Title});
        item->setData(0, kPageRole, topic.Page);
        branch.push_back(item);
    }
    contents_->expandAll();
}

void HelpWindow::ShowFailure() {
    const bool missing = !QFileInfo::exists(path_);
    const QString what = missing ? tr("No se encuentra el archivo de la ayuda:")
                                 : tr("El archivo de la ayuda está dañado y no se puede leer:");
    setWindowTitle(tr("Ayuda"));
    CloseSearch();
    page_->setHtml(QStringLiteral("<h2>%1</h2><p>%2</p><p><b>%3</b></p><p>%4</p>")
                       .arg(tr("La ayuda no está disponible"), what, path_.toHtmlEscaped(),
                            tr("Puede seguir jugando. Para recuperar la ayuda, reinstale el programa.")));
}

void HelpWindow::FollowContents() {
    const QTreeWidgetItem* const item = contents_->currentItem();
    if (item != nullptr && !PageOf(item).isEmpty()) page_->setSource(PageOf(item));
}

// Selects the entry of the page shown: the one with its anchor if there is one, else the page's own.
void HelpWindow::MarkPage(const QUrl& shown) {
    const QSignalBlocker quiet(contents_);
    QTreeWidgetItem* best = nullptr;
    for (QTreeWidgetItemIterator at(contents_); *at != nullptr; ++at) {
        const QUrl page = PageOf(*at);
        if (page == shown) best = *at;
        if (best == nullptr && page == shown.adjusted(QUrl::RemoveFragment)) best = *at;
    }
    if (best != nullptr) contents_->setCurrentItem(best);
}

void HelpWindow::OpenSearch() {
    searchBar_->show();
    searchText_->setFocus();
    searchText_->selectAll();
}

void HelpWindow::CloseSearch() {
    searchBar_->hide();
    searchResult_->clear();
}

void HelpWindow::Leave() {
    if (searchBar_->isVisible()) {
        CloseSearch();
        page_->setFocus();
    } else {
        close();
    }
}

void HelpWindow::Search(bool backwards) {
    if (searchText_->text().isEmpty()) {
        OpenSearch();
        return;
    }
    const QString text = Folded(page_->toPlainText());
    const QString wanted = Folded(searchText_->text());
    QTextCursor at = page_->textCursor();
    const auto start = at.selectionStart();
    qsizetype found = -1;
    if (!backwards) found = text.indexOf(wanted, at.selectionEnd());
    if (backwards && start > 0) found = text.lastIndexOf(wanted, start - 1);
    if (found < 0) found = backwards ? text.lastIndexOf(wanted) : text.indexOf(wanted);
    searchResult_->setText(found < 0 ? tr("No se encuentra en esta página") : QString());
    if (found < 0) return;
    at.setPosition(static_cast<int>(found));
    at.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, static_cast<int>(wanted.size()));
    page_->setTextCursor(at);
}

}  // namespace zarpel
