// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvContrast.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvProject/MvFotoDistribution.h"
#include "MvProject/MvNewCalendar.h"
#include "MvProject/MvPrintCheck.h"
#include "MvProject/MvThemeRegistry.h"

#include <QPainter>

using namespace Qt::StringLiterals;
using Item = MvPaintRecording::Item;

/// Calendars of families with any photos, in any theme and on any paper: nothing overlaps or stands in a zone, and
/// every word can be read on what lies beneath it.
class tst_FotoFamilies : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void printed_data();
    void printed();

private:
    void checkPlaces(const MvCalendarDocument &document, int page);
    void checkContrast(const MvCalendarDocument &document, int page);

    const QTemporaryDir m_folder;
    QStringList m_fotos;
    QList<QSize> m_sizes;
};

namespace {

constexpr double demanded = 4.4; // 4.5, less what a veil is coarser than its samples

double meanLuminance(const QImage &image, const QRect &rect)
{
    double sum = 0.0;
    for (int y = rect.top(); y <= rect.bottom(); ++y)
        for (int x = rect.left(); x <= rect.right(); ++x)
            sum += MvContrast::luminance(image.pixelColor(x, y));
    return sum / (rect.width() * rect.height());
}

/// Light, dark and busy in turn: fields from coarse to fine over a gradient.
QImage made(const QSize &size, QRandomGenerator &random)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    const auto color = [&random](int least, int most) {
        return QColor::fromHsv(random.bounded(360), random.bounded(200), random.bounded(least, most));
    };
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0.0, color(20, 256));
    sky.setColorAt(1.0, color(20, 256));
    painter.fillRect(image.rect(), sky);
    const int most = 1 + random.bounded(60);
    for (int number = random.bounded(most); number >= 0; --number)
        painter.fillRect(QRect(random.bounded(size.width()), random.bounded(size.height()),
                               size.width() / (1 + most / 8), size.height() / (2 + most / 8)),
                         color(0, 256));
    return image;
}

/// What lies beneath the words of a page, four pixels to a millimetre.
class Beneath
{
public:
    Beneath(const MvCalendarDocument &document, const MvCalendarPage &page)
        : m_scale(0.4)
        , m_image((QSizeF(document.format().trimSize()) * m_scale).toSize(), QImage::Format_RGB32)
    {
        m_image.fill(Qt::white);
        QPainter painter(&m_image);
        painter.scale(m_scale, m_scale);
        page.paintGround(painter, document.format());
        page.paintFoto(painter, document.format());
    }

    void replay(const MvPaintRecording &operation)
    {
        QPainter painter(&m_image);
        painter.scale(m_scale, m_scale);
        operation.replay(painter);
    }

    double contrast(const Item &text) const
    {
        const QRectF scaled(text.bounds.topLeft() * m_scale, text.bounds.size() * m_scale);
        const QRect pixels = scaled.toAlignedRect() & m_image.rect();
        if (pixels.isEmpty())
            return 21.0;
        return MvContrast::ratio(MvContrast::luminance(text.fill), meanLuminance(m_image, pixels));
    }

private:
    double m_scale;
    QImage m_image;
};

} // namespace

void tst_FotoFamilies::initTestCase()
{
    QRandomGenerator random{2027};
    m_sizes = {{600, 400}, {400, 600}, {500, 500}, {900, 300}, {640, 480}, {480, 640}};
    for (int number = 0; number < 60; ++number) {
        m_fotos.append(m_folder.filePath(u"%1.jpg"_s.arg(number)));
        QVERIFY(made(m_sizes[number % m_sizes.size()], random).save(m_fotos.constLast()));
    }
}

void tst_FotoFamilies::printed_data()
{
    const MvRows<int> row; // seed
    const int families = qEnvironmentVariableIsSet("MV_NIGHTLY") ? 36 : 3;
    for (int seed = 1; seed <= families; ++seed)
        row(QString::number(seed), seed);
}

