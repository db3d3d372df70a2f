// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/SQliteLogin.h"

#include <QObject>
#include <QStringList>
#include <QVariant>

#include <optional>

// State of the home shell: which destination the content area shows, the side
// menu, the bottom tabs and the signed-in user's name. Navigation is nothing
// but these fields; there is no stack.
class HomeViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int selectedTab READ selectedTab NOTIFY selectedTabChanged)
    Q_PROPERTY(bool isSideMenuOpen READ isSideMenuOpen NOTIFY isSideMenuOpenChanged)
    // null while no side-menu choice is set
    Q_PROPERTY(QVariant selectedMenuItem READ selectedMenuItem NOTIFY selectedMenuItemChanged)
    Q_PROPERTY(QString selectedBottomTab READ selectedBottomTab NOTIFY selectedBottomTabChanged)
    Q_PROPERTY(bool isLoading READ isLoading CONSTANT)
    Q_PROPERTY(QString user_name READ user_name NOTIFY user_nameChanged)
    Q_PROPERTY(QString alertMessage2 READ alertMessage2 CONSTANT)
    Q_PROPERTY(bool showingAlert2 READ showingAlert2 WRITE setShowingAlert2 NOTIFY showingAlert2Changed)
    Q_PROPERTY(QStringList bottomTabs READ bottomTabs CONSTANT)
    Q_PROPERTY(QStringList bottomTabNames READ bottomTabNames CONSTANT)
    Q_PROPERTY(QVariantList sideMenuItems READ sideMenuItems CONSTANT)
    Q_PROPERTY(QStringList additionalTextItems READ additionalTextItems CONSTANT)
    Q_PROPERTY(QString currentKey READ currentKey NOTIFY currentKeyChanged)
    Q_PROPERTY(bool isGuest READ isGuest NOTIFY user_nameChanged)
    Q_PROPERTY(QString destinationView READ destinationView NOTIFY destinationChanged)

public:
    static const QString guestName;

    explicit HomeViewModel(QObject *parent = nullptr);

    int selectedTab() const { return m_selectedTab; }
    bool isSideMenuOpen() const { return m_isSideMenuOpen; }
    QVariant selectedMenuItem() const;
    QString selectedBottomTab() const { return m_selectedBottomTab; }
    bool isLoading() const { return false; }
    QString user_name() const { return m_userName; }
    QString alertMessage2() const;
    bool showingAlert2() const { return m_showingAlert2; }
    void setShowingAlert2(bool showing);
    QStringList bottomTabs() const;
    QStringList bottomTabNames() const;
    QVariantList sideMenuItems() const;
    QStringList additionalTextItems() const;

    QString currentKey() const;
    bool isGuest() const { return m_userName == guestName; }
    QString destinationView() const;

    // A destination every new home screen shows first, for pictures of the
    // app: a tab's name or a side-menu item ("AQI Scale").
    static void openAtStart(const QString &key);

    Q_INVOKABLE void loadUserName();
    Q_INVOKABLE void selectTab(int index);
    Q_INVOKABLE void selectMenuItem(const QString &name);
    Q_INVOKABLE void tapAdditionalItem(const QString &text);
    Q_INVOKABLE void toggleSideMenu();
    Q_INVOKABLE void closeSideMenu();
    Q_INVOKABLE void userIconTapped();

Q_SIGNALS:
    void selectedTabChanged();
    void isSideMenuOpenChanged();
    void selectedMenuItemChanged();
    void selectedBottomTabChanged();
    void user_nameChanged();
    void showingAlert2Changed();
    void currentKeyChanged();
    // Also emitted when the key changes but the screen stays the same, because
    // every change of key shows a freshly constructed screen.
    void destinationChanged();

private:
    void setSideMenuOpen(bool open);
    void setNavigation(std::optional<QString> menuItem, const QString &bottomTab);

    SQliteLogin loginTable;
    int m_selectedTab = 0;
    bool m_isSideMenuOpen = false;
    std::optional<QString> m_selectedMenuItem;
    QString m_selectedBottomTab;
    QString m_userName;
    bool m_showingAlert2 = false;
};
