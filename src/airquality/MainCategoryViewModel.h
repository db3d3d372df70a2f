// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <array>

// The dashboard's tip cards: which of the five cards is turned over to its
// full recommendation. The sixth flag is up while any card is, and shows the
// button that turns them all back.
class MainCategoryViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isSecondButtonVisible1 READ isSecondButtonVisible1 NOTIFY visibilityChanged)
    Q_PROPERTY(bool isSecondButtonVisible2 READ isSecondButtonVisible2 NOTIFY visibilityChanged)
    Q_PROPERTY(bool isSecondButtonVisible3 READ isSecondButtonVisible3 NOTIFY visibilityChanged)
    Q_PROPERTY(bool isSecondButtonVisible4 READ isSecondButtonVisible4 NOTIFY visibilityChanged)
    Q_PROPERTY(bool isSecondButtonVisible5 READ isSecondButtonVisible5 NOTIFY visibilityChanged)
    Q_PROPERTY(bool isSecondButtonVisible6 READ isSecondButtonVisible6 NOTIFY visibilityChanged)

public:
    static constexpr int cardCount = 5;

    explicit MainCategoryViewModel(QObject *parent = nullptr);

    bool isSecondButtonVisible1() const { return m_turned[0]; }
    bool isSecondButtonVisible2() const { return m_turned[1]; }
    bool isSecondButtonVisible3() const { return m_turned[2]; }
    bool isSecondButtonVisible4() const { return m_turned[3]; }
    bool isSecondButtonVisible5() const { return m_turned[4]; }
    bool isSecondButtonVisible6() const;

    // Cards count from 1; any other number is ignored.
    Q_INVOKABLE void toggle(int card);
    Q_INVOKABLE void turnAllBack();

Q_SIGNALS:
    void visibilityChanged();

private:
    std::array<bool, cardCount> m_turned {};
};
