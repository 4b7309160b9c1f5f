// Tells a screen reader what has happened.
#pragma once

#include <QTimer>
#include <QWidget>

namespace zarpel {

// A widget of no size that nobody sees. A screen reader passes over a changed text of something that does not
// have the focus; it reads the name of a notification when that appears.
class Announcer : public QWidget {
  public:
    explicit Announcer(QWidget* window);

    // Says the text as soon as the window is active and its focus has settled: a screen reader drops what it
    // is saying when either changes. What has not been said by then is said with it.
    void Say(const QString& text);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void SayNow();

    QString text_;  // not said yet
    QTimer soon_;
};

}  // namespace zarpel
