// SPDX-License-Identifier: GPL-3.0-or-later
// The subscription screen's choices and what "Subscribe" tells the user.
#include "account/ProfileSubscriptionViewModel.h"

#include <QSignalSpy>
#include <QTest>

class SubscriptionModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensOnFreemiumWithNothingElseChosen()
    {
        ProfileSubscriptionViewModel model;
        QCOMPARE(model.selectedCategory(), QStringLiteral("Freemium"));
        QCOMPARE(model.selectedOption(), QStringLiteral("Select Package"));
        QVERIFY(model.selectedPaymentOption().isNull());
        QVERIFY(!model.isPickerPresented());
        QVERIFY(!model.isHidden());
        QCOMPARE(model.options(), QStringList({ QStringLiteral("Freemium"), QStringLiteral("Premium") }));
        const QVariantList channels = model.paymentOptions();
        QCOMPARE(channels.size(), 2);
        QCOMPARE(channels.at(0).toMap().value(QStringLiteral("option")), QVariant(QStringLiteral("Mobile Payment (MPESA)")));
        QCOMPARE(channels.at(1).toMap().value(QStringLiteral("optionId")), QVariant(2));
        QCOMPARE(channels.at(1).toMap().value(QStringLiteral("imageName")), QVariant(QStringLiteral("visa")));
    }

    void oneChannelAndOnePackageAtATime()
    {
        ProfileSubscriptionViewModel model;
        model.setSelectedPaymentOption(1);
        model.setSelectedPaymentOption(2);
        QCOMPARE(model.selectedPaymentOption(), QVariant(2));
        model.setSelectedPaymentOption(3);
        model.setSelectedPaymentOption(QStringLiteral("one"));
        QCOMPARE(model.selectedPaymentOption(), QVariant(2));

        QSignalSpy packageChanged(&model, &ProfileSubscriptionViewModel::packageChanged);
        model.choosePackage(QStringLiteral("Premium"));
        QCOMPARE(model.selectedCategory(), QStringLiteral("Premium"));
        QCOMPARE(model.selectedOption(), QStringLiteral("Premium"));
        model.choosePackage(QStringLiteral("Select Package"));
        QCOMPARE(model.selectedCategory(), QStringLiteral("Premium"));
        QCOMPARE(packageChanged.count(), 1);
    }

    void subscribeNamesTheChoiceOrAsksForAChannel()
    {
        ProfileSubscriptionViewModel model;
        model.subscribe();
        QVERIFY(model.showingAlert());
        QCOMPARE(model.alertMessage(), QStringLiteral("Please choose how to pay for the Freemium package"));
        model.alertAccepted();
        QVERIFY(!model.showingAlert());

        model.choosePackage(QStringLiteral("Premium"));
        model.setSelectedPaymentOption(1);
        model.subscribe();
        QCOMPARE(model.alertMessage(),
                 QStringLiteral("You chose the Premium package, paid by Mobile Payment (MPESA). Payments are not open yet; nothing has been charged."));
        QVERIFY(!model.isLoading());
    }
};

QTEST_GUILESS_MAIN(SubscriptionModelTest)
#include "tst_subscriptionmodel.moc"
