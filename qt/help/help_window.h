// The window of the player's guide: contents tree, page, search. It blocks nothing and does not keep the
// program running.
#pragma once

#include <QWidget>

class QAction;
class QLabel;
class QLineEdit;
class QToolBar;
class QTreeWidget;

namespace zarpel {

class HelpBrowser;

class HelpWindow : public QWidget {
    Q_OBJECT

  public:
    // A window for the help file at the path `file`, not shown yet.
    explicit HelpWindow(const QString& file, QWidget* parent = nullptr);

    // Reads the file again and shows its first page, in front of the other windows. When the file is missing
    // or damaged the window says so, and nothing else happens.
    void Present();

  signals:
    // What a screen reader is to say, since it does not notice: the keys have come to a link.
    void News(const QString& text);

  private:
    QToolBar* MakeToolBar();
    void MakePageMenu(const QList<QAction*>& navigation);
    QWidget* MakeSearchBar();
    QAction* MakeAction(const QString& text, const QList<QKeySequence>& keys, const QString& keyName);
    void Read();
    void FillContents();
    void ShowFailure();
    void FollowContents();
    void MarkPage(const QUrl& shown);
    void OpenSearch();
    void CloseSearch();
    void Leave();
    void Search(bool backwards);

    QString path_;
    QTreeWidget* contents_;
    HelpBrowser* page_;
    QToolBar* tools_ = nullptr;
    QWidget* searchBar_ = nullptr;
    QLineEdit* searchText_ = nullptr;
    QLabel* searchResult_ = nullptr;
};

}  // namespace zarpel
