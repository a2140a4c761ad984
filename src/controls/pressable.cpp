// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/pressable.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>

namespace orvalis {

namespace {

/// A pressable control as assistive programs see it.
class PressableAccessible final : public QAccessibleWidget {
public:
    PressableAccessible(QWidget* widget, Pressable* pressable)
        : QAccessibleWidget(widget)
        , m_pressable(pressable) {}

    QAccessible::Role role() const override {
        if (isButton())
            return QAccessible::Button;
        const auto* label = qobject_cast<const QLabel*>(widget());
        return label && label->text().isEmpty() ? QAccessible::Graphic : QAccessible::StaticText;
    }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name && isValid())
            return m_pressable->spokenName();
        return QAccessibleWidget::text(kind);
    }

    QStringList actionNames() const override {
        QStringList names;
        if (isButton() && widget()->isEnabled())
            names << pressAction();
        return names + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (name != pressAction())
            QAccessibleWidget::doAction(name);
        else if (isButton() && widget()->isEnabled())
            m_pressable->press();
    }

private:
    bool isButton() const { return isValid() && m_pressable->isPressable(); }

    Pressable* m_pressable;
};

QAccessibleInterface* pressableInterface(const QString&, QObject* object) {
    auto* pressable = dynamic_cast<Pressable*>(object);
    auto* widget = qobject_cast<QWidget*>(object);
    return pressable && widget ? new PressableAccessible(widget, pressable) : nullptr;
}

} // namespace

Pressable::Pressable() {
    static const bool known = [] {
        QAccessible::installFactory(pressableInterface);
        return true;
    }();
    Q_UNUSED(known)
}

} // namespace orvalis
