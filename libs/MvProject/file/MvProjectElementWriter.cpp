// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProjectElementWriter.h"

#include "MvProject/MvProjectVocabulary.h"

using namespace MvProjectVocabulary;

void MvProjectElementWriter::writeFoto(QDomElement &element, const MvFotoElement &foto)
{
    const MvFotoElement usual;
    MvXMLBuilder::addAttribute(element, pathKey, pathText(foto.path()));
    MvXMLBuilder::addAttribute(element, focusXKey, foto.focus().x());
    MvXMLBuilder::addAttribute(element, focusYKey, foto.focus().y());
    addIfNew(element, fitKey, fits.value(int(foto.fit())), fits.constFirst());
    addIfNew(element, zoomKey, foto.zoom(), usual.zoom());
    addIfNew(element, turnsKey, foto.quarterTurns(), usual.quarterTurns());
    addIfNew(element, straighteningKey, foto.straightening(), usual.straightening());
    addIfNew(element, brightnessKey, foto.brightness(), usual.brightness());
    addIfNew(element, contrastKey, foto.contrast(), usual.contrast());
    addIfNew(element, borderWidthKey, foto.border().width, usual.border().width);
    addIfNew(element, borderColorKey, foto.border().color, usual.border().color);
    addIfNew(element, captionKey, foto.caption(), usual.caption());
}

void MvProjectElementWriter::writeElement(QDomElement &parent, const QString &tag, const MvPageElement &written)
{
    QDomElement element = addNewElement(parent, tag);
    MvXMLBuilder::addAttribute(element, kindKey, elementKinds.value(int(written.kind())));
    addIfNew(element, slotKey, written.slot(), {});
    MvXMLBuilder::addAttribute(element, xKey, written.rect().x());
    MvXMLBuilder::addAttribute(element, yKey, written.rect().y());
    MvXMLBuilder::addAttribute(element, widthKey, written.rect().width());
    MvXMLBuilder::addAttribute(element, heightKey, written.rect().height());
    addIfNew(element, rotationKey, written.rotation(), 0.0);
    if (written.foto())
        writeFoto(element, *written.foto());
    else if (written.text())
        writeText(element, *written.text());
    else
        writeCalendarium(element, *written.calendarium());
}

void MvProjectElementWriter::writeText(QDomElement &element, const MvTextElement &text)
{
    const MvTextElement usual;
    addIfNew(element, textKey, text.text(), usual.text());
    addIfNew(element, fotoSlotKey, text.fotoSlot(), usual.fotoSlot());
    addIfNew(element, fontKey, text.family(), usual.family());
    addIfNew(element, pointsKey, text.points(), usual.points());
    addIfNew(element, weightKey, int(text.weight()), int(usual.weight()));
    addIfNew(element, italicKey, text.isItalic(), usual.isItalic());
    addIfNew(element, capitalsKey, text.hasCapitals(), usual.hasCapitals());
    addIfNew(element, spacingKey, text.letterSpacing(), usual.letterSpacing());
    addIfNew(element, colorKey, text.color(), usual.color());
    addIfNew(element, accentKey, text.isAccent(), usual.isAccent());
    addIfNew(element, onFotoKey, text.isOnFoto(), usual.isOnFoto());
    const auto name = [&text](const QList<Qt::Alignment> &flags, const QStringList &names) {
        for (qsizetype i = 0; i < flags.size(); ++i) {
            if (text.alignment() & flags[i])
                return names[i];
        }
        return names.constFirst();
    };
    addIfNew(element, horizontalKey, name(horizontalFlags, horizontals), horizontals.constFirst());
    addIfNew(element, verticalKey, name(verticalFlags, verticals), verticals.constFirst());
}

void MvProjectElementWriter::writeCalendarium(QDomElement &element, const MvCalendariumElement &calendarium)
{
    const MvCalendariumElement usual;
    addIfNew(element, layoutIdKey, calendarium.layout(), usual.layout());
    addIfNew(element, monthsAheadKey, calendarium.monthOffset(), usual.monthOffset());
    addIfNew(element, monthLineKey, calendarium.hasMonthLine(), usual.hasMonthLine());
    addIfNew(element, onFotoKey, calendarium.isOnFoto(), usual.isOnFoto());
}

void MvProjectElementWriter::writeBackground(QDomElement &parent, const MvPageBackground &background)
{
    QDomElement element = addNewElement(parent, MvProjectVocabulary::background);
    addIfNew(element, colorKey, background.color(), QColor());
    addIfNew(element, veilKey, background.veil(), 0.0);
    if (!(background.foto() == MvFotoElement()))
        writeFoto(element, background.foto());
}

QString MvProjectElementWriter::pathText(const QString &path) const
{
    const QString relative = m_folder.relativeFilePath(path);
    const bool isBelow = QDir::isRelativePath(relative) && !relative.startsWith(QStringLiteral("../"));
    return isBelow && !path.isEmpty() ? relative : path;
}
