#include "MvCore/MvVCardReader.h"

#include "MvCore/MvVCardLines.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestPictureSide = 1200; // pixels: a day's cell needs no more
constexpr qsizetype mostPictureBytes = 16 * 1024 * 1024;

/// What one card says, as far as a calendar asks.
struct Card
{
    QString fullName;
    QString nameParts; // given name first
    QString otherName; // of an organisation, a nickname, an address
    QString uid;
    QDate birthday;
    QDate anniversary;
    QImage image;

    QString name() const { return !fullName.isEmpty() ? fullName : !nameParts.isEmpty() ? nameParts : otherName; }
};

QDate dateOf(int year, int month, int day, int yearThatMeansNone)
{
    const bool isKnown = year > 0 && year != yearThatMeansNone;
    return QDate(isKnown ? year : MvVCardReader::unknownYear, month, day);
}

/// "1990-05-17", "19900517", "--0517", "--05-17", each with or without a time; "17.05.1990". An invalid date when day
/// or month are missing.
QDate parseDate(const MvVCardProperty &property)
{
    static const QRegularExpression yearFirst(
        u"^(?:(\\d{4})-?|--)(?:(\\d{2})-?(\\d{2})|(\\d{1,2})-(\\d{1,2}))(?:[T ].*)?$"_s);
    static const QRegularExpression dayFirst(u"^(\\d{1,2})\\.(\\d{1,2})\\.(\\d{4})$"_s);
    const QString text = property.text().trimmed();
    bool hasYearForNone = false;
    int none = property.parameters.value("X-APPLE-OMIT-YEAR").toInt(&hasYearForNone);
    if (!hasYearForNone)
        none = 0;
    if (const auto match = yearFirst.match(text); match.hasMatch()) {
        const bool isCompact = match.hasCaptured(2);
        return dateOf(match.captured(1).toInt(), match.captured(isCompact ? 2 : 4).toInt(),
                      match.captured(isCompact ? 3 : 5).toInt(), none);
    }
    if (const auto match = dayFirst.match(text); match.hasMatch())
        return dateOf(match.captured(3).toInt(), match.captured(2).toInt(), match.captured(1).toInt(), none);
    return {};
}

QString joinedName(const MvVCardProperty &property)
{
    const QList<QString> parts = MvVCardProperty::components(property.text()); // family, given, additional
    QStringList present{parts.value(1), parts.value(2), parts.value(0)};
    present.removeAll(QString());
    return present.join(u' ');
}

/// A picture that stands in the card itself; one that lies elsewhere is never fetched.
QImage imageOf(const MvVCardProperty &property)
{
    QByteArray code = property.value;
    if (!property.isBase64()) {
        const qsizetype comma = code.indexOf(',');
        if (!code.trimmed().startsWith("data:") || !code.left(comma).contains("base64"))
            return {};
        code = code.mid(comma + 1);
    }
    if (code.size() > mostPictureBytes)
        return {};
    QByteArray bytes = QByteArray::fromBase64(code);
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    static const QList<QByteArray> formats{"jpeg", "png", "gif", "bmp", "webp"};
    if (!formats.contains(reader.format()))
        return {};
    const QSize size = reader.size();
    if (size.width() > longestPictureSide || size.height() > longestPictureSide)
        reader.setScaledSize(size.scaled(longestPictureSide, longestPictureSide, Qt::KeepAspectRatio));
    return reader.read();
}

/// Puts the properties of one card together.
class CardReader
{
public:
    Card card() const
    {
        Card result = m_card;
        for (const QByteArray &group : m_anniversaryGroups)
            if (!result.anniversary.isValid())
                result.anniversary = m_datesByGroup.value(group);
        return result;
    }

