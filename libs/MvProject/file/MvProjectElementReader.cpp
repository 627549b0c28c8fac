// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProjectElementReader.h"

#include "MvProject/MvProjectNotes.h"
#include "MvProject/MvProjectVocabulary.h"
#include "MvXML/MvXMLParser.h"

#include <algorithm>
#include <cmath>

using namespace MvProjectVocabulary;

namespace {

constexpr double farthest = 60000.0; // from the page's corner, twice the largest page
constexpr int leastWeight = 1;
constexpr int mostWeight = 1000;

} // namespace

MvFotoElement MvProjectElementReader::readFoto(const QDomElement &element)
{
    MvFotoElement foto(readPath(element));
    foto.setFocus(readFocus(element));
    foto.setFit(MvFotoElement::Fit(m_notes.addIfUnknown(element, fitKey, fits)));
    foto.setZoom(MvXMLParser::doubleAttribute(element, zoomKey, foto.zoom()));
    m_notes.addIfChanged(element, zoomKey, foto.zoom());
    foto.setQuarterTurns(MvXMLParser::intAttribute(element, turnsKey));
    m_notes.addIfChanged(element, turnsKey, foto.quarterTurns());
    foto.setStraightening(MvXMLParser::doubleAttribute(element, straighteningKey));
    m_notes.addIfChanged(element, straighteningKey, foto.straightening());
    foto.setBrightness(MvXMLParser::intAttribute(element, brightnessKey));
    m_notes.addIfChanged(element, brightnessKey, foto.brightness());
    foto.setContrast(MvXMLParser::intAttribute(element, contrastKey));
    m_notes.addIfChanged(element, contrastKey, foto.contrast());
    foto.setBorder({MvXMLParser::doubleAttribute(element, borderWidthKey),
                    readColor(element, borderColorKey, MvFotoElement::Border().color)});
    m_notes.addIfChanged(element, borderWidthKey, foto.border().width);
    foto.setCaption(MvXMLParser::textAttribute(element, captionKey));
    return foto;
}

QList<MvPageElement> MvProjectElementReader::readElements(const QDomElement &parent, const QString &tag)
{
    QList<MvPageElement> elements;
    for (QDomElement child = parent.firstChildElement(tag); !child.isNull(); child = child.nextSiblingElement(tag)) {
        MvPageElement element({}, MvFotoElement(), MvXMLParser::textAttribute(child, slotKey));
        const QString kind = MvXMLParser::textAttribute(child, kindKey);
        switch (elementKinds.indexOf(kind)) {
        case qsizetype(MvPageElement::Kind::Foto):
            element.setContent(readFoto(child));
            break;
        case qsizetype(MvPageElement::Kind::Text):
            element.setContent(readText(child));
            break;
        case qsizetype(MvPageElement::Kind::Calendarium):
            element.setContent(readCalendarium(child));
            break;
        default:
            m_notes.add(child, tr("Ein Element der Art „%1“ ist hier unbekannt; es bleibt weg.").arg(kind));
            continue;
        }
        element.setRect(readRect(child));
        element.setRotation(MvXMLParser::doubleAttribute(child, rotationKey));
        m_notes.addIfChanged(child, rotationKey, element.rotation());
        elements.append(element);
    }
    return elements;
}

MvPageBackground MvProjectElementReader::readBackground(const QDomElement &element)
{
    MvPageBackground background(readColor(element, colorKey, {}));
    background.setVeil(MvXMLParser::doubleAttribute(element, veilKey));
    m_notes.addIfChanged(element, veilKey, background.veil());
    if (element.hasAttribute(pathKey))
        background.setFoto(readFoto(element));
    return background;
}

MvFotoPool MvProjectElementReader::readPool(const QDomElement &element)
{
    MvFotoPool pool;
    for (QDomElement child = element.firstChildElement(foto); !child.isNull(); child = child.nextSiblingElement(foto)) {
        MvFotoPoolItem item;
        item.path = MvFotoElement(readPath(child)).path();
        item.size = {MvXMLParser::intAttribute(child, widthKey, -1), MvXMLParser::intAttribute(child, heightKey, -1)};
        if (item.size.isEmpty())
            item.size = {};
        item.captured = QDateTime::fromString(MvXMLParser::textAttribute(child, capturedKey), Qt::ISODateWithMs);
        item.focus = readFocus(child);
        item.interest = MvFotoInterest::fromText(MvXMLParser::textAttribute(child, interestKey));
        if (!pool.add(item))
            m_notes.add(child, tr("Ein Foto ohne Datei, oder eines, das es schon gibt; es bleibt weg."));
    }
    return pool;
}

