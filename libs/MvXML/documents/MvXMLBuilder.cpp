// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvXML/MvXMLBuilder.h"

#include "MvCore/MvSafeFileWriter.h"
#include "MvCore/MvStringHelper.h"
#include "MvXML/MvXMLKeywords.h"
#include "MvXML/MvXMLLoader.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

bool isXMLCharacter(QChar c)
{
    const char16_t code = c.unicode();
    return code >= 0x20 ? code < 0xfffe : code == u'\t' || code == u'\n' || code == u'\r';
}

QString withoutForbiddenCharacters(const QString &text)
{
    QString clean;
    clean.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            clean.append(c).append(text.at(++i));
            continue;
        }
        if (!c.isSurrogate() && isXMLCharacter(c))
            clean.append(c);
    }
    return clean;
}

} // namespace

void MvXMLBuilder::buildUTF8ProcessingInstructions(QDomDocument &document)
{
    const QDomNode instruction =
        document.createProcessingInstruction(u"xml"_s, u"version=\"1.0\" encoding=\"UTF-8\""_s);
    document.insertBefore(instruction, document.firstChild());
}

QDomElement MvXMLBuilder::buildRootElement(QDomDocument &document, const QString &name)
{
    return document.appendChild(document.createElement(name)).toElement();
}

QDomElement MvXMLBuilder::buildDomElement(QDomNode &parent, const QString &name)
{
    QDomDocument document = parent.isDocument() ? parent.toDocument() : parent.ownerDocument();
    return parent.appendChild(document.createElement(name)).toElement();
}

QDomElement MvXMLBuilder::buildDomElement(QDomNode &parent, const QString &name, const QString &text)
{
    QDomElement element = buildDomElement(parent, name);
    if (!text.isEmpty())
        element.appendChild(element.ownerDocument().createTextNode(withoutForbiddenCharacters(text)));
    return element;
}

void MvXMLBuilder::addAttribute(QDomElement &element, const QString &name, const QString &value)
{
    element.setAttribute(name, withoutForbiddenCharacters(value));
}

void MvXMLBuilder::addAttribute(QDomElement &element, const QString &name, int value)
{
    element.setAttribute(name, QString::number(value));
}

void MvXMLBuilder::addAttribute(QDomElement &element, const QString &name, double value)
{
    element.setAttribute(name, QString::number(value, 'g', QLocale::FloatingPointShortest));
}

void MvXMLBuilder::addAttribute(QDomElement &element, const QString &name, bool value)
{
    element.setAttribute(name, MvStringHelper::boolToString(value));
}

void MvXMLBuilder::addAttribute(QDomElement &element, const QString &name, const QColor &value)
{
    if (value.isValid())
        element.setAttribute(name, colorText(value));
}

QString MvXMLBuilder::colorText(const QColor &color)
{
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QDomElement MvXMLBuilder::buildFont(QDomElement &parent, const QFont &font)
{
    QDomElement element = buildDomElement(parent, u"font"_s);
    addAttribute(element, u"family"_s, font.family());
    if (font.pointSizeF() > 0.0)
        addAttribute(element, u"pointsize"_s, font.pointSizeF());
    addAttribute(element, u"weight"_s, int(font.weight()));
    if (font.italic())
        addAttribute(element, u"italic"_s, true);
    if (font.capitalization() != QFont::MixedCase)
        addAttribute(element, u"capitalization"_s, MvXMLKeywords::capitalizationText(font.capitalization()));
    if (font.letterSpacingType() == QFont::PercentageSpacing && font.letterSpacing() != 0.0)
        addAttribute(element, u"letterspacing"_s, font.letterSpacing() - 100.0);
    return element;
}

bool MvXMLBuilder::saveUTF8(const QDomDocument &document, const QFileInfo &file)
{
    if (!QDir().mkpath(file.absolutePath()))
        return false;
    MvXMLLoader::Error error;
    if (QFileInfo::exists(file.filePath()) && MvXMLLoader::loadDocument(file, &error).isNull()) {
        const QString aside = MvSafeFileWriter::setAside(file);
        if (aside.isEmpty())
            return false; // an unsaved change is better than a lost file
        qWarning().noquote() << QCoreApplication::translate("MvXMLBuilder", "%1 Der alte Stand liegt in %2.")
                                    .arg(error.describe(file), QDir::toNativeSeparators(aside));
    }
    const QByteArray bytes = document.toByteArray(2);
    if (MvXMLLoader::check(bytes).isError())
        return false; // it could never be read again
    return MvSafeFileWriter::write(file, bytes).isOk();
}
