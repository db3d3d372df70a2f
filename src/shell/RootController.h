// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <utility>

// Owns what the window shows as its whole content. The account flows use it to
// start over with a fresh home shell or login screen after a login or logout.
class RootController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString rootView READ rootView NOTIFY rootReplaced)

public:
    explicit RootController(QObject *parent = nullptr);

    QString rootView() const { return m_rootView; }

    Q_INVOKABLE void showHome();
    Q_INVOKABLE void showLogin();

    // A page the home shell opens over the dashboard when it first shows, so
    // that a screenshot can picture it.
    void openPageAtStart(const QString &view) { m_pageAtStart = view; }
    // That page's view once, then nothing.
    Q_INVOKABLE QString takePageAtStart() { return std::exchange(m_pageAtStart, QString()); }

Q_SIGNALS:
    // Emitted on every call, also for the screen already shown, because the
    // window must get a freshly constructed screen each time.
    void rootReplaced();

private:
    void replaceRoot(const QString &view);

    QString m_rootView;
    QString m_pageAtStart;
};
