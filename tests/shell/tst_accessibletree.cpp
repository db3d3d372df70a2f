// SPDX-License-Identifier: GPL-3.0-or-later
// Every screen as a screen reader meets it: each control a person can press
// has a name and can be pressed through the accessibility interface, each
// text field has a name, and a password field never hands its text over. And
// as a person with low vision meets it: every text colour reaches 4.5:1
// against its background.
#include "common/ScreenWindow.h"
#include "common/SignedInUser.h"
#include "shell/HomeDestinations.h"
#include "shell/QmlTypes.h"
#include "shell/ReturnPressesButtons.h"
#include "shell/RootController.h"
#include "storage/SQliteLogin.h"

#include <QAccessible>
#include <QColor>
#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <memory>

namespace
{
// Typed into every password field; it must come back from no interface.
const QString secret = QStringLiteral("hunter2secret");

bool isPressable(QAccessible::Role role)
{
    static const QList<QAccessible::Role> pressable { QAccessible::PushButton, QAccessible::Link,        QAccessible::MenuItem, QAccessible::PageTab,
                                                      QAccessible::CheckBox,   QAccessible::RadioButton, QAccessible::ListItem };
    return pressable.contains(role);
}

// QObject::isSignalConnected is protected; a derived class may name it.
struct SignalProbe : QObject {
    static bool connected(const QObject *object, const char *signature)
    {
        const int index = object->metaObject()->indexOfSignal(signature);
        return index >= 0 && (object->*(&SignalProbe::isSignalConnected))(object->metaObject()->method(index));
    }
};

// A Controls button presses itself; any other item needs Accessible.onPressAction.
bool hasPressHandler(const QObject *control)
{
    if (control->inherits("QQuickAbstractButton"))
        return true;
    for (const QObject *child : control->children()) {
        if (child->inherits("QQuickAccessibleAttached"))
            return SignalProbe::connected(child, "pressAction()") || SignalProbe::connected(child, "toggleAction()");
    }
    return false;
}

// What a screen reader could not use, one line each.
using Findings = QStringList;

QString describe(QAccessibleInterface *control)
{
    const QObject *object = control->object();
    return QStringLiteral("%1 %2 (role %3)").arg(QString::fromLatin1(object->metaObject()->className()), object->objectName()).arg(control->role());
}

void checkPressable(QAccessibleInterface *control, Findings &findings)
{
    if (control->text(QAccessible::Name).trimmed().isEmpty())
        findings << QStringLiteral("no name: ") + describe(control);
    const QStringList actions = control->actionInterface() ? control->actionInterface()->actionNames() : QStringList();
    const bool announced = actions.contains(QAccessibleActionInterface::pressAction()) || actions.contains(QAccessibleActionInterface::toggleAction());
    if (!announced || !hasPressHandler(control->object()))
        findings << QStringLiteral("cannot be pressed: ") + describe(control);
}

void checkEditable(QAccessibleInterface *field, Findings &findings)
{
    // Qt withholds the name of a password edit; its description says what it is for.
    const QString label = field->text(field->state().passwordEdit ? QAccessible::Description : QAccessible::Name);
    if (label.trimmed().isEmpty())
        findings << QStringLiteral("no name: ") + describe(field);
    if (!field->state().passwordEdit && !label.contains(QLatin1String("password"), Qt::CaseInsensitive))
        return;
    // Typed as a person would, into whatever takes the focus.
    auto *item = qobject_cast<QQuickItem *>(field->object());
    item->forceActiveFocus();
    for (const QChar character : secret)
        QTest::keyClick(item->window(), character.toLatin1());
    const QQuickItem *typedInto = item->window()->activeFocusItem();
    if (!typedInto || !typedInto->property("text").toString().endsWith(secret)) {
        findings << QStringLiteral("cannot be typed into: ") + describe(field);
        return;
    }
    QAccessibleTextInterface *text = field->textInterface();
    if (!field->state().passwordEdit || typedInto->property("echoMode").toInt() == 0 || field->text(QAccessible::Value).contains(secret)
        || (text && text->text(0, text->characterCount()).contains(secret)))
        findings << QStringLiteral("password given away: ") + describe(field);
}

bool isPressableControl(QQuickItem *item)
{
    QAccessibleInterface *control = QAccessible::queryAccessibleInterface(item);
    return control && isPressable(control->role()) && hasPressHandler(item);
}

// The items of a screen and their children's, as drawn: delegates hang from
// the visual tree, not from their QObject parent.
void collectItems(QQuickItem *root, QList<QQuickItem *> &items)
{
    items << root;
    const QList<QQuickItem *> children = root->childItems();
    for (QQuickItem *child : children)
        collectItems(child, items);
}

bool takesTaps(const QQuickItem *item)
{
    if (item->inherits("QQuickMouseArea") && SignalProbe::connected(item, "clicked(QQuickMouseEvent*)"))
        return true;
    const QObjectList children = item->children();
    return std::any_of(children.cbegin(), children.cend(),
                       [](const QObject *child) { return child->inherits("QQuickTapHandler") && SignalProbe::connected(child, "tapped(QQuickEventPoint*)"); });
}

bool saysItIsNoControl(const QQuickItem *item)
{
    const QObjectList children = item->children();
    return std::any_of(children.cbegin(), children.cend(),
                       [](const QObject *child) { return child->inherits("QQuickAccessibleAttached") && child->property("ignored").toBool(); });
}

// A tap that does something on a plain item must sit in a control a screen
// reader can press, unless the item says it is no control at all.
void checkTappableAreas(QQuickItem *screen, Findings &findings)
{
    QList<QQuickItem *> items;
    collectItems(screen, items);
    for (QQuickItem *item : std::as_const(items)) {
        if (!item->isVisible() || !item->isEnabled() || !takesTaps(item) || saysItIsNoControl(item))
            continue;
        bool reachable = false;
        for (QQuickItem *ancestor = item; ancestor && !reachable; ancestor = ancestor->parentItem())
            reachable = isPressableControl(ancestor);
        if (!reachable)
            findings << QStringLiteral("tap without a control: ") + item->objectName() + QLatin1Char(' ')
                    + QString::fromLatin1(item->metaObject()->className());
    }
}

void walk(QAccessibleInterface *node, Findings &findings)
{
    if (!node || node->state().invisible)
        return;
    if (isPressable(node->role()))
        checkPressable(node, findings);
    // A combo box's text shows its choice; the box has the name.
    else if (node->role() == QAccessible::EditableText && !(node->parent() && node->parent()->role() == QAccessible::ComboBox))
        checkEditable(node, findings);
    for (int i = 0; i < node->childCount(); ++i)
        walk(node->child(i), findings);
}
// Reading order: further down, or on the same line further right. Lines are
// told apart by whether the two items overlap vertically.
bool readsAfter(const QRectF &earlier, const QRectF &later)
{
    const bool sameLine = later.top() < earlier.bottom() && earlier.top() < later.bottom();
    return sameLine ? later.left() >= earlier.left() : later.top() >= earlier.top();
}

struct TextOnBackground {
    const char *where;
    const char *text;
    const char *background;
    // A translucent theme colour laid over the background, or none.
    const char *tint;
};

// The pairs the screens use, by their names in the theme. Large text would
// need only 3:1, but each pair also carries small text somewhere.
const TextOnBackground themePairs[] = {
    { "body text", "label", "surface", nullptr },
    { "body text on the grouped background", "label", "background", nullptr },
    { "alert message", "label", "alertBackground", nullptr },
    { "alert button", "blue", "alertBackground", nullptr },
    { "captions and prompts", "secondaryLabel", "surface", nullptr },
    { "captions on the grouped background", "secondaryLabel", "background", nullptr },
    { "dates and placeholders", "tertiaryLabel", "surface", nullptr },
    { "empty screens", "tertiaryLabel", "background", nullptr },
    { "links and choices", "blue", "surface", nullptr },
    { "links on the grouped background", "blue", "background", nullptr },
    { "filled buttons and the dashboard header", "white", "blue", nullptr },
    { "readings on the dashboard header", "white", "blue", "tileTint" },
    { "tip and pollutant cards", "white", "kPrimary", nullptr },
    { "weather panel", "white", "weatherPanel", nullptr },
    { "weather readings", "white", "weatherPanel", "tileTint" },
    { "tables and tips", "kOthers", "surface", nullptr },
    { "account titles", "kPrimary", "surface", nullptr },
};

// Relative luminance as WCAG defines it, from sRGB.
double luminance(const QColor &colour)
{
    const auto linear = [](double channel) { return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

// What the renderer shows for a translucent colour over an opaque one.
QColor over(const QColor &tint, const QColor &base)
{
    const double alpha = tint.alphaF();
    const auto mix = [alpha](double top, double bottom) { return alpha * top + (1 - alpha) * bottom; };
    return QColor::fromRgbF(mix(tint.redF(), base.redF()), mix(tint.greenF(), base.greenF()), mix(tint.blueF(), base.blueF()));
}
} // namespace

class AccessibleTreeTest : public QObject
{
    Q_OBJECT

private:
    // The screen on a shown phone-sized window, for a guest or a signed-in user.
    std::unique_ptr<QQuickItem> show(QQuickWindow &window, const QString &view, bool signedIn = false)
    {
        SQliteLogin().deleteAll();
        if (signedIn)
            storeAmina();
        return showScreen(*m_engine, window, view, QSize(390, 844));
    }

    RootController m_rootController;
    std::unique_ptr<QQmlEngine> m_engine;

private Q_SLOTS:
    void initTestCase()
    {
        QGuiApplication::setFont(QFont(QStringLiteral("Inter")));
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setApplicationName(QStringLiteral("tarnelo-tests-accessible-tree"));
        QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).removeRecursively();
        qApp->installEventFilter(new ReturnPressesButtons(qApp));
        m_engine = std::make_unique<QQmlEngine>();
        QmlTypes::registerAll(*m_engine, &m_rootController);
    }

    void everyControlIsNamedAndPressable_data()
    {
        QTest::addColumn<QString>("view");
        QTest::addColumn<bool>("signedIn");
        QStringList views = HomeDestinations::allViews();
        // The home shell, and the pages the screens open over themselves.
        views << QStringLiteral("HomeView") << QStringLiteral("HistoryView") << QStringLiteral("RegisterView") << QStringLiteral("ResetPasswordView")
              << QStringLiteral("ProfileDetails") << QStringLiteral("ProfileMedicalView") << QStringLiteral("ProfileSubscriptionView");
        for (const QString &view : std::as_const(views)) {
            QTest::newRow(qPrintable(view + QStringLiteral(", guest"))) << view << false;
            QTest::newRow(qPrintable(view + QStringLiteral(", signed in"))) << view << true;
        }
    }

    void everyControlIsNamedAndPressable()
    {
        QFETCH(QString, view);
        QFETCH(bool, signedIn);
        QQuickWindow window;
        const std::unique_ptr<QQuickItem> screen = show(window, view, signedIn);
        QVERIFY(screen);

        // The home shell hides its side menu until asked.
        if (auto *menu = screen->findChild<QQuickItem *>(QStringLiteral("sideMenu"))) {
            QMetaObject::invokeMethod(screen->property("model").value<QObject *>(), "toggleSideMenu");
            QTRY_COMPARE(menu->x(), 0.0);
        }

        // Sheets and pickers are read only while open.
        const QList<QObject *> popups = screen->findChildren<QObject *>();
        for (QObject *popup : popups) {
            if (popup->inherits("QQuickPopup"))
                QMetaObject::invokeMethod(popup, "open");
        }

        // As when a screen reader starts: the controls built so far fill in
        // their roles. The offscreen platform has no bridge to keep it on.
        QAccessible::setActive(true);
        Findings findings;
        walk(QAccessible::queryAccessibleInterface(&window), findings);
        checkTappableAreas(window.contentItem(), findings);
        QVERIFY2(findings.isEmpty(), qPrintable(findings.join(QLatin1String("\n  "))));
    }

    void tabFollowsReadingOrder_data() { everyControlIsNamedAndPressable_data(); }

    // Tab visits what is on screen, top to bottom and left to right within a
    // line, and never a control that is out of sight, such as the closed side menu.
    void tabFollowsReadingOrder()
    {
        QFETCH(QString, view);
        QFETCH(bool, signedIn);
        QQuickWindow window;
        const std::unique_ptr<QQuickItem> screen = show(window, view, signedIn);
        QVERIFY(screen);
        window.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&window));

