// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPageAudit.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

using Item = MvPaintRecording::Item;

namespace {

constexpr quint32 seed = 20270312;
constexpr double pixelsPerUnit = 3.0; // the smallest type has stems of some six pixels
constexpr int mostDays = 3;           // of a page; each is painted for itself

bool areAlike(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))}) < 24;
}

/// A part of the page as it is printed.
QImage printed(const MvPrintedPage &page, const QRectF &part)
{
    QImage image((part.size() * pixelsPerUnit).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelsPerUnit, pixelsPerUnit);
    painter.translate(-part.topLeft());
    page.page().paint(painter, page.format(), page.range());
    return image;
}

/// Whether the whole outline stands there in its colour, and can be told from its ground.
bool isSeen(const Item &text, const QImage &image, const QPointF &origin)
{
    QImage mask(image.size(), QImage::Format_Alpha8);
    mask.fill(0);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelsPerUnit, pixelsPerUnit);
    painter.translate(-origin);
    painter.fillPath(text.shape, Qt::black);
    painter.end();
    const QRectF ink(text.bounds.translated(-origin).topLeft() * pixelsPerUnit, text.bounds.size() * pixelsPerUnit);
    if (!QRectF(image.rect()).adjusted(-1, -1, 1, 1).contains(ink))
        return false;
    const QRect bounds = ink.toAlignedRect() & image.rect();
    int inside = 0, painted = 0, outside = 0, hidden = 0;
    for (int y = bounds.top(); y <= bounds.bottom(); ++y) {
        for (int x = bounds.left(); x <= bounds.right(); ++x) {
            const bool hasColor = areAlike(image.pixel(x, y), text.fill.rgb());
            const int coverage = mask.constScanLine(y)[x];
            inside += coverage == 255;
            painted += coverage == 255 && hasColor;
            outside += coverage == 0;
            hidden += coverage == 0 && hasColor;
        }
    }
    return painted >= 0.995 * inside && hidden <= 0.5 * outside;
}

/// The items that together are the text; none when it is not whole.
QList<Item> itemsOf(const QString &text, const QList<Item> &items)
{
    for (qsizetype last = 0; last < items.size(); ++last) {
        QString read;
        for (qsizetype first = last; first >= 0; --first) {
            read.prepend(MvPageAudit::essence(items.at(first).text));
            if (read.contains(MvPageAudit::essence(text)))
                return items.mid(first, last - first + 1);
        }
    }
    return {};
}

/// Any page of all, with any colours.
MvPageChoice drawnLot(QRandomGenerator &random)
{
    const QStringList layouts = MvPageChoice::layouts();
    QList<int> values;
    for (const int size : MvPageChoice::factorSizes())
        values.append(int(random.bounded(size)));
    MvPageChoice choice = MvPageChoice::of(layouts.at(random.bounded(layouts.size())), values);
    const MvCalendariumColorSchemaList colors = MvCalendariumColorSchemaRegistry::instance().visibleSchemata();
    choice.colors =
        MvCalendariumColorSchemaRegistry::instance().id(colors.at(random.bounded(colors.size()))).toString();
    return choice;
}

} // namespace

/// What a page reports is what cannot be read in its pixels: on a sample of all pages, 30 of them, 500 by night.
class tst_PagePixels : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void agreeWithReports_data();
    void agreeWithReports();
};

void tst_PagePixels::agreeWithReports_data()
{
    const MvRows<int> row; // number
    const int pages = qEnvironmentVariableIsEmpty("MV_NIGHTLY") ? 30 : 500;
    for (int number = 0; number < pages; ++number)
        row(QString::asprintf("%d", number), number);
}

void tst_PagePixels::agreeWithReports()
{
    const auto [number] = MvRows<int>::current();
    QRandomGenerator random(seed + quint32(number));
    std::unique_ptr<MvPrintedPage> page; // until there is one with texts
    QList<MvPrintedPage::Day> days;
    while (days.isEmpty()) {
        page = std::make_unique<MvPrintedPage>(drawnLot(random), QString(), pixelsPerUnit);
        for (const MvPrintedPage::Day &day : std::as_const(page->days)) {
            if (!page->dayTexts.value(day.date).isEmpty() && !day.rect.isEmpty())
                days.append(day);
        }
    }
    std::shuffle(days.begin(), days.end(), random);
    days.resize(std::min<qsizetype>(mostDays, days.size()));
    for (const MvPrintedPage::Day &day : std::as_const(days)) {
        const QImage image = printed(*page, day.rect);
        QList<Item> items;
        for (const Item &item : std::as_const(page->items)) {
            if (item.kind == Item::Text && !item.bounds.isEmpty() && day.rect.intersects(item.bounds))
                items.append(item);
        }
        const QStringList texts = page->dayTexts.value(day.date);
        for (const QString &text : texts) {
            const QList<Item> parts = itemsOf(text, items);
            const bool isWhole = !parts.isEmpty() && std::all_of(parts.begin(), parts.end(), [&](const Item &part) {
                return isSeen(part, image, day.rect.topLeft());
            });
            const bool isReported =
                std::any_of(page->unfitting.cbegin(), page->unfitting.cend(),
                            [&](const auto &report) { return report.date == day.date && report.text.contains(text); });
            const QString what =
                page->choice().describe() + u", %1: \"%2\" on %3 %4"_s.arg(page->choice().colors, text,
                                                                           day.date.toString(Qt::ISODate),
                                                                           isWhole ? u"is whole"_s : u"is not whole"_s);
            if (isWhole == isReported && !qEnvironmentVariableIsEmpty("MV_PAGE_PNG"))
                image.save(qEnvironmentVariable("MV_PAGE_PNG") + u"/pixels-%1.png"_s.arg(number));
            QVERIFY2(isWhole != isReported, qPrintable(what));
        }
    }
}

MV_TEST_MAIN(tst_PagePixels)
#include "tst_PagePixels.moc"
