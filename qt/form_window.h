// The window on the screen that shows one form of the game.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "platform/form.h"
#include "qt/announcer.h"
#include "qt/placing.h"
#include "qt/views.h"

namespace zarpel {

// The form's client area: its background, what the pointer does there, and the table, on which the form's
// controls lie. The table is always whole, and in the middle.
class ClientArea : public QWidget {
  public:
    ClientArea(Form& form, const ViewContext& context, QWidget* parent);

    QWidget* Table() const { return table_; }
    // Gives the table its size and place, and what is docked to an edge.
    void Arrange();

  protected:
    void paintEvent(QPaintEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void resizeEvent(QResizeEvent*) override { Arrange(); }

  private:
    Form& form_;
    const ViewContext& context_;
    QWidget* table_;
};

class FormWindow : public QWidget {
  public:
    // An empty window, not shown yet. `owner` is the window above which a dialog stands, or null.
    FormWindow(Form& form, const ViewContext& context, QWidget* owner);
    ~FormWindow() override;

    // Makes the widgets of the form's controls. The window can be on its way to the screen meanwhile.
    void Fill();
    // Called when the room that the form has on the screen becomes known, and whenever it changes. Nothing is
    // painted before the first call.
    std::function<void()> Fit;
    // Called when the desktop's theme has changed.
    std::function<void()> Themed;

    // Brings every widget into step with its control; needed when the scale has changed. A dialog gets the
    // size of its form.
    void Sync();
    // Gives a dialog its place.
    void PlaceDialog();

    // Gives the focus to the default button, or else to the first control that takes it and is no picture.
    void FocusFirst();

    // Tells a screen reader what has happened.
    void Announce(const QString& text) { announcer_->Say(text); }

    // Where boxes and choosers stand: over the part of the form that it keeps for them, or over all of it.
    Site BoxSite();
    Site Middle();

    // Size of the client area, with the menu bar in its present font.
    QSize ClientSize() const;
    // The form's own size, in twips.
    QSize FormSize() const { return {form_.Width, form_.Height}; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void moveEvent(QMoveEvent*) override { moved_.start(); }
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

  private:
    void AddMenus();
    void FitNow();
    QRect OnScreen(const Place& place) const;

    Form& form_;
    ViewContext context_;  // the views refer to it
    ClientArea* client_;
    Announcer* announcer_;
    QTimer moved_;              // runs out when the window has come to rest
    std::vector<View*> views_;  // children of the window, which owns them
};

}  // namespace zarpel
