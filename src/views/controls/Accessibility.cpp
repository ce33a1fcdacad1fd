// SPDX-License-Identifier: GPL-3.0-or-later
#include "Accessibility.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QTimer>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr const char* roleProperty = "accessibleRole";
constexpr const char* menuProperty = "accessibleMenu";

QVariant roleOf(const QObject& object)
{
    return object.property(roleProperty);
}

class WidgetInterface : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    // It may change.
    [[nodiscard]] QAccessible::Role role() const override { return roleOf(*widget()).value<QAccessible::Role>(); }

    // Qt leaves popups out of the windows of the application, so each is a child of the window that it belongs to.
    [[nodiscard]] QAccessibleInterface* parent() const override
    {
        return isPopup(widget()) ? QAccessible::queryAccessibleInterface(widget()->parentWidget()->window())
                                 : QAccessibleWidget::parent();
    }

    [[nodiscard]] int childCount() const override
    {
        return QAccessibleWidget::childCount() + static_cast<int>(popups().size());
    }

    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        const int others = QAccessibleWidget::childCount();
        return index < others ? QAccessibleWidget::child(index)
                              : QAccessible::queryAccessibleInterface(popups().value(index - others));
    }

    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto place = child == nullptr ? -1 : popups().indexOf(child->object());
        return place < 0 ? QAccessibleWidget::indexOfChild(child)
                         : QAccessibleWidget::childCount() + static_cast<int>(place);
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (!widget()->isEnabled())
            return names;
        if (widget()->property(menuProperty).toBool())
            names.prepend(showMenuAction());
        if (button() != nullptr || role() == QAccessible::PushButton)
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        if (!actionNames().contains(name))
            return;
        if (name == pressAction() && button() == nullptr) {
            QKeyEvent event(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier); // as a person would
            QCoreApplication::sendEvent(widget(), &event);
        } else if (name == pressAction()) {
            button()->click();
        } else if (name == showMenuAction()) {
            const QPoint place = widget()->rect().center();
            QContextMenuEvent event(QContextMenuEvent::Keyboard, place, widget()->mapToGlobal(place));
            QCoreApplication::sendEvent(widget(), &event);
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    static bool isPopup(const QWidget* widget) { return widget->windowType() == Qt::Popup; }

    [[nodiscard]] QWidgetList popups() const
    {
        QWidgetList shown = widget()->isWindow() ? widget()->findChildren<QWidget*>() : QWidgetList();
        shown.removeIf([](const QWidget* child) { return !isPopup(child) || child->isHidden(); });
        return shown;
    }

    [[nodiscard]] QAbstractButton* button() const { return qobject_cast<QAbstractButton*>(widget()); }
};

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
// Readers say a notification when it appears. This one is invisible.
class Notification : public QObject {
public:
    Notification(const QString& text, QObject* parent)
        : QObject(parent)
    {
        // Readers ask for the text when they come to it.
        constexpr auto lifetime = 10s;
        setObjectName(text);
        QTimer::singleShot(lifetime, this, &QObject::deleteLater);
    }
};

class NotificationInterface : public QAccessibleObject {
public:
    using QAccessibleObject::QAccessibleObject;

    // As a part of a dialog it would make readers repeat the dialog.
    [[nodiscard]] QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(qApp); }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Notification; }
    [[nodiscard]] QAccessible::State state() const override { return {}; }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? object()->objectName() : QString();
    }
};
#endif

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    const QVariant role = roleOf(*object);
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    if (dynamic_cast<Notification*>(object) != nullptr)
        return new NotificationInterface(object);
#endif
    return role.isValid() ? new WidgetInterface(static_cast<QWidget*>(object), role.value<QAccessible::Role>())
                          : nullptr;
}

class ShowAnnouncer : public QObject {
public:
    ShowAnnouncer(QWidget& widget, std::function<QString()> text)
        : QObject(&widget)
        , m_widget(widget)
        , m_text(std::move(text))
    {
        widget.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && !event->spontaneous())
            announce(m_widget, m_text());
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget& m_widget;
    std::function<QString()> m_text;
};

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role)
{
    widget.setProperty(roleProperty, QVariant::fromValue(role));
}

void setAccessibleMenuButton(QWidget& widget)
{
    setAccessibleRole(widget, QAccessible::PushButton);
    widget.setProperty(menuProperty, true);
}

void installAccessibleRoles()
{
    QAccessible::installFactory(makeInterface);
}

void announce(QWidget& about, const QString& text)
{
    if (!QAccessible::isActive())
        return;
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    QAccessibleEvent event(new Notification(text, &about), QAccessible::ObjectShow);
#else
    QAccessibleAnnouncementEvent event(&about, text);
#endif
    QAccessible::updateAccessibility(&event);
}

void announceNewName([[maybe_unused]] QWidget& widget)
{
    // Readers say a name when it changes, but these versions of Qt leave the name out of the event.
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    announce(widget, widget.accessibleName());
#endif
}

void announceWhenShown(QWidget& widget, std::function<QString()> text)
{
    new ShowAnnouncer(widget, std::move(text));
}