        QList<QQuickItem *> visited;
        QStringList problems;
        QRectF previous;
        for (int step = 0; step < 80; ++step) {
            QTest::keyClick(&window, Qt::Key_Tab);
            QQuickItem *focused = window.activeFocusItem();
            if (!focused || focused == window.contentItem() || visited.contains(focused))
                break;
            visited << focused;
            const QRectF box = focused->mapRectToScene(focused->boundingRect());
            if (!focused->isVisible() || box.right() <= 0 || box.left() >= window.width())
                problems << QStringLiteral("Tab reaches a control out of sight: ") + focused->objectName();
            else if (!previous.isNull() && !readsAfter(previous, box))
                problems << QStringLiteral("Tab goes back up or left to: %1 at %2,%3").arg(focused->objectName()).arg(box.x()).arg(box.y());
            previous = box;
        }
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1String("\n  "))));
    }

    // Enter and Return press the focused button as Space does; in a text
    // field Return still ends the input.
    void returnPressesTheFocusedButton()
    {
        QQmlComponent component(m_engine.get());
        component.setData("import QtQuick 2.15\nimport QtQuick.Controls 2.15\n"
                          "Column { property int presses; property int submissions\n"
                          "  Button { objectName: \"button\"; text: \"Go\"; onClicked: presses++ }\n"
                          "  TextField { objectName: \"field\"; onAccepted: submissions++ } }",
                          QUrl());
        std::unique_ptr<QQuickItem> column(qobject_cast<QQuickItem *>(component.create()));
        QVERIFY2(column, qPrintable(component.errorString()));
        QQuickWindow window;
        column->setParentItem(window.contentItem());
        window.show();
        window.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&window));

        findItem(column.get(), QStringLiteral("button"))->forceActiveFocus();
        QTest::keyClick(&window, Qt::Key_Return);
        QTest::keyClick(&window, Qt::Key_Enter);
        QCOMPARE(column->property("presses").toInt(), 2);
        findItem(column.get(), QStringLiteral("field"))->forceActiveFocus();
        QTest::keyClick(&window, Qt::Key_Return);
        QCOMPARE(column->property("submissions").toInt(), 1);
        QCOMPARE(column->property("presses").toInt(), 2);
    }

    // Pressing through the interface does what a tap does, on a control
    // that is no Controls button: a tip card turns over.
    void aPressThroughTheInterfaceActs()
    {
        QQuickWindow window;
        const std::unique_ptr<QQuickItem> dashboard = show(window, QStringLiteral("MainView"));
        QVERIFY(dashboard);
        QQuickItem *card = findItem(dashboard.get(), QStringLiteral("tipCard_0"));
        QVERIFY(card);
        QVERIFY(!card->property("turned").toBool());
        QAccessible::setActive(true);
        QAccessibleInterface *control = QAccessible::queryAccessibleInterface(card);
        QVERIFY(control && control->actionInterface());
        control->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(card->property("turned").toBool());
    }
    void themeTextReachesItsMinimum()
    {
        QQmlComponent component(m_engine.get());
        component.setData("import QtQml 2.15\nimport Tarnelo 1.0\nQtObject { readonly property QtObject theme: Theme }", QUrl());
        const std::unique_ptr<QObject> holder(component.create());
        QVERIFY2(holder, qPrintable(component.errorString()));
        const QObject *theme = holder->property("theme").value<QObject *>();
        QStringList unreadable;
        for (const TextOnBackground &pair : themePairs) {
            const QColor text = theme->property(pair.text).value<QColor>();
            QColor background = theme->property(pair.background).value<QColor>();
            QVERIFY2(text.isValid() && background.isValid(), pair.where);
            if (pair.tint)
                background = over(theme->property(pair.tint).value<QColor>(), background);
            const double lighter = std::max(luminance(text), luminance(background));
            const double darker = std::min(luminance(text), luminance(background));
            const double ratio = (lighter + 0.05) / (darker + 0.05);
            if (ratio < 4.5)
                unreadable << QStringLiteral("%1: %2 on %3 is %4:1").arg(QLatin1String(pair.where), text.name(), background.name()).arg(ratio, 0, 'f', 2);
        }
        QVERIFY2(unreadable.isEmpty(), qPrintable(unreadable.join(QLatin1String("\n  "))));
    }
};

QTEST_MAIN(AccessibleTreeTest)
#include "tst_accessibletree.moc"
