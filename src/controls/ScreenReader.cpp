#include "controls/ScreenReader.h"

#include <QAbstractItemView>
#include <QAccessibleApplication>
#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QTimer>
#include <QWindow>

namespace penwright {
namespace {

constexpr const char *kRole = "screenReaderRole";

/// The program with all its windows, embedded ones first.
class Program : public QAccessibleApplication {
public:
    int childCount() const override
    {
        return static_cast<int>(embedded().size()) + QAccessibleApplication::childCount();
    }

    QAccessibleInterface *child(int index) const override
    {
        const QWidgetList own = embedded();
        const int count = static_cast<int>(own.size());
        return index >= 0 && index < count ? QAccessible::queryAccessibleInterface(own.at(index))
                                           : QAccessibleApplication::child(index - count);
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        const QWidgetList own = embedded();
        const auto index = static_cast<int>(own.indexOf(qobject_cast<QWidget *>(child->object())));
        if (index >= 0)
            return index;
        const int other = QAccessibleApplication::indexOfChild(child);
        return other >= 0 ? static_cast<int>(own.size()) + other : other;
    }

private:
    static QWidgetList embedded()
    {
        QWidgetList found;
        for (QWidget *window : QApplication::topLevelWidgets())
            if (const QWindow *handle = window->windowHandle(); handle && handle->parent())
                found.append(window);
        return found;
    }
};

/// Asked for each class of an object, the most derived one first.
QAccessibleInterface *answer(const QString &className, QObject *object)
{
    if (className == QLatin1String("QApplication"))
        return new Program;
    if (className == QLatin1String("QFrame") && object->metaObject()->className() == className)
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Grouping);
    const QVariant role = object ? object->property(kRole) : QVariant();
    if (!role.isValid() || !object->isWidgetType())
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget *>(object), static_cast<QAccessible::Role>(role.toInt()));
}

void tellFocus(QWidget &widget)
{
    QAccessibleEvent event(&widget, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

/// Tells what has the focus once a list or menu that hung over its window is gone: a popup takes the keyboard from
/// another program's window around that one too, which is told as active when it comes back.
class FocusAfterPopup : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Hide && object->isWidgetType())
            if (const auto &closed = static_cast<QWidget &>(*object); closed.windowType() == Qt::Popup)
                if (QWidget *window = QApplication::activeWindow())
                    tellFocusSoon(*window);
        return false;
    }
};

/// Lets nothing be told of the text of a box that is about to get the focus before the box itself is told.
class FocusFirst : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() != QEvent::FocusIn || !QAccessible::isActive() || isHolding)
            return false;
        const auto reason = static_cast<QFocusEvent *>(event)->reason();
        const bool isMarked = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
        if (!isMarked || !qobject_cast<QLineEdit *>(object))
            return false;
        isHolding = true;
        othersHandler = QAccessible::installUpdateHandler(untilFocus);
        QMetaObject::invokeMethod(this, letGo, Qt::QueuedConnection);
        return false;
    }

private:
    static void untilFocus(QAccessibleEvent *event)
    {
        if (event->type() == QAccessible::TextCaretMoved || event->type() == QAccessible::TextSelectionChanged)
            return;
        letGo();
        QAccessible::updateAccessibility(event);
    }

    static void letGo()
    {
        if (isHolding)
            QAccessible::installUpdateHandler(othersHandler);
        isHolding = false;
    }

    static inline bool isHolding = false;
    static inline QAccessible::UpdateHandler othersHandler = nullptr;
};

bool install()
{
    QAccessible::installFactory(answer);
    qApp->installEventFilter(new FocusFirst(qApp));
    qApp->installEventFilter(new FocusAfterPopup(qApp));
    return true;
}

/// Whether there is a current item in a view that has the focus.
bool tellItemWithFocus(QAbstractItemView &view)
{
    const QModelIndex current = view.currentIndex();
    QAccessibleTableInterface *table = QAccessible::queryAccessibleInterface(&view)->tableInterface();
    if (!current.isValid() || !view.hasFocus() || !table)
        return false;
    QAccessibleEvent event(table->cellAt(current.row(), current.column()), QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
    return true;
}

}  // namespace

void setScreenReaderRole(QWidget &widget, QAccessible::Role role)
{
    static const bool isInstalled = install();
    static_cast<void>(isInstalled);
    widget.setProperty(kRole, static_cast<int>(role));
}

void describe(QWidget &widget, const QString &description)
{
    if (widget.accessibleDescription() != description)
        widget.setAccessibleDescription(description);
}

void tellCurrentItem(QAbstractItemView &view)
{
    if (!QAccessible::isActive())
        return;
    // The view itself is told once it has taken the focus.
    QMetaObject::invokeMethod(
        &view, [&view] { tellItemWithFocus(view); }, Qt::QueuedConnection);
}

void tellChosenItem(QComboBox &list)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleInterface *items = QAccessible::queryAccessibleInterface(list.view());
    QAccessibleTableInterface *table = items ? items->tableInterface() : nullptr;
    QAccessibleInterface *item = table ? table->cellAt(list.currentIndex(), list.modelColumn()) : nullptr;
    if (!item)
        return;
    QAccessibleEvent event(item, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void tellFocusSoon(QWidget &window)
{
    constexpr auto kOthersTime = std::chrono::milliseconds(300);
    if (!QAccessible::isActive())
        return;
    QTimer::singleShot(kOthersTime, &window, [&window] {
        QWidget *field = window.focusWidget();
        if (!field || !window.isActiveWindow() || QApplication::activePopupWidget() ||
            QApplication::activeModalWidget())
            return;
        auto *view = qobject_cast<QAbstractItemView *>(field);
        if (view && tellItemWithFocus(*view))
            return;
        tellFocus(*field);
    });
}

}  // namespace penwright
