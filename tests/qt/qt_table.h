// The game in a window of the toolkit, which paints into memory: real events go in, pixels and accessible
// names come out.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>

#include "qt/qt_desktop.h"
#include "tools/play/table.h"

namespace zarpel {

// Waits only when told to; the first dealer drawn is the computer, so that the human begins.
class QuickDesktop : public QtDesktop {
  public:
    using QtDesktop::QtDesktop;
    void Pause(int /*milliseconds*/) override { OnPause(); }
    double Rnd() override { return draws_++ == 0 ? 0 : QtDesktop::Rnd(); }

    std::function<void()> OnPause = [] {};

  private:
    int draws_ = 0;
};

class QtTable : public testing::Test {
  protected:
    QtTable();
    ~QtTable() override;

    FormWindow& Window() { return *Desktop.WindowOf(Game); }

    // The widget that draws a control, in any window.
    template <class ViewClass, class Model>
    static ViewClass& ViewOf(Model& control) {
        for (auto* const widget : QApplication::allWidgets()) {
            auto* const view = dynamic_cast<ViewClass*>(widget);
            if (view && &view->Control() == &control) return *view;
        }
        throw std::logic_error("no view");
    }

    // Where the middle of a picture's place stands in the window, shown or not.
    QPoint Middle(Image& image);
    QPoint BareTable() { return ViewOf<AreaView>(Game.Frame1).mapTo(&Window(), QPoint(5, 5)); }

    void Click(const QPoint& at) { QTest::mouseClick(Window().windowHandle(), Qt::LeftButton, {}, at); }
    void Key(Qt::Key key, quint32 scanCode = 0, Qt::KeyboardModifiers modifiers = {}, bool repeats = false);

    // What the player does in the next modal window; called while that is open.
    static void InBox(std::function<void(QWidget&)> action);

    // Something lies over the table, gliding or under the pointer.
    bool SomethingMoves();
    // Whether cards glide; they do not at first.
    static void LetMove(bool moves) { dynamic_cast<ScaledStyle&>(*QApplication::style()).LetMove(moves); }

    QTemporaryDir Folder;
    QuickDesktop Desktop{Folder.path().toStdString(), "Zarpel"};
    Playing Game{Desktop};
};

// A picture of one colour, and the colour that the table's test pictures have.
void WritePicture(const QString& path, const QColor& color);
QColor ColorOfCard(int carta);

}  // namespace zarpel