void tst_FotoFamilies::printed()
{
    const auto [seed] = MvRows<int>::current();
    QRandomGenerator random{quint32(seed)};
    const auto below = [&random](qsizetype bound) { return int(random.bounded(int(bound))); };
    const QStringList papers{u"A4"_s, u"A3"_s, u"A5"_s, u"square-300"_s, u"panorama"_s, u"20x30"_s};
    const auto themes = MvThemeRegistry::instance().themes();
    MvNewCalendar wanted;
    wanted.range = {QDate(2027, 1, 1), QDate(2027, 12, 31)};
    wanted.themeId = themes[(seed - 1) % themes.size()].id();
    wanted.format = MvPageFormat::fromName(papers[below(papers.size())]);
    wanted.format.setOrientation(MvPageFormat::Orientation(below(2)));
    wanted.format.setBinding(MvPageFormat::Binding(below(4)));
    wanted.format.setBleed(MvPageFormat::printShopBleed);
    wanted.hasFacingPages = below(4) == 0;
    wanted.title = u"Unser Jahr am See"_s;
    wanted.author = u"Familie Wagenknecht-Obermaier"_s;
    MvCalendarDocument document = wanted.make();
    MvFotoPool pool;
    for (int number = 3 + below(58); number > 0; --number)
        pool.add({m_fotos[number - 1],
                  m_sizes[(number - 1) % m_sizes.size()],
                  QDateTime(QDate(2026, 1, 1).addDays(below(365)), QTime(12, 0)),
                  {0.5, 0.4}});
    document.setFotoPool(pool);
    document = MvFotoDistribution::distribute(document).document;
    const QStringList captions{QString(), u"Am See"_s, u"Der Tag, an dem Oma mit uns auf den Berg gestiegen ist"_s};
    for (const MvCalendarDocument::FrameId &frame : document.frames()) {
        MvFotoElement foto = document.foto(frame);
        foto.setCaption(captions[below(captions.size())]);
        document.setFoto(frame, foto);
    }
    for (int page = 0; page < document.pages().size(); ++page) {
        checkPlaces(document, page);
        checkContrast(document, page);
        if (QTest::currentTestFailed()) {
            qInfo() << wanted.themeId << document.format().trimSize() << document.pages()[page].templateId();
            return;
        }
    }
}

void tst_FotoFamilies::checkPlaces(const MvCalendarDocument &document, int page)
{
    const QList<MvPrintFinding> findings = MvPrintCheck::ofPage(document, page);
    for (const MvPrintFinding &finding : findings)
        QVERIFY2(finding.kind != MvPrintFinding::Kind::InBinding &&
                     finding.kind != MvPrintFinding::Kind::OutsideSafeMargin,
                 qPrintable(finding.toString()));
    const QList<MvPageElement> elements = document.pages()[page].elementsOn(document.format());
    for (int i = 0; i < elements.size(); ++i) {
        for (int other = 0; other < i; ++other) {
            const bool mayLie = elements[i].isOnFoto() && elements[other].foto();
            const QRectF both = elements[i].rect().adjusted(1, 1, -1, -1) & elements[other].rect();
            QVERIFY2(mayLie || both.isEmpty(), qPrintable(elements[i].slot() + u" on "_s + elements[other].slot()));
        }
    }
}

void tst_FotoFamilies::checkContrast(const MvCalendarDocument &document, int page)
{
    const MvCalendarPage &shown = document.pages()[page];
    const MvPaintRecording recording = shown.record(document.format(), document.context());
    Beneath beneath(document, shown);
    for (int number = 0; number < recording.operationCount(); ++number) {
        const MvPaintRecording operation = recording.part(number, 1);
        bool isWritten = false;
        for (const Item &item : operation.items()) {
            if (item.kind != Item::Text)
                continue;
            isWritten = true;
            const double contrast = beneath.contrast(item);
            QVERIFY2(contrast >= demanded, qPrintable(u"„%1“ has %2:1"_s.arg(item.text).arg(contrast)));
        }
        if (!isWritten)
            beneath.replay(operation);
    }
}

MV_TEST_MAIN(tst_FotoFamilies)
#include "tst_FotoFamilies.moc"
