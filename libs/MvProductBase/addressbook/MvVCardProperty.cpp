// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvVCardProperty.h"

#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace {

QString decoded(const QByteArray &bytes, const char *charset, bool *isClean)
{
    QStringDecoder decoder(charset);
    *isClean = decoder.isValid();
    if (!decoder.isValid())
        return {};
    const QString text = decoder(bytes);
    *isClean = !decoder.hasError();
    return text;
}

} // namespace

bool MvVCardProperty::has(const char *parameter, const char *word) const
{
    const auto contains = [&](const QByteArray &key) {
        return parameters.value(key).toUpper().split(',').contains(QByteArray(word));
    };
    return contains(parameter) || contains({});
}

bool MvVCardProperty::isQuotedPrintable() const
{
    return has("ENCODING", "QUOTED-PRINTABLE");
}

bool MvVCardProperty::isBase64() const
{
    return has("ENCODING", "BASE64") || has("ENCODING", "B");
}

QString MvVCardProperty::text() const
{
    bool isClean = false;
    if (const QByteArray charset = parameters.value("CHARSET"); !charset.isEmpty()) {
        const QString named = decoded(value, charset.constData(), &isClean);
        if (isClean)
            return named;
    }
    const QString utf8 = decoded(value, "UTF-8", &isClean);
    if (isClean)
        return utf8;
    const QString western = decoded(value, "windows-1252", &isClean);
    return isClean ? western : QString::fromLatin1(value);
}

QList<QString> MvVCardProperty::components(const QString &text)
{
    QList<QString> parts{QString()};
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text.at(at) == u'\\' && at + 1 < text.size()) {
            parts.last().append(text.mid(at, 2));
            ++at;
        } else if (text.at(at) == u';') {
            parts.append(QString());
        } else {
            parts.last().append(text.at(at));
        }
    }
    for (QString &part : parts)
        part = unescaped(part).simplified();
    return parts;
}

QString MvVCardProperty::unescaped(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text.at(at) != u'\\' || at + 1 == text.size()) {
            result.append(text.at(at));
            continue;
        }
        const QChar escaped = text.at(++at);
        result.append(escaped == u'n' || escaped == u'N' ? QChar(u'\n') : escaped);
    }
    return result;
}
