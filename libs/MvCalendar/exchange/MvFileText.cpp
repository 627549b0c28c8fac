// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvFileText.h"

#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// What Windows-1252 has between 0x80 and 0x9F.
QString fromWindows1252(const QByteArray &bytes)
{
    static const QString specials = u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008dŽ\u008f\u0090‘’“”•–—˜™š›œ\u009džŸ"_s;
    QString text = QString::fromLatin1(bytes);
    for (QChar &c : text) {
        if (c.unicode() >= 0x80 && c.unicode() < 0xA0)
            c = specials.at(c.unicode() - 0x80);
    }
    return text;
}

/// Most letters of a table are those of ASCII: in UTF-16 every second byte is zero.
qsizetype zerosAt(const QByteArray &bytes, qsizetype first)
{
    qsizetype zeros = 0;
    for (qsizetype i = first; i < std::min<qsizetype>(bytes.size(), 256); i += 2)
        zeros += bytes.at(i) == 0 ? 1 : 0;
    return zeros;
}

} // namespace

QString MvFileText::encodingOf(const QByteArray &bytes)
{
    const auto marked = QStringConverter::encodingForData(bytes);
    if (marked == QStringConverter::Utf16LE || marked == QStringConverter::Utf16BE)
        return u"UTF-16"_s;
    const qsizetype few = std::min<qsizetype>(bytes.size(), 256) / 16;
    const qsizetype many = std::min<qsizetype>(bytes.size(), 256) / 4;
    if (many > 0 && zerosAt(bytes, 1) > many && zerosAt(bytes, 0) <= few)
        return u"UTF-16LE"_s;
    if (many > 0 && zerosAt(bytes, 0) > many && zerosAt(bytes, 1) <= few)
        return u"UTF-16BE"_s;
    QStringDecoder decode(QStringConverter::Utf8);
    [[maybe_unused]] const QString text = decode(bytes);
    return decode.hasError() ? u"Windows-1252"_s : u"UTF-8"_s;
}

QString MvFileText::decoded(const QByteArray &bytes, const QString &encoding)
{
    QString text;
    if (encoding == u"Windows-1252") {
        text = fromWindows1252(bytes);
    } else {
        QStringDecoder decode(encoding.toLatin1().constData());
        text = decode.isValid() ? QString(decode(bytes)) : QString::fromUtf8(bytes);
    }
    if (text.startsWith(QChar(0xFEFF)))
        text.remove(0, 1);
    if (text.contains(u'\r')) { // alone in files of old computers
        text.replace(u"\r\n"_s, u"\n"_s);
        text.replace(u'\r', u'\n');
    }
    return text;
}
