// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/HomeViewModel.h"

#include "common/Console.h"
#include "shell/HomeDestinations.h"
#include "shell/ShellLogging.h"

namespace
{
const QString homeKey = QStringLiteral("Home");

const QStringList tabNames { homeKey, QStringLiteral("Health Tips"), QStringLiteral("Map"), QStringLiteral("Notification"), QStringLiteral("Profile") };
const QStringList tabSymbols { QStringLiteral("house.fill"), QStringLiteral("heart.text.square.fill"), QStringLiteral("mappin.and.ellipse.circle.fill"),
                               QStringLiteral("bell.fill"), QStringLiteral("person.crop.circle.fill") };

// Footer lines with a destination of their own; choosing one of them empties
// the content area on purpose. Any other footer line only closes the menu.
const QStringList footerDestinations { QStringLiteral("FAQ"), QStringLiteral("Contact Us"), QStringLiteral("Privacy Policy") };
const QString closingFooterLine = QStringLiteral("Close Menu");

QVariantMap menuItem(const char *name, const char *icon)
{
    return { { QStringLiteral("name"), QString::fromLatin1(name) }, { QStringLiteral("icon"), QString::fromLatin1(icon) } };
}
} // namespace

const QString HomeViewModel::guestName = QStringLiteral("User Name");

namespace
{
QString &destinationAtStart()
{
    static QString key;
    return key;
}
} // namespace

void HomeViewModel::openAtStart(const QString &key)
{
    destinationAtStart() = key;
}

HomeViewModel::HomeViewModel(QObject *parent)
    : QObject(parent)
    , m_selectedBottomTab(homeKey)
    , m_userName(guestName)
{
    const QString key = destinationAtStart();
    if (key.isEmpty())
        return;
    const int tab = tabNames.indexOf(key);
    if (tab >= 0)
        m_selectedTab = tab;
    setNavigation(tab >= 0 ? std::nullopt : std::optional(key), tab >= 0 ? key : homeKey);
}

QVariant HomeViewModel::selectedMenuItem() const
{
    return m_selectedMenuItem ? QVariant(*m_selectedMenuItem) : QVariant();
}

QString HomeViewModel::alertMessage2() const
{
    return QStringLiteral("You must login or signup to continue");
}

void HomeViewModel::setShowingAlert2(bool showing)
{
    if (m_showingAlert2 == showing)
        return;
    m_showingAlert2 = showing;
    Q_EMIT showingAlert2Changed();
}

QStringList HomeViewModel::bottomTabs() const
{
    return tabSymbols;
}

QStringList HomeViewModel::bottomTabNames() const
{
    return tabNames;
}

QVariantList HomeViewModel::sideMenuItems() const
{
    return { menuItem("Home", "house.fill"), menuItem("Profile", "person.crop.circle.fill"), menuItem("Health Tips", "heart.text.square.fill"),
             menuItem("AQI Scale", "scalemass"), menuItem("Notification", "bell.fill") };
}

QStringList HomeViewModel::additionalTextItems() const
{
    return footerDestinations + QStringList { closingFooterLine };
}

QString HomeViewModel::currentKey() const
{
    return m_selectedMenuItem.value_or(m_selectedBottomTab);
}

QString HomeViewModel::destinationView() const
{
    return HomeDestinations::viewFor(currentKey(), isGuest());
}

void HomeViewModel::loadUserName()
{
    const QList<User> users = loginTable.readAll();
    if (users.isEmpty() || users.last().fullname == m_userName)
        return;
    const QString before = destinationView();
    m_userName = users.last().fullname;
    Q_EMIT user_nameChanged();
    if (destinationView() != before)
        Q_EMIT destinationChanged();
}

void HomeViewModel::selectTab(int index)
{
    if (index < 0 || index >= tabNames.size()) {
        qCWarning(lcShell) << "ignoring a tap on a tab that does not exist:" << index;
        return;
    }
    if (m_selectedTab != index) {
        m_selectedTab = index;
        Q_EMIT selectedTabChanged();
    }
    setSideMenuOpen(false);
    setNavigation(std::nullopt, tabNames.at(index));
}

void HomeViewModel::selectMenuItem(const QString &name)
{
    setNavigation(name, homeKey);
    Console::printLine(QStringLiteral("Selected: ") + name);
    setSideMenuOpen(false);
}

void HomeViewModel::tapAdditionalItem(const QString &text)
{
    Console::printLine(text + QStringLiteral(" tapped"));
    if (footerDestinations.contains(text))
        setNavigation(text, m_selectedBottomTab);
    setSideMenuOpen(false);
}

void HomeViewModel::toggleSideMenu()
{
    setSideMenuOpen(!m_isSideMenuOpen);
}

void HomeViewModel::closeSideMenu()
{
    setSideMenuOpen(false);
}

void HomeViewModel::userIconTapped()
{
    Console::printLine(QStringLiteral("User icon tapped"));
}

void HomeViewModel::setSideMenuOpen(bool open)
{
    if (m_isSideMenuOpen == open)
        return;
    m_isSideMenuOpen = open;
    Q_EMIT isSideMenuOpenChanged();
}

void HomeViewModel::setNavigation(std::optional<QString> menuItem, const QString &bottomTab)
{
    const QString keyBefore = currentKey();
    if (m_selectedMenuItem != menuItem) {
        m_selectedMenuItem = std::move(menuItem);
        Q_EMIT selectedMenuItemChanged();
    }
    if (m_selectedBottomTab != bottomTab) {
        m_selectedBottomTab = bottomTab;
        Q_EMIT selectedBottomTabChanged();
    }
    if (currentKey() != keyBefore) {
        Q_EMIT currentKeyChanged();
        Q_EMIT destinationChanged();
    }
}
