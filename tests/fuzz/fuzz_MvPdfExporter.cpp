// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvPaint/MvOutlinePainter.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"

#include <QDir>
#include <QPainter>
#include <QPainterPath>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace {

/// Reads the bytes as what to paint; at the end all is 0.
class Script
{
public:
    explicit Script(const QByteArray &bytes)
        : m_bytes(bytes)
    {}

    bool isAtEnd() const { return m_at >= m_bytes.size(); }
    uchar byte() { return isAtEnd() ? uchar(0) : uchar(m_bytes[m_at++]); }
    int below(int bound) { return byte() % bound; }

    /// Mostly on the page, of 1000 by 800; now and then one that no page has.
    double number()
    {
        constexpr std::array odd{0.0,   -0.0,  1e-9, -1e-300, 1e9, -1e18, std::numeric_limits<double>::quiet_NaN(),
                                 1e300, -1e300};
        const int high = byte();
        return high < 8 ? odd[size_t(byte()) % odd.size()] : (high * 256 + byte()) / 50.0 - 200.0;
    }
    QPointF point()
    {
        const double x = number();
        return {x, number()};
    }
    QRectF rect()
    {
        const QPointF corner = point();
        return {corner, QSizeF(number(), number())};
    }
    QColor color() { return {byte(), byte(), byte(), below(2) ? 255 : byte()}; }
    QString text()
    {
        QString read;
        for (int count = below(12); count > 0; --count)
            read += QChar(ushort(below(4) ? byte() : byte() * 256 + byte()));
        return read;
    }
    QPainterPath path()
    {
        QPainterPath made;
        for (int count = below(8); count >= 0; --count) {
            switch (below(4)) {
            case 0:
                made.moveTo(point());
                break;
            case 1:
                made.cubicTo(point(), point(), point());
                break;
            case 2:
                made.closeSubpath();
                break;
            default:
                made.lineTo(point());
            }
        }
        made.setFillRule(Qt::FillRule(below(2)));
        return made;
    }
    QImage image()
    {
        constexpr std::array formats{QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied, QImage::Format_Mono,
                                     QImage::Format_Grayscale8};
        QImage made(1 + below(9), 1 + below(9), formats[size_t(below(int(formats.size())))]);
        for (int y = 0; y < made.height(); ++y)
            std::memset(made.scanLine(y), byte(), size_t(made.bytesPerLine()));
        return made;
    }
    QBrush brush()
    {
        QLinearGradient line(point(), point());
        QRadialGradient circle(point(), number());
        for (QGradient *gradient : {static_cast<QGradient *>(&line), static_cast<QGradient *>(&circle)})
            gradient->setStops({{0.0, color()}, {below(256) / 255.0, color()}, {1.0, color()}});
        const std::array<QBrush, 6> brushes{Qt::NoBrush, color(), line,
                                            circle,      image(), QBrush(color(), Qt::Dense4Pattern)};
        return brushes[size_t(below(int(brushes.size())))];
    }

private:
    const QByteArray m_bytes;
    qsizetype m_at = 0;
};

/// A pen that dashes draws one line of a page's measures at once: along lines of any length it keeps Qt busy for
/// minutes.
void setPen(QPainter &painter, Script &script, QPen pen)
{
    if (pen.style() == Qt::NoPen || pen.style() == Qt::SolidLine) {
        painter.setPen(pen);
        return;
    }
    constexpr int step = 4;
    pen.setWidthF(1 + script.below(20));
    const QLine line{QPoint{script.below(250), script.below(250)} * step,
                     QPoint{script.below(250), script.below(250)} * step};
    painter.save();
    painter.resetTransform();
    painter.setPen(pen);
    painter.drawLine(line);
    painter.restore();
}

