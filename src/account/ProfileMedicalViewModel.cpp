// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/ProfileMedicalViewModel.h"

namespace
{
const QString untouched = QStringLiteral("Select");
const QString nonSmoker = QStringLiteral("Non-Smoker");
} // namespace

ProfileMedicalViewModel::ProfileMedicalViewModel(QObject *parent)
    : AccountScreenModel(parent)
    , m_relationship(untouched)
    , m_condition(untouched)
    , m_smokingstatus(untouched)
    // The prompt itself, so that a profile saved without details says so.
    , m_moredetails(QStringLiteral("Provide more details of the medical condition"))
    , m_profileMedD(new ProfileMedicalDetailsUrl(this))
    , m_selectedCategory(nonSmoker)
{
    connect(m_profileMedD, &ListFetcher::itemsChanged, this, &ProfileMedicalViewModel::fillFromStoredDetails);
}

void ProfileMedicalViewModel::setText(QString &field, const QString &value)
{
    if (field == value)
        return;
    field = value;
    Q_EMIT inputChanged();
}

void ProfileMedicalViewModel::setFlag(bool &flag, bool value)
{
    if (flag == value)
        return;
    flag = value;
    Q_EMIT pickersChanged();
}

void ProfileMedicalViewModel::setEmergencycontact(const QString &value)
{
    setText(m_emergencycontact, value);
}

void ProfileMedicalViewModel::setWeight(const QString &value)
{
    setText(m_weight, value);
}

void ProfileMedicalViewModel::setHeight(const QString &value)
{
    setText(m_height, value);
}

void ProfileMedicalViewModel::setMobilenumber(const QString &value)
{
    setText(m_mobilenumber, value);
}

void ProfileMedicalViewModel::setRelationship(const QString &value)
{
    setText(m_relationship, value);
}

void ProfileMedicalViewModel::setCondition(const QString &value)
{
    setText(m_condition, value);
}

void ProfileMedicalViewModel::setConditionname(const QString &value)
{
    setText(m_conditionname, value);
}

void ProfileMedicalViewModel::setSmokingstatus(const QString &value)
{
    if (value == nonSmoker)
        setSelectedCategory(nonSmoker);
    setText(m_smokingstatus, value);
}

void ProfileMedicalViewModel::setMoredetails(const QString &value)
{
    setText(m_moredetails, value);
}

void ProfileMedicalViewModel::setSelectedCategory(const QString &value)
{
    setText(m_selectedCategory, value);
}

bool ProfileMedicalViewModel::isHidden() const
{
    return m_smokingstatus == nonSmoker;
}

QStringList ProfileMedicalViewModel::options()
{
    return { untouched, QStringLiteral("Yes"), QStringLiteral("No") };
}

QStringList ProfileMedicalViewModel::optionsq()
{
    return { untouched, nonSmoker, QStringLiteral("Smoker") };
}

QStringList ProfileMedicalViewModel::option()
{
    return { untouched,
             QStringLiteral("Parent"),
             QStringLiteral("Spouse"),
             QStringLiteral("Partner"),
             QStringLiteral("Sibling"),
             QStringLiteral("Child"),
             QStringLiteral("Relative"),
             QStringLiteral("Friend"),
             QStringLiteral("Colleague") };
}

QStringList ProfileMedicalViewModel::smokingCategories()
{
    return { nonSmoker, QStringLiteral("1-10 Light smoker"), QStringLiteral("11-20 Moderate smoker"), QStringLiteral("Above 20 Heavy smoker") };
}

void ProfileMedicalViewModel::setPickerPresented(bool presented)
{
    setFlag(m_isPickerPresented, presented);
}

void ProfileMedicalViewModel::setPickerPresented1(bool presented)
{
    setFlag(m_isPickerPresented1, presented);
}

void ProfileMedicalViewModel::setPickerPresented2(bool presented)
{
    setFlag(m_isPickerPresented2, presented);
}

void ProfileMedicalViewModel::save()
{
    // Blanks alone are no answer to any of these.
    for (const QString *field : { &m_conditionname, &m_emergencycontact, &m_mobilenumber, &m_weight, &m_height }) {
        if (field->trimmed().isEmpty()) {
            showAlert(QStringLiteral("All fields are required"));
            return;
        }
    }
    setLoading(true);
    const QList<User> users = m_loginProfileTable.readAll();
    // The category goes under "smokerstatus" and the yes/no under "smoker":
    // that is how the backend has always read them.
    sendRequest(BackendScript::SaveMedical,
                { { "userid", users.isEmpty() ? QString() : users.first().userid },
                  { "conditionstatus", m_condition },
                  { "conditionname", m_conditionname },
                  { "emergencycontact", m_emergencycontact },
                  { "phonenumber", m_mobilenumber },
                  { "relationship", m_relationship },
                  { "weight", m_weight },
                  { "height", m_height },
                  { "smokerstatus", m_selectedCategory },
                  { "smoker", m_smokingstatus },
                  { "moredetails", m_moredetails } });
}

std::optional<QString> ProfileMedicalViewModel::decodedAnswerAlert(int records) const
{
    if (records == 0)
        return std::nullopt;
    if (requestAccepted())
        return responseMessage();
    return QStringLiteral("Please click ok and try register again");
}

void ProfileMedicalViewModel::fillFromStoredDetails()
{
    const QVector<ProfileMedDetailsModel> &details = m_profileMedD->items();
    if (details.isEmpty())
        return;
    const ProfileMedDetailsModel &stored = details.first();
    m_condition = stored.conditionstatus;
    m_conditionname = stored.conditionname;
    m_emergencycontact = stored.emergencycontact;
    m_mobilenumber = stored.phonenumber;
    m_relationship = stored.relationship;
    m_weight = stored.weight;
    m_height = stored.height;
    m_valSmockstatus = stored.smokerstatus;
    m_selectedCategory = stored.smokerstatus;
    m_smokingstatus = stored.smoker;
    m_moredetails = stored.moredetails;
    Q_EMIT inputChanged();
}