QString MvProjectElementReader::readPath(const QDomElement &element) const
{
    const QString path = MvXMLParser::textAttribute(element, pathKey);
    return path.isEmpty() ? path : m_folder.absoluteFilePath(path);
}

QPointF MvProjectElementReader::readFocus(const QDomElement &element) const
{
    MvFotoElement clamping;
    clamping.setFocus(
        {MvXMLParser::doubleAttribute(element, focusXKey, 0.5), MvXMLParser::doubleAttribute(element, focusYKey, 0.5)});
    return clamping.focus();
}

QRectF MvProjectElementReader::readRect(const QDomElement &element)
{
    const auto number = [&element](const QString &name) {
        const double value = MvXMLParser::doubleAttribute(element, name, std::nan(""));
        return std::abs(value) <= farthest ? value : std::nan("");
    };
    const QRectF rect(number(xKey), number(yKey), number(widthKey), number(heightKey));
    if (std::isfinite(rect.x() + rect.y()) && rect.width() >= 0.0 && rect.height() >= 0.0)
        return rect;
    m_notes.add(element, tr("Wo das Element steht, ist nicht lesbar; es füllt die Seite."));
    return m_format.contentRect();
}

MvTextElement MvProjectElementReader::readText(const QDomElement &element)
{
    MvTextElement text(MvXMLParser::textAttribute(element, textKey));
    text.setFotoSlot(MvXMLParser::textAttribute(element, fotoSlotKey));
    text.setFamily(MvXMLParser::textAttribute(element, fontKey));
    text.setPoints(MvXMLParser::doubleAttribute(element, pointsKey, text.points()));
    m_notes.addIfChanged(element, pointsKey, text.points());
    text.setWeight(QFont::Weight(
        std::clamp(MvXMLParser::intAttribute(element, weightKey, int(text.weight())), leastWeight, mostWeight)));
    m_notes.addIfChanged(element, weightKey, int(text.weight()));
    text.setItalic(MvXMLParser::boolAttribute(element, italicKey));
    text.setCapitals(MvXMLParser::boolAttribute(element, capitalsKey));
    text.setLetterSpacing(MvXMLParser::doubleAttribute(element, spacingKey));
    m_notes.addIfChanged(element, spacingKey, text.letterSpacing());
    text.setColor(readColor(element, colorKey, {}));
    text.setAccent(MvXMLParser::boolAttribute(element, accentKey));
    text.setOnFoto(MvXMLParser::boolAttribute(element, onFotoKey));
    text.setAlignment(horizontalFlags[m_notes.addIfUnknown(element, horizontalKey, horizontals)] |
                      verticalFlags[m_notes.addIfUnknown(element, verticalKey, verticals)]);
    return text;
}

MvCalendariumElement MvProjectElementReader::readCalendarium(const QDomElement &element)
{
    MvCalendariumElement calendarium(MvXMLParser::textAttribute(element, layoutIdKey));
    calendarium.setMonthOffset(MvXMLParser::intAttribute(element, monthsAheadKey));
    m_notes.addIfChanged(element, monthsAheadKey, calendarium.monthOffset());
    calendarium.setMonthLine(MvXMLParser::boolAttribute(element, monthLineKey, true));
    calendarium.setOnFoto(MvXMLParser::boolAttribute(element, onFotoKey));
    return calendarium;
}

QColor MvProjectElementReader::readColor(const QDomElement &element, const QString &name, const QColor &otherwise)
{
    const QString text = MvXMLParser::textAttribute(element, name);
    if (text.isEmpty())
        return otherwise;
    const QColor color = MvXMLParser::color(text);
    if (!color.isValid())
        m_notes.add(element, tr("%1 „%2“ ist keine Farbe wie #RRGGBB.").arg(name, text));
    return color.isValid() ? color : otherwise;
}
