// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/StdoutCapture.h"
#include "shell/HomeDestinations.h"
#include "shell/HomeViewModel.h"
#include "shell/SymbolImageProvider.h"

#include <QColor>
#include <QDir>
#include <QImage>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <memory>

class HomeViewModelTest : public QObject
{
    Q_OBJECT

private:
    static void storeUsers(const QStringList &fullnames)
    {
        SQliteLogin store;
        for (const QString &name : fullnames)
            store.insert(QStringLiteral("7"), name, QStringLiteral("1234567890"), QStringLiteral("a@b.org"), QStringLiteral("1990-01-02"), QStringLiteral("2"),
                         QStringLiteral("2024-05-06"));
    }

    // A home screen as it is after it appeared.
    static std::unique_ptr<HomeViewModel> appearedHome()
    {
        auto home = std::make_unique<HomeViewModel>();
        home->loadUserName();
        return home;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setApplicationName(QStringLiteral("tarnelo-tests-home"));
    }

    void init() { QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).removeRecursively(); }

    void routesEachKey_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("guestView");
        QTest::addColumn<QString>("signedInView");
        const auto route = [](const char *key, const char *guestView, const char *signedInView) {
            QTest::newRow(key) << QString::fromUtf8(key) << QString::fromUtf8(guestView) << QString::fromUtf8(signedInView);
        };
        route("Profile", "LoginView", "ProfileView");
        route("Notification", "LoginView", "NotificationView");
        route("Map", "LoginView", "SearchLocationView");
        route("Health Tips", "LoginView", "TipsView");
        route("AQI Scale", "LoginView", "ScaleView");
        route("Home", "MainView", "MainView");
        route("FAQ", "", "");
        route("Privacy Policy", "", "");
        route("home", "", "");
        route("Map ", "", "");
    }

    void routesEachKey()
    {
        QFETCH(QString, key);
        QFETCH(QString, guestView);
        QFETCH(QString, signedInView);
        QCOMPARE(HomeDestinations::viewFor(key, true), guestView);
        QCOMPARE(HomeDestinations::viewFor(key, false), signedInView);
    }

    void storedUserDecidesGuestOrSignedIn_data()
    {
        QTest::addColumn<QStringList>("storedNames");
        QTest::addColumn<QString>("shownName");
        QTest::addColumn<QString>("profileView");
        QTest::newRow("empty store") << QStringList {} << "User Name"
                                     << "LoginView";
        QTest::newRow("one user") << QStringList { QStringLiteral("Wanjiru Kamau") } << "Wanjiru Kamau"
                                  << "ProfileView";
        QTest::newRow("named like the guest") << QStringList { QStringLiteral("User Name") } << "User Name"
                                              << "LoginView";
        QTest::newRow("last row wins") << QStringList { QStringLiteral("First Row"), QStringLiteral("Last Row") } << "Last Row"
                                       << "ProfileView";
    }

    void storedUserDecidesGuestOrSignedIn()
    {
        QFETCH(QStringList, storedNames);
        QFETCH(QString, shownName);
        QFETCH(QString, profileView);
        storeUsers(storedNames);
        const auto home = appearedHome();
        QCOMPARE(home->user_name(), shownName);
        QCOMPARE(home->destinationView(), QStringLiteral("MainView"));
        home->selectTab(4);
        QCOMPARE(home->destinationView(), profileView);
    }

    void nameIsReadOnlyWhenTheHomeScreenAppears()
    {
        HomeViewModel home;
        storeUsers({ QStringLiteral("Late Arrival") });
        QCOMPARE(home.user_name(), QStringLiteral("User Name"));
        QSignalSpy destinationChanges(&home, &HomeViewModel::destinationChanged);
        home.selectMenuItem(QStringLiteral("AQI Scale"));
        QCOMPARE(home.destinationView(), QStringLiteral("LoginView"));
        home.loadUserName();
        QCOMPARE(home.destinationView(), QStringLiteral("ScaleView"));
        QCOMPARE(destinationChanges.count(), 2);
    }

    void tabTapShowsTheTabAndClearsTheMenuChoice()
    {
        const auto home = appearedHome();
        QSignalSpy destinationChanges(home.get(), &HomeViewModel::destinationChanged);
        home->toggleSideMenu();
        home->selectMenuItem(QStringLiteral("AQI Scale"));
        home->toggleSideMenu();
        StdoutCapture console;
        home->selectTab(2);
        QCOMPARE(console.takeLines(), QStringList {});
        QVERIFY(home->selectedMenuItem().isNull());
        QCOMPARE(home->selectedBottomTab(), QStringLiteral("Map"));
        QCOMPARE(home->currentKey(), QStringLiteral("Map"));
        QVERIFY(!home->isSideMenuOpen());
        // Each new key asks for a fresh screen; the same tab again does not.
        QCOMPARE(destinationChanges.count(), 2);
        home->selectTab(2);
        QCOMPARE(destinationChanges.count(), 2);
    }

    void menuChoiceKeepsTheTabHighlight()
    {
        const auto home = appearedHome();
        home->selectTab(3);
        home->toggleSideMenu();
        StdoutCapture console;
        home->selectMenuItem(QStringLiteral("AQI Scale"));
        QCOMPARE(console.takeLines(), QStringList { QStringLiteral("Selected: AQI Scale") });
        QCOMPARE(home->selectedTab(), 3);
        QCOMPARE(home->selectedBottomTab(), QStringLiteral("Home"));
        QCOMPARE(home->selectedMenuItem().toString(), QStringLiteral("AQI Scale"));
        QCOMPARE(home->currentKey(), QStringLiteral("AQI Scale"));
        QVERIFY(!home->isSideMenuOpen());
    }

    void footerLines()
    {
        const auto home = appearedHome();
        home->selectTab(1);
        const QString closingLine = home->additionalTextItems().constLast();
        QVERIFY(!closingLine.isEmpty());

        StdoutCapture console;
        home->toggleSideMenu();
        home->tapAdditionalItem(closingLine);
        QCOMPARE(console.takeLines(), QStringList { closingLine + QStringLiteral(" tapped") });
        QVERIFY(!home->isSideMenuOpen());
        QCOMPARE(home->currentKey(), QStringLiteral("Health Tips"));
        QVERIFY(home->selectedMenuItem().isNull());

        home->toggleSideMenu();
        home->tapAdditionalItem(QStringLiteral("Privacy Policy"));
        QCOMPARE(console.takeLines(), QStringList { QStringLiteral("Privacy Policy tapped") });
        QVERIFY(!home->isSideMenuOpen());
        QCOMPARE(home->currentKey(), QStringLiteral("Privacy Policy"));
        QCOMPARE(home->selectedTab(), 1);
        QCOMPARE(home->destinationView(), QString());
    }

    void everySymbolHasAnIcon()
    {
        HomeViewModel home;
        QStringList symbols = home.bottomTabs() + QStringList { QStringLiteral("line.horizontal.3") };
        const QVariantList menuItems = home.sideMenuItems();
        for (const QVariant &item : menuItems)
            symbols.append(item.toMap().value(QStringLiteral("icon")).toString());
        for (const QString &symbol : qAsConst(symbols))
            QVERIFY2(QFile::exists(SymbolImageProvider::resourceFor(symbol)), qPrintable(symbol));
    }

    // Each colour and size of a symbol is a drawing of its own, also when it
    // comes from the cache.
    void symbolsInTheirColourAndSize()
    {
        SymbolImageProvider provider;
        QSize size;
        const QImage red = provider.requestImage(QStringLiteral("house.fill?#ff0000"), &size, QSize(24, 24));
        QCOMPARE(size, QSize(24, 24));
        QCOMPARE(provider.requestImage(QStringLiteral("house.fill?#ff0000"), &size, QSize(48, 48)).size(), QSize(48, 48));
        QCOMPARE(size, QSize(48, 48));
        const QImage blue = provider.requestImage(QStringLiteral("house.fill?#0000ff"), &size, QSize(24, 24));
        QCOMPARE(provider.requestImage(QStringLiteral("house.fill?#ff0000"), &size, QSize(24, 24)), red);
        QPoint inked;
        for (int i = 0; i < red.width() * red.height() && inked.isNull(); ++i) {
            if (qAlpha(red.pixel(i % red.width(), i / red.width())) == 255)
                inked = QPoint(i % red.width(), i / red.width());
        }
        QVERIFY(!inked.isNull());
        QCOMPARE(QColor(red.pixel(inked)), QColor(Qt::red));
        QCOMPARE(QColor(blue.pixel(inked)), QColor(Qt::blue));
    }

    void buttonsAndTapsOutsideTheRules()
    {
        const auto home = appearedHome();
        StdoutCapture console;
        home->userIconTapped();
        QCOMPARE(console.takeLines(), QStringList { QStringLiteral("User icon tapped") });

        home->toggleSideMenu();
        home->closeSideMenu();
        QVERIFY(!home->isSideMenuOpen());

        home->selectTab(5);
        home->selectTab(-1);
        QCOMPARE(home->selectedTab(), 0);
        QCOMPARE(home->currentKey(), QStringLiteral("Home"));
    }
};

QTEST_GUILESS_MAIN(HomeViewModelTest)
#include "tst_homeviewmodel.moc"
