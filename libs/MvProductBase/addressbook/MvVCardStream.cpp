// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvVCardStream.h"

#include "MvCore/MvRegularFile.h"
#include "MvCore/MvStringHelper.h"

#include <QHash>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostGroups = 100; // of properties in a card that belong together

MvVCardDate dateOf(const MvVCardProperty &property)
{
    return MvVCardDate::fromText(MvVCardProperty::unescaped(property.text()), QDate::currentDate(),
                                 property.parameters.value("X-APPLE-OMIT-YEAR").toInt());
}

QString joinedName(const MvVCardProperty &property)
{
    const QList<QString> parts = MvVCardProperty::components(property.text()); // family, given, additional
    QStringList present{parts.value(1), parts.value(2), parts.value(0)};
    present.removeAll(QString());
    return present.join(u' ');
}

bool isOfCard(const MvVCardProperty &property)
{
    return property.value.trimmed().toUpper() == "VCARD";
}

} // namespace

/// Puts the properties of one card together.
class MvVCardStream::Builder
{
public:
    MvVCard card() const
    {
        MvVCard card = m_card;
        card.name = m_fullName;
        for (const QString &name : {m_nameParts, m_otherName})
            card.name = card.name.isEmpty() ? name : card.name;
        for (const QByteArray &group : m_anniversaryGroups)
            replace(&card.anniversary, m_datesByGroup.value(group));
        return card;
    }

    void take(const MvVCardProperty &property)
    {
        const auto text = [&] { return MvVCardProperty::unescaped(property.text()); };
        if (property.name == "FN")
            m_fullName = MvStringHelper::simplifiedName(text());
        else if (property.name == "N")
            m_nameParts = MvStringHelper::simplifiedName(joinedName(property));
        else if (property.name == "NICKNAME" || property.name == "ORG" || property.name == "EMAIL")
            m_otherName = m_otherName.isEmpty() ? MvStringHelper::simplifiedName(text()) : m_otherName;
        else if (property.name == "UID")
            m_card.uid = text().simplified();
        else if (property.name == "BDAY")
            replace(&m_card.birthday, dateOf(property));
        else if (property.name == "PHOTO")
            takePicture(property);
        else
            takeAnniversary(property);
    }

private:
    /// Of several dates the first one counts that is understood.
    static void replace(MvVCardDate *present, const MvVCardDate &date)
    {
        const auto isUnderstood = [](const MvVCardDate &d) { return d.isAmbiguous() || d.date().isValid(); };
        if (!date.isEmpty() && !isUnderstood(*present) && (present->isEmpty() || isUnderstood(date)))
            *present = date;
    }

    void takePicture(const MvVCardProperty &property)
    {
        const qsizetype comma = property.isBase64() ? -1 : property.value.indexOf(',');
        const bool isInCard = property.isBase64() || (property.value.trimmed().startsWith("data:") &&
                                                      property.value.left(comma).contains("base64"));
        if (property.isCut)
            m_card.isPictureTooLarge = true;
        else if (isInCard)
            m_card.pictureCode = property.value.mid(comma + 1);
    }

    void takeAnniversary(const MvVCardProperty &property)
    {
        static const QList<QByteArray> names{"ANNIVERSARY", "X-ANNIVERSARY", "X-EVOLUTION-ANNIVERSARY",
                                             "X-KADDRESSBOOK-X-ANNIVERSARY"};
        if (names.contains(property.name))
            replace(&m_card.anniversary, dateOf(property));
        else if (property.name == "X-ABDATE" && m_datesByGroup.size() < mostGroups)
            m_datesByGroup.insert(property.group, dateOf(property));
        else if (property.name == "X-ABLABEL" && property.value.contains("Anniversary") &&
                 m_anniversaryGroups.size() < mostGroups)
            m_anniversaryGroups.append(property.group);
    }

    MvVCard m_card;
    QString m_fullName;
    QString m_nameParts; // given name first
    QString m_otherName;
    QHash<QByteArray, MvVCardDate> m_datesByGroup;
    QList<QByteArray> m_anniversaryGroups;
};

MvVCardStream::MvVCardStream(const QFileInfo &file, const GoOn &goOn)
    : m_path(file.filePath())
{
    open();
    if (m_openError.isEmpty())
        start(m_file.get(), goOn);
}

MvVCardStream::MvVCardStream(QIODevice *device, const GoOn &goOn)
{
    start(device, goOn);
}

MvVCardStream::~MvVCardStream() = default;

void MvVCardStream::start(QIODevice *device, const GoOn &goOn)
{
    m_lines = std::make_unique<MvVCardLines>(device, [this, goOn](qint64 bytesRead) {
        m_isStopped = goOn && !goOn(bytesRead);
        return !m_isStopped;
    });
}

void MvVCardStream::open()
{
    MvRegularFile::Opened opened = MvRegularFile::open(QFileInfo(m_path));
    m_openError = opened.error;
    m_file = std::move(opened.file);
}

bool MvVCardStream::isNested(const MvVCardProperty &property) const
{
    return m_nested > 0 || m_nameBefore == "AGENT" || property.name == "AGENT";
}

bool MvVCardStream::next(MvVCard *card)
{
    Builder builder;
    MvVCardProperty property;
    while (m_lines && m_lines->next(&property)) {
        const bool isBegin = property.name == "BEGIN" && isOfCard(property);
        const bool isEnd = property.name == "END" && isOfCard(property);
        const bool isInner = m_isInCard && isNested(property);
        m_nameBefore = property.name;
        if (isInner && (isBegin || property.value.trimmed().toUpper() == "BEGIN:VCARD")) {
            ++m_nested;
        } else if (isEnd && m_nested > 0) {
            --m_nested;
        } else if (isEnd || (isBegin && m_isInCard)) { // a card whose end is missing ends where the next one begins
            const bool isComplete = m_isInCard;
            const int line = std::exchange(m_cardLine, m_lines->line());
            m_isInCard = isBegin;
            m_nested = 0;
            if (isComplete) {
                *card = builder.card();
                card->line = line;
                return m_hasCards = true;
            }
        } else if (isBegin) {
            m_isInCard = true;
            m_cardLine = m_lines->line();
        } else if (m_isInCard && m_nested == 0) {
            builder.take(property);
        }
    }
    // the file was cut off: what the last card says still counts
    if (!m_isInCard || m_isStopped)
        return false;
    m_isInCard = false;
    *card = builder.card();
    card->line = m_cardLine;
    return m_hasCards = true;
}

QString MvVCardStream::error() const
{
    const auto *file = qobject_cast<const QFile *>(m_file.get());
    if (!m_lines)
        return tr("%1 lässt sich nicht lesen: %2").arg(m_path, m_openError);
    if (file && file->error() != QFileDevice::NoError)
        return tr("%1 lässt sich nicht bis zum Ende lesen: %2").arg(m_path, file->errorString());
    if (m_hasCards || m_isStopped)
        return {};
    const QString none = tr("keine Visitenkarten (vCard) gefunden");
    return m_path.isEmpty() ? none : tr("%1: %2").arg(m_path, none);
}