    void take(const MvVCardProperty &property)
    {
        const auto text = [&] { return MvVCardProperty::unescaped(property.text()).simplified(); };
        if (property.name == "FN")
            m_card.fullName = text();
        else if (property.name == "N")
            m_card.nameParts = joinedName(property);
        else if (property.name == "NICKNAME" || property.name == "ORG" || property.name == "EMAIL")
            m_card.otherName = m_card.otherName.isEmpty() ? text() : m_card.otherName;
        else if (property.name == "UID")
            m_card.uid = text();
        else if (property.name == "BDAY")
            m_card.birthday = parseDate(property);
        else if (property.name == "PHOTO")
            m_card.image = imageOf(property);
        else
            takeAnniversary(property);
    }

private:
    void takeAnniversary(const MvVCardProperty &property)
    {
        static const QList<QByteArray> names{"ANNIVERSARY", "X-ANNIVERSARY", "X-EVOLUTION-ANNIVERSARY",
                                             "X-KADDRESSBOOK-X-ANNIVERSARY"};
        if (names.contains(property.name))
            m_card.anniversary = parseDate(property);
        else if (property.name == "X-ABDATE")
            m_datesByGroup.insert(property.group, parseDate(property));
        else if (property.name == "X-ABLABEL" && property.value.contains("Anniversary"))
            m_anniversaryGroups.append(property.group);
    }

    Card m_card;
    QHash<QByteArray, QDate> m_datesByGroup;
    QList<QByteArray> m_anniversaryGroups;
};

QUuid uuidOf(const Card &card, const QDate &date)
{
    static const QUuid space(u"{7c9d3a56-2f2b-5d0e-9a71-0d8a6b1f3e42}"_s);
    QString text = card.uid;
    if (text.startsWith("urn:uuid:"_L1, Qt::CaseInsensitive))
        text = text.mid(9);
    if (const QUuid uuid = QUuid::fromString(text); !uuid.isNull())
        return uuid;
    if (text.isEmpty())
        text = card.name() + u'|' + date.toString(Qt::ISODate);
    return QUuid::createUuidV5(space, text);
}

QList<Card> cardsOf(const QByteArray &bytes)
{
    QList<Card> cards;
    CardReader reader;
    int depth = 0; // a card may hold another one, of somebody else
    for (const MvVCardProperty &property : MvVCardLines::split(bytes)) {
        const bool isOfCard = property.value.trimmed().toUpper() == "VCARD";
        if (property.name == "BEGIN" && isOfCard) {
            if (depth++ == 0)
                reader = CardReader();
        } else if (property.name == "END" && isOfCard) {
            if (depth > 0 && --depth == 0)
                cards.append(reader.card());
        } else if (depth == 1) {
            reader.take(property);
        }
    }
    if (depth > 0) // the file was cut off: what the last card says still counts
        cards.append(reader.card());
    return cards;
}

} // namespace

MvVCardReader::Content MvVCardReader::read(const QFileInfo &file)
{
    Content content;
    QFile source(file.filePath());
    if (!file.isFile() || !source.open(QIODevice::ReadOnly)) {
        content.error =
            tr("%1 lässt sich nicht lesen: %2")
                .arg(file.filePath(), file.exists() ? source.errorString() : tr("es gibt keine solche Datei"));
        return content;
    }
    if (source.size() > mostBytes) {
        content.error = tr("%1 ist zu groß für ein Adressbuch").arg(file.filePath());
        return content;
    }
    content = read(source.readAll());
    if (!content.error.isEmpty())
        content.error = tr("%1: %2").arg(file.filePath(), content.error);
    return content;
}

MvVCardReader::Content MvVCardReader::read(const QByteArray &bytes)
{
    Content content;
    QSet<QUuid> known;
    const auto add = [&](const QString &name, const QDate &date, const QImage &image, const QUuid &uuid) {
        if (name.isEmpty() || !date.isValid() || known.contains(uuid))
            return;
        known.insert(uuid);
        content.persons.append(MvSimplePerson(name, date, image, uuid));
    };
    for (const Card &card : cardsOf(bytes)) {
        ++content.cardCount;
        add(card.name(), card.birthday, card.image, uuidOf(card, card.birthday));
        add(tr("%1 (Jahrestag)").arg(card.name()), card.anniversary, card.image,
            QUuid::createUuidV5(uuidOf(card, card.anniversary), u"anniversary"_s));
    }
    if (content.cardCount == 0)
        content.error = tr("keine Visitenkarten (vCard) gefunden");
    return content;
}
