// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/ProfileSubscriptionViewModel.h"

#include <QVariantMap>

namespace
{
struct PaymentChannel {
    int optionId;
    const char *option;
    const char *imageName;
};

constexpr PaymentChannel channels[] = {
    { 1, "Mobile Payment (MPESA)", "mpesa" },
    { 2, "Online Payment (VISA)", "visa" },
};

const PaymentChannel *findChannel(const QVariant &optionId)
{
    bool isNumber = false;
    const int id = optionId.toInt(&isNumber);
    for (const PaymentChannel &channel : channels) {
        if (isNumber && channel.optionId == id)
            return &channel;
    }
    return nullptr;
}
} // namespace

ProfileSubscriptionViewModel::ProfileSubscriptionViewModel(QObject *parent)
    : AccountScreenModel(parent)
{
}

void ProfileSubscriptionViewModel::setSelectedPaymentOption(const QVariant &optionId)
{
    const PaymentChannel *channel = findChannel(optionId);
    if (!channel)
        return;
    m_selectedPaymentOption = channel->optionId;
    Q_EMIT selectedPaymentOptionChanged();
}

void ProfileSubscriptionViewModel::setPickerPresented(bool presented)
{
    if (m_isPickerPresented == presented)
        return;
    m_isPickerPresented = presented;
    Q_EMIT isPickerPresentedChanged();
}

QStringList ProfileSubscriptionViewModel::options()
{
    return { QStringLiteral("Freemium"), QStringLiteral("Premium") };
}

void ProfileSubscriptionViewModel::setHidden(bool hidden)
{
    if (m_isHidden == hidden)
        return;
    m_isHidden = hidden;
    Q_EMIT isHiddenChanged();
}

QVariantList ProfileSubscriptionViewModel::paymentOptions()
{
    QVariantList list;
    for (const PaymentChannel &channel : channels) {
        list.append(QVariantMap { { QStringLiteral("optionId"), channel.optionId },
                                  { QStringLiteral("option"), QString::fromLatin1(channel.option) },
                                  { QStringLiteral("imageName"), QString::fromLatin1(channel.imageName) } });
    }
    return list;
}

void ProfileSubscriptionViewModel::choosePackage(const QString &package)
{
    if (!options().contains(package))
        return;
    m_selectedOption = package;
    m_selectedCategory = package;
    Q_EMIT packageChanged();
}

void ProfileSubscriptionViewModel::subscribe()
{
    const PaymentChannel *channel = findChannel(m_selectedPaymentOption);
    if (!channel) {
        showAlert(QStringLiteral("Please choose how to pay for the ") + m_selectedCategory + QStringLiteral(" package"));
        return;
    }
    showAlert(QStringLiteral("You chose the ") + m_selectedCategory + QStringLiteral(" package, paid by ") + QLatin1String(channel->option)
              + QStringLiteral(". Payments are not open yet; nothing has been charged."));
}