void change(QPainter &painter, Script &script)
{
    switch (script.below(8)) {
    case 0:
        setPen(painter, script,
               QPen{script.brush(), script.number(), Qt::PenStyle(script.below(6)),
                    Qt::PenCapStyle(script.below(3) * 0x10), Qt::PenJoinStyle(script.below(3) * 0x40)});
        break;
    case 1:
        painter.setBrush(script.brush());
        break;
    case 2:
        painter.setTransform({script.number() / 300.0, script.number() / 300.0, script.number() / 300.0,
                              script.number() / 300.0, script.number(), script.number()},
                             script.below(2) != 0);
        break;
    case 3:
        painter.setClipPath(script.path(), Qt::ClipOperation(script.below(3)));
        break;
    case 4:
        painter.setClipRect(script.rect(), Qt::ClipOperation(script.below(3)));
        break;
    case 5:
        painter.setOpacity(script.byte() / 255.0);
        break;
    case 6:
        painter.setCompositionMode(QPainter::CompositionMode(script.below(24)));
        break;
    default:
        script.below(2) ? painter.save() : painter.restore();
    }
}

void paint(QPainter &painter, Script &script)
{
    const QFont font(QStringLiteral("Lato"), 1 + script.below(90));
    switch (script.below(7)) {
    case 0:
        painter.drawPath(script.path());
        break;
    case 1:
        painter.drawRect(script.rect());
        break;
    case 2:
        painter.drawLine(script.point(), script.point());
        break;
    case 3:
        painter.drawEllipse(script.rect());
        break;
    case 4:
        painter.drawImage(script.rect(), script.image(), QRectF(script.below(9), script.below(9), 4.5, 4.5));
        break;
    case 5:
        painter.fillRect(script.rect(), script.brush());
        break;
    default:
        MvOutlinePainter::fillOutline(painter, script.point(), MvTextOutline(font, script.text()), script.color());
    }
}

/// What is opened is closed, in its order, and every number is one.
class Nesting : public QPDFObjectHandle::ParserCallbacks
{
public:
    void handleObject(QPDFObjectHandle object) override
    {
        static const std::map<std::string, std::string> closing{{"Q", "q"}, {"ET", "BT"}, {"EMC", "BDC"}};
        if (object.isNumber())
            MvFuzz::check(std::abs(object.getNumericValue()) < 1e10, "numbers are those of a page");
        if (!object.isOperator())
            return;
        const std::string name = object.getOperatorValue() == "BMC" ? "BDC" : object.getOperatorValue();
        if (name == "q" || name == "BT" || name == "BDC")
            m_open.push_back(name);
        if (const auto found = closing.find(name); found != closing.end()) {
            MvFuzz::check(!m_open.empty() && m_open.back() == found->second, "what is opened is closed in its order");
            m_open.pop_back();
        }
    }
    void handleEOF() override { MvFuzz::check(m_open.empty(), "what is opened is closed"); }

private:
    std::vector<std::string> m_open;
};

} // namespace

/// Anything that can be painted, named anyhow: the PDF is a sound one.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = MvFuzz::bytes(data, size);
    Script head(bytes);
    MvPageSource source;
    source.format = MvPageFormat(QSizeF(1000, 800));
    source.format.setBleed(head.below(2) * 30.0);
    source.pages = {QDate(2027, 1, 1), QDate(2027, 2, 1)};
    source.title = head.text();
    source.author = head.text();
    source.names = {head.text(), head.text()};
    source.paint = [bytes](QPainter &painter, int page) {
        Script script(bytes.mid(page * bytes.size() / 2));
        for (int count = 0; count < 60 && !script.isAtEnd(); ++count)
            script.below(3) ? paint(painter, script) : change(painter, script);
    };
    const QFileInfo file(MvFuzz::file({}).dir().filePath(QStringLiteral("fuzz.pdf")));
    MvFuzz::check(MvPdfExporter::write(source, file, nullptr, 1).isOk(), "the PDF is written");

    QPDF pdf;
    pdf.setSuppressWarnings(true);
    pdf.processFile(file.filePath().toLocal8Bit().constData());
    for (QPDFPageObjectHelper &page : QPDFPageDocumentHelper(pdf).getAllPages()) {
        Nesting nesting;
        page.parseContents(&nesting);
    }
    for (QPDFObjectHandle object : pdf.getAllObjects()) {
        if (object.isStream() && !object.isImage())
            object.getStreamData(qpdf_dl_generalized);
    }
    MvFuzz::check(!pdf.anyWarnings(), "the PDF is sound");
    return 0;
}
