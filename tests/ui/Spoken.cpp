// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/ui/Spoken.h"

#include <QAccessible>
#include <QLabel>
#include <QProgressBar>
#include <QStringList>
#include <QTableView>
#include <QWidget>

namespace
{

void check(QAccessibleInterface *interface, const QString &what, QStringList *result)
{
    const QString name = interface ? interface->text(QAccessible::Name) : QString();
    const QString description = interface ? interface->text(QAccessible::Description) : QString();
    const QString both = name + description;
    if (name.trimmed().isEmpty() || both.contains(QLatin1String("</"))
        || both.contains(QLatin1String("<b")) || both.contains(QLatin1String("&amp;"))) {
        result->append(QStringLiteral("%1: '%2', '%3'").arg(what, name, description));
    }
}

void checkTable(QTableView *view, QStringList *result)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(view);
    for (int i = 0; i < interface->childCount(); ++i) {
        QAccessibleInterface *child = interface->child(i);
        const QAccessible::Role role = child->role();
        const bool isShown = !child->state().invisible;
        if (isShown
            && (role == QAccessible::Cell || role == QAccessible::ColumnHeader
                || role == QAccessible::CheckBox || role == QAccessible::RadioButton)) {
            check(child, QStringLiteral("cell %1").arg(i), result);
        }
    }
}

} // namespace

QString unspoken(const QWidget &root)
{
    QStringList result;
    const QList<QWidget *> widgets = root.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        // A label without a text decorates the one beside it.
        const auto *label = qobject_cast<QLabel *>(widget);
        const bool speaks = widget->focusPolicy() != Qt::NoFocus
            || (label && !label->text().isEmpty()) || qobject_cast<QProgressBar *>(widget);
        if (!speaks || !widget->isVisibleTo(&root)) {
            continue;
        }
        check(QAccessible::queryAccessibleInterface(widget),
              QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ')
                  + widget->objectName(),
              &result);
        if (auto *view = qobject_cast<QTableView *>(widget)) {
            checkTable(view, &result);
        }
    }
    return result.join(QLatin1Char('\n'));
}
