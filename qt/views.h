// One widget for each kind of control. A view draws its control, follows its changes, and hands the player's
// actions over as the control's events.
#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <functional>
#include <optional>
#include <vector>

#include "platform/controls.h"
#include "platform/event_gate.h"
#include "qt/pictures.h"
#include "qt/scale.h"

namespace zarpel {

class Motion;

// What all views of a window share.
struct ViewContext {
    const TableScale& Scale;
    PictureStore& Pictures;
    EventGate& Gate;
    Motion* Moves = nullptr;  // the window's, which sets it
};

class View {
  public:
    View() = default;
    virtual ~View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    // Brings the widget into step with its control.
    virtual void Sync() = 0;
    // From now on, every change of the control calls Sync. Not from the beginning: before the window's size
    // is known, its controls would be laid out for nothing.
    virtual void Follow() = 0;
    // The place of its control.
    virtual Place Where() const = 0;

    // A view that can be pressed takes Press for a click of the pointer.
    virtual bool Pressable() const { return false; }
    virtual void Press() {}
    // The release of the pointer will not come: a card that was dragged goes back to its place.
    virtual void LetGo() {}
};

// A view is one of these with its widget class: it takes place, visibility, enabled state and tooltip from
// the control, and may follow its changes until it is destroyed.
template <class Widget, class Model>
class ControlView : public Widget, public View {
  public:
    ControlView(Model& control, const ViewContext& context, QWidget* parent)
        : Widget(parent), control_(control), context_(context) {
        // What the pointer does on a control is not meant for the background below it.
        this->setAttribute(Qt::WA_NoMousePropagation);
        saying_.setSingleShot(true);
        saying_.callOnTimeout(this, [this] { Say(); });
    }
    ~ControlView() override { control_.Changed = nullptr; }

    void Sync() override {
        this->setGeometry(context_.Scale.Pixels(PlaceOf(control_)));
        this->setEnabled(control_.Enabled);
        this->setToolTip(QString::fromStdString(control_.ToolTip));
        this->setVisible(Shown());
    }

    void Follow() override {
        control_.Changed = [this] { Sync(); };
    }

    Place Where() const override { return PlaceOf(control_); }

    Model& Control() const { return control_; }

  protected:
    virtual bool Shown() const { return control_.Visible; }

    // Tells a screen reader, by Say, what the control says when the event loop goes on. Not at each change:
    // while the computer thinks, there are hundreds, of cards that it tries.
    void SayLater() { saying_.start(); }
    virtual void Say() {}

    // Hands an event over. A control without a handler has no such event.
    void Raise(const std::function<void()>& handler) {
        if (handler) context_.Gate.Pass(handler);
    }

    Model& control_;
    const ViewContext& context_;

  private:
    QTimer saying_;
};

class AreaView;

// A picture: a card, its back, an ornament.
class ImageView : public ControlView<QWidget, Image> {
  public:
    ImageView(Image& image, const ViewContext& context, QWidget* parent);

    void Sync() override;
    // The view of a picture that this one covers while it is shown.
    void Covers(ImageView& covered);
    // What a player sees in its place: the cover, if there is one.
    Look Seen() const;
    // Draws the picture, or what covers it, again.
    void Redraw();
    bool Pressable() const override { return control_.Click && control_.Enabled; }
    void Press() override { Raise(control_.Click); }
    // Nothing: what it shows cannot be selected.
    std::optional<bool> Selected() const { return selected_; }
    void LetGo() override;

  protected:
    bool Shown() const override;
    void hideEvent(QHideEvent*) override { LetGo(); }
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void Say() override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;

  private:
    Look LookNow() const;
    bool DrawnElsewhere() const;
    void PaintFocus(QPainter& painter) const;
    AreaView* AreaAt(const QPoint& global) const;

    std::vector<ImageView*> covered_;
    ImageView* cover_ = nullptr;
    std::optional<bool> selected_;
    bool pressed_ = false;
    bool dragged_ = false;
    QPoint pressedAt_;
};

class LabelView : public ControlView<QLabel, Label> {
  public:
    LabelView(Label& label, const ViewContext& context, QWidget* parent);
    void Sync() override;
    // What is seen around the letters.
    void StandsOn(const Container& ground) { ground_ = &ground; }
    bool Pressable() const override { return control_.Click != nullptr; }
    void Press() override { Raise(control_.Click); }

  protected:
    void paintEvent(QPaintEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void Say() override;

  private:
    QRect Room(const QFont& font) const;
    void Write(QPainter& painter, const QPoint& offset) const;

    const Container* ground_ = nullptr;
    QString drawn_;  // the caption, or as much of it as there is room for
};

class ButtonView : public ControlView<QPushButton, Button> {
  public:
    ButtonView(Button& button, const ViewContext& context, QWidget* parent);
    void Sync() override;

  protected:
    bool focusNextPrevChild(bool next) override;
    // Who clicks twice means one click: the second would find what the first has changed.
    void mouseDoubleClickEvent(QMouseEvent*) override {}

  private:
    bool syncing_ = false;
};

// A frame without border: a plain area.
class AreaView : public ControlView<QWidget, Frame> {
  public:
    AreaView(Frame& frame, const ViewContext& context, QWidget* parent);
    void Sync() override;
    void Dropped(Image& source);
    // Where a picture that is dropped now would lie, or null.
    const Image* DropPlace() const { return control_.DropPlace ? control_.DropPlace() : nullptr; }

  protected:
    void paintEvent(QPaintEvent*) override;
};

class FrameView : public ControlView<QGroupBox, Frame> {
  public:
    FrameView(Frame& frame, const ViewContext& context, QWidget* parent);
    void Sync() override;

  protected:
    void paintEvent(QPaintEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
};

class LineView : public ControlView<QWidget, Line> {
  public:
    LineView(Line& line, const ViewContext& context, QWidget* parent);
    void Sync() override;

  protected:
    void paintEvent(QPaintEvent*) override;
};

class ToolBarView : public ControlView<QWidget, ToolBar> {
  public:
    ToolBarView(ToolBar& bar, const ViewContext& context, QWidget* parent);
    void Sync() override;

  private:
    std::vector<QToolButton*> buttons_;
};

class StatusBarView : public ControlView<QWidget, StatusBar> {
  public:
    StatusBarView(StatusBar& bar, const ViewContext& context, QWidget* parent);
    void Sync() override;

  private:
    void ShowClock();

    std::vector<QLabel*> panels_;
    QTimer clock_;
};

class TabStripView : public ControlView<QTabWidget, TabStrip> {
  public:
    TabStripView(TabStrip& strip, const ViewContext& context, QWidget* parent);
    void Sync() override;
};

}  // namespace zarpel
