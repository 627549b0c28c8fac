#include "MvCore/MvVCardLines.h"

#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace {

/// As UTF-8, whatever the byte order mark at the start says.
QByteArray withoutByteOrderMark(const QByteArray &bytes)
{
    const auto encoding = QStringConverter::encodingForData(bytes);
    if (!encoding || bytes.startsWith("BEGIN"))
        return bytes;
    QStringDecoder decoder(*encoding);
    return QString(decoder(bytes)).toUtf8();
}

qsizetype endOfQuoted(const QByteArray &line, qsizetype from, QByteArrayView stops)
{
    bool isQuoted = false;
    for (qsizetype at = from; at < line.size(); ++at) {
        const char c = line.at(at);
        if (c == '"')
            isQuoted = !isQuoted;
        else if (!isQuoted && stops.contains(c))
            return at;
    }
    return -1;
}

/// Everything before the colon. The value stays empty.
bool parseHead(const QByteArray &line, MvVCardProperty *property, qsizetype *colon)
{
    *colon = endOfQuoted(line, 0, ":");
    if (*colon <= 0)
        return false;
    qsizetype start = 0;
    bool isName = true;
    while (start <= *colon) {
        qsizetype end = endOfQuoted(line, start, ";:");
        if (end < 0 || end > *colon)
            end = *colon;
        const QByteArray part = line.mid(start, end - start).trimmed();
        start = end + 1;
        if (isName) {
            const qsizetype dot = part.lastIndexOf('.');
            property->group = part.left(qMax<qsizetype>(dot, 0)).toUpper();
            property->name = part.mid(dot + 1).toUpper();
            isName = false;
            continue;
        }
        const qsizetype equals = part.indexOf('=');
        const QByteArray name = part.left(qMax<qsizetype>(equals, 0)).trimmed().toUpper();
        QByteArray value = part.mid(equals + 1).trimmed();
        value.replace('"', "");
        QByteArray &known = property->parameters[name];
        known = known.isEmpty() ? value : known + ',' + value;
    }
    return true;
}

QByteArray fromQuotedPrintable(const QByteArray &bytes)
{
    QByteArray result;
    result.reserve(bytes.size());
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        if (bytes.at(at) == '=' && at + 2 < bytes.size()) {
            bool isHex = false;
            const int code = bytes.mid(at + 1, 2).toInt(&isHex, 16);
            if (isHex) {
                result.append(char(code));
                at += 2;
                continue;
            }
        }
        result.append(bytes.at(at));
    }
    return result;
}

/// Puts lines together that belong to one property.
class Unfolder
{
public:
    explicit Unfolder(const QByteArray &bytes)
        : m_bytes(bytes)
    {}

    bool next(MvVCardProperty *property)
    {
        while (m_at < m_bytes.size()) {
            QByteArray line = takeLine();
            MvVCardProperty head;
            qsizetype colon = 0;
            while (isFolded())
                appendFolded(&line);
            if (!parseHead(line, &head, &colon))
                continue;
            if (head.isQuotedPrintable())
                joinSoftBreaks(&line);
            else if (head.isBase64())
                joinUnindented(&line);
            head.value = line.mid(colon + 1);
            if (head.isQuotedPrintable())
                head.value = fromQuotedPrintable(head.value);
            if (head.name == "VERSION")
                m_isVersion2 = head.value.trimmed().startsWith("2");
            *property = head;
            return true;
        }
        return false;
    }

private:
    QByteArray takeLine()
    {
        qsizetype end = m_at;
        while (end < m_bytes.size() && m_bytes.at(end) != '\n' && m_bytes.at(end) != '\r')
            ++end;
        const QByteArray line = m_bytes.mid(m_at, end - m_at);
        m_at = end + 1;
        if (end + 1 < m_bytes.size() && m_bytes.at(end) == '\r' && m_bytes.at(end + 1) == '\n')
            ++m_at;
        return line;
    }

    bool isFolded() const { return m_at < m_bytes.size() && (m_bytes.at(m_at) == ' ' || m_bytes.at(m_at) == '\t'); }

    // version 2.1 folds at a blank, which stays; the later ones insert it
    void appendFolded(QByteArray *line) { line->append(m_isVersion2 ? takeLine() : takeLine().mid(1)); }

    void joinSoftBreaks(QByteArray *line)
    {
        while (line->endsWith('=') && m_at < m_bytes.size()) {
            line->chop(1);
            line->append(takeLine());
        }
    }

    // some programs do not indent the lines of a picture
    void joinUnindented(QByteArray *line)
    {
        while (m_at < m_bytes.size()) {
            qsizetype end = m_bytes.indexOf('\n', m_at);
            if (end < 0)
                end = m_bytes.size();
            const QByteArrayView peek = QByteArrayView(m_bytes).sliced(m_at, end - m_at).trimmed();
            if (peek.isEmpty() || peek.contains(':'))
                return;
            line->append(takeLine());
        }
    }

    QByteArray m_bytes;
    qsizetype m_at = 0;
    bool m_isVersion2 = false;
};

} // namespace

QList<MvVCardProperty> MvVCardLines::split(const QByteArray &bytes)
{
    QList<MvVCardProperty> properties;
    Unfolder unfolder(withoutByteOrderMark(bytes));
    for (MvVCardProperty property; unfolder.next(&property);)
        properties.append(property);
    return properties;
}
