#include "qt/accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "qt/form_window.h"
#include "qt/motion.h"
#include "qt/views.h"

namespace zarpel {
namespace {

// A picture, or a label that can be clicked.
class AccessiblePressable : public QAccessibleWidget {
  public:
    AccessiblePressable(QWidget* widget, View& view, QAccessible::Role role)
        : QAccessibleWidget(widget, role), view_(view) {}

    QStringList actionNames() const override {
        return view_.Pressable() ? QStringList(pressAction()) : QStringList();
    }
    void doAction(const QString& name) override {
        if (name == pressAction() && view_.Pressable()) view_.Press();
    }

  private:
    View& view_;
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
    if (auto* const image = dynamic_cast<ImageView*>(object)) {
        return new AccessiblePressable(image, *image, QAccessible::Graphic);
    }
    if (auto* const label = dynamic_cast<LabelView*>(object); label && label->Pressable()) {
        return new AccessiblePressable(label, *label, QAccessible::Button);
    }
    if (auto* const area = dynamic_cast<AreaView*>(object)) return new AccessibleArea(area);
    if (auto* const client = dynamic_cast<ClientArea*>(object)) return new AccessibleArea(client);
    if (auto* const client = dynamic_cast<ClientArea*>(object->parent()); client && client->Table() == object)
        return new AccessibleArea(client->Table());
    return nullptr;
}

}  // namespace

void InstallAccessibility() { QAccessible::installFactory(Make); }

}  // namespace zarpel
