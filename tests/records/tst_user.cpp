// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/User.h"

#include <QTest>

namespace
{
User sampleUser()
{
    return User { QStringLiteral("12"),         QStringLiteral("Ada Lovelace"),
                  QStringLiteral("0712345678"), QStringLiteral("ada@example.org"),
                  QStringLiteral("1990-12-10"), QStringLiteral("2"),
                  QStringLiteral("2024-01-05") };
}
} // namespace

class UserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalWhenAllFieldsEqual()
    {
        QVERIFY(sampleUser() == sampleUser());
        QVERIFY(!(sampleUser() != sampleUser()));
        QVERIFY(User() == User());
    }

    void everyFieldCounts_data()
    {
        QTest::addColumn<int>("field");
        const char *names[] = { "userid", "fullname", "phonenumber", "emailaddress", "dateofbirth", "gender", "registerdate" };
        for (int i = 0; i < 7; ++i)
            QTest::newRow(names[i]) << i;
    }

    void everyFieldCounts()
    {
        QFETCH(int, field);

        User other = sampleUser();
        QString *fields[] = { &other.userid, &other.fullname, &other.phonenumber, &other.emailaddress, &other.dateofbirth, &other.gender, &other.registerdate };
        *fields[field] += QLatin1Char('x');

        QVERIFY(!(sampleUser() == other));
        QVERIFY(!(other == sampleUser()));
        QVERIFY(sampleUser() != other);
    }
};

QTEST_GUILESS_MAIN(UserTest)
#include "tst_user.moc"
