// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/MainCategoryViewModel.h"

#include <algorithm>

MainCategoryViewModel::MainCategoryViewModel(QObject *parent)
    : QObject(parent)
{
}

bool MainCategoryViewModel::isSecondButtonVisible6() const
{
    return std::any_of(m_turned.begin(), m_turned.end(), [](bool turned) { return turned; });
}

void MainCategoryViewModel::toggle(int card)
{
    if (card < 1 || card > cardCount)
        return;
    bool &turned = m_turned[static_cast<std::size_t>(card - 1)];
    turned = !turned;
    Q_EMIT visibilityChanged();
}

void MainCategoryViewModel::turnAllBack()
{
    if (!isSecondButtonVisible6())
        return;
    m_turned.fill(false);
    Q_EMIT visibilityChanged();
}
