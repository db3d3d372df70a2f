// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/ScreenWindow.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

std::unique_ptr<QQuickItem> showScreen(QQmlEngine &engine, QQuickWindow &window, const QString &view, const QSize &size)
{
    window.resize(size);
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/qml/") + view + QStringLiteral(".qml")));
    std::unique_ptr<QQuickItem> screen(qobject_cast<QQuickItem *>(component.create()));
    if (!screen) {
        qWarning("%s", qPrintable(component.errorString()));
        return nullptr;
    }
    screen->setParentItem(window.contentItem());
    screen->setSize(window.size());
    window.show();
    return QTest::qWaitForWindowExposed(&window) ? std::move(screen) : nullptr;
}

QQuickItem *findItem(QQuickItem *root, const QString &name)
{
    if (root->objectName() == name)
        return root;
    const QList<QQuickItem *> children = root->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = findItem(child, name))
            return found;
    }
    return nullptr;
}
