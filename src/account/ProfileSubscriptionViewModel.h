// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/AccountScreenModel.h"

#include <QStringList>
#include <QVariant>
#include <QVariantList>

// The subscription screen: a package, a payment channel and "Subscribe".
// There is no payment service behind it yet, so "Subscribe" only tells the
// user what they chose; nothing is sent or kept.
class ProfileSubscriptionViewModel : public AccountScreenModel
{
    Q_OBJECT
    Q_PROPERTY(QString selectedOption READ selectedOption NOTIFY packageChanged)
    // The optionId of the chosen channel; null until one is chosen.
    Q_PROPERTY(QVariant selectedPaymentOption READ selectedPaymentOption WRITE setSelectedPaymentOption NOTIFY selectedPaymentOptionChanged)
    Q_PROPERTY(bool isPickerPresented READ isPickerPresented WRITE setPickerPresented NOTIFY isPickerPresentedChanged)
    Q_PROPERTY(QStringList options READ options CONSTANT)
    Q_PROPERTY(QString selectedCategory READ selectedCategory NOTIFY packageChanged)
    // Folds the plan's benefits away.
    Q_PROPERTY(bool isHidden READ isHidden WRITE setHidden NOTIFY isHiddenChanged)
    // One map per channel: optionId, option (its name), imageName.
    Q_PROPERTY(QVariantList paymentOptions READ paymentOptions CONSTANT)

public:
    explicit ProfileSubscriptionViewModel(QObject *parent = nullptr);

    QString selectedOption() const { return m_selectedOption; }
    QVariant selectedPaymentOption() const { return m_selectedPaymentOption; }
    // Anything but a known optionId is ignored.
    void setSelectedPaymentOption(const QVariant &optionId);
    bool isPickerPresented() const { return m_isPickerPresented; }
    void setPickerPresented(bool presented);
    static QStringList options();
    QString selectedCategory() const { return m_selectedCategory; }
    bool isHidden() const { return m_isHidden; }
    void setHidden(bool hidden);
    static QVariantList paymentOptions();

    // A package chosen on the wheel or with the radio rows; both show it
    // afterwards. Names that are not packages are ignored.
    Q_INVOKABLE void choosePackage(const QString &package);
    Q_INVOKABLE void subscribe();

Q_SIGNALS:
    void packageChanged();
    void selectedPaymentOptionChanged();
    void isPickerPresentedChanged();
    void isHiddenChanged();

private:
    QString m_selectedOption = QStringLiteral("Select Package");
    QVariant m_selectedPaymentOption;
    bool m_isPickerPresented = false;
    QString m_selectedCategory = QStringLiteral("Freemium");
    bool m_isHidden = false;
};
