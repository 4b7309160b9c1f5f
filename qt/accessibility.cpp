#include "qt/accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "qt/announcer.h"
#include "qt/form_window.h"
#include "qt/motion.h"
#include "qt/views.h"

namespace zarpel {
namespace {

// What can be clicked: a picture, or a label.
class AccessiblePressable : public QAccessibleWidget {
  public:
    AccessiblePressable(QWidget* widget, View& view, QAccessible::Role role)
        : QAccessibleWidget(widget, role), view_(view) {}

    // The toolkit takes a tooltip for a description: a card's says less than its name, and a label's can be
    // markup.
    QString text(QAccessible::Text which) const override {
        if (which == QAccessible::Description) return widget()->accessibleDescription();
        return QAccessibleWidget::text(which);
    }
    QStringList actionNames() const override {
        return view_.Pressable() ? QStringList(pressAction()) : QStringList();
    }
    void doAction(const QString& name) override {
        if (name == pressAction() && view_.Pressable()) view_.Press();
    }

  private:
    View& view_;
};

class AccessibleImage : public AccessiblePressable {
  public:
    explicit AccessibleImage(ImageView& image)
        : AccessiblePressable(&image, image, QAccessible::Graphic), image_(image) {}

    QAccessible::Role role() const override {
        return image_.Selected() ? QAccessible::CheckBox : QAccessible::Graphic;
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = image_.Selected().has_value();
        state.checked = image_.Selected().value_or(false);
        return state;
    }

  private:
    ImageView& image_;
};

class AccessibleLabel : public AccessiblePressable {
  public:
    explicit AccessibleLabel(LabelView& label)
        : AccessiblePressable(&label, label,
                              label.Pressable() ? QAccessible::Button : QAccessible::StaticText),
          label_(label) {}

    QString text(QAccessible::Text which) const override {
        const QString text = AccessiblePressable::text(which);
        return which == QAccessible::Name && text.isEmpty() ? label_.text() : text;
    }

  private:
    LabelView& label_;
};

// A widget whose hidden children are not there at all. By default they would be found, only marked as hidden.
class AccessibleArea : public QAccessibleWidget {
  public:
    explicit AccessibleArea(QWidget* area) : QAccessibleWidget(area, QAccessible::Grouping) {}

    int childCount() const override { return static_cast<int>(Shown().size()); }
    QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(Shown().value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(Shown().indexOf(qobject_cast<QWidget*>(child->object())));
    }

  private:
    // Ornaments without words (lines) are left out as well.
    QList<QWidget*> Shown() const {
        QList<QWidget*> shown;
        for (auto* const child : widget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (!child->isHidden() && !dynamic_cast<LineView*>(child) && !dynamic_cast<Motion*>(child))
                shown.push_back(child);
        }
        return shown;
    }
};

QAccessibleInterface* Make(const QString& /*className*/, QObject* object) {
    if (auto* const image = dynamic_cast<ImageView*>(object)) return new AccessibleImage(*image);
    if (auto* const label = dynamic_cast<LabelView*>(object)) return new AccessibleLabel(*label);
    if (auto* const announcer = dynamic_cast<Announcer*>(object)) {
        return new QAccessibleWidget(announcer, QAccessible::Notification);
    }
    if (auto* const area = dynamic_cast<AreaView*>(object)) return new AccessibleArea(area);
    if (auto* const whole = dynamic_cast<ClientArea*>(object)) return new AccessibleArea(whole);
    auto* const client = object ? dynamic_cast<ClientArea*>(object->parent()) : nullptr;
    if (client && client->Table() == object) return new AccessibleArea(client->Table());
    if (auto* const window = dynamic_cast<FormWindow*>(object);
        window && window->windowType() == Qt::Dialog) {
        return new QAccessibleWidget(window, QAccessible::Dialog);
    }
    return nullptr;
}

}  // namespace

void InstallAccessibility() { QAccessible::installFactory(Make); }

}  // namespace zarpel
