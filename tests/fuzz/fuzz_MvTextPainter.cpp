// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvBoxFont.h"
#include "MvCore/MvStringHelper.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvPaint/MvPrintableText.h"
#include "MvPaint/MvTextFitter.h"
#include "MvPaint/MvTextOutlineCache.h"
#include "MvPaint/MvTextPainter.h"
#include "MvProductBase/MvSVGCompilerInstructions.h"

#include <QPainter>

namespace {

/// Every division of a word is in order and within it; what is said to be whole has all of its letters on the lines.
void checkFit(const QFont &font, const QSizeF &room, const QStringList &texts)
{
    const MvHyphenator hyphenator(MvLocale(QStringLiteral("hu_HU")));
    qsizetype last = 0;
    const QList<MvWordBreak> breaks = hyphenator.breaks(texts.constFirst());
    for (const MvWordBreak &at : breaks) {
        MvFuzz::check(at.end >= last && at.next >= at.end && at.next <= texts.constFirst().size(),
                      "breaks are in order");
        last = at.next;
    }
    const MvTextFitter fitter(font, 12.0, hyphenator);
    for (const MvFittedText &fitted :
         {fitter.fit(room, texts, room.width() + 20.0), fitter.fitRunning(room, texts, QStringLiteral(", ")),
          fitter.fitLine(room.width(), texts.constFirst())}) {
        MvFuzz::check(fitted.isCut == !fitted.cutTexts.isEmpty(), "what is cut is named");
        MvFuzz::check(fitted.font.pixelSize() >= 12 && fitted.font.pixelSize() <= font.pixelSize(), "type has a floor");
        for (const QString &shown : fitted.lines)
            MvFuzz::check(!MvTextPainter::isTextToWide(static_cast<int>(room.width()) + 20, fitted.font, shown),
                          "lines have room");
    }
}

} // namespace

/// Any sequence of code units as a text to break, shorten and draw; the first one is the width.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 2)
        return 0;
    const QByteArray bytes = MvFuzz::bytes(data + 2, (size - 2) / 2 * 2);
    const QString text(reinterpret_cast<const QChar *>(bytes.constData()), bytes.size() / 2);
    const int width = data[0] * 4;
    static const QFont font = [] {
        QFont box = MvBoxFont::font(20);
        box.setStyleStrategy(QFont::NoFontMerging); // other fonts would take the time of the search
        return box;
    }();
    MvTextOutlineCache::instance().clear();

    const QString line = MvPrintableText::onOneLine(text);
    MvFuzz::check(MvPrintableText::onOneLine(line) == line, "one line stays as it is");
    MvFuzz::check(line.isEmpty() == !MvStringHelper::isVisible(line), "a line without ink is empty");
    bool isCut = false;
    const QStringList lines = MvTextPainter::fitLines(width, data[1] % 8, font, {line, text}, &isCut);
    MvFuzz::check(lines.size() <= data[1] % 8, "no more lines than there is room for");
    MvFuzz::check(line.isEmpty() || isCut || !lines.isEmpty(), "a text is printed or said to be cut");
    checkFit(font, {width + 0.0, data[1] * 2.0}, {line, text});
    const QString name = MvStringHelper::simplifiedName(text);
    MvFuzz::check(MvStringHelper::simplifiedName(name) == name, "a simple name stays as it is");
    const MvSVGCompilerInstructions instructions(text);
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    painter.setFont(font);
    MvTextPainter::drawText(painter, {0, 0, 100, 100}, 0, MvTextPainter::elided(width, font, text));
    MvTextPainter::drawTexts(painter, {0, 0, 100, 100}, Qt::AlignBottom, lines);
    return 0;
}
