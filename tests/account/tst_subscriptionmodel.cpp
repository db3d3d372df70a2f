// SPDX-License-Identifier: GPL-3.0-or-later
// The subscription screen's choices and what "Subscribe" tells the user.
#include "account/ProfileSubscriptionViewModel.h"

#include <QSignalSpy>
#include <QTest>

class SubscriptionModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

        model.choosePackage(QStringLiteral("Premium"));
        model.setSelectedPaymentOption(1);
        model.subscribe();
        QCOMPARE(model.alertMessage(),
                 QStringLiteral("You chose the Premium package, paid by Mobile Payment (MPESA). Payments are not open yet; nothing has been charged."));
    }
};

QTEST_GUILESS_MAIN(SubscriptionModelTest)
#include "tst_subscriptionmodel.moc"
