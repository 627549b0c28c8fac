// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"
#include "MvProject/MvPictureExporter.h"
#include "MvProjectFixture.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"

#include <QImageReader>

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

using namespace Qt::StringLiterals;

/// A page's PDF, painted by other programs, is the picture that the product makes of the page: nothing elsewhere,
/// missing, bolder or of another colour. A few layouts; all of them by night.
///
/// Compared are pixels of 300 dots per inch, each the mean of finer ones. At 300 itself programs differ in how they
/// approximate: ours takes curves for polygons within a quarter of a pixel, which makes up to 60 of 255 at the edge of
/// a letter, poppler moves rectangles to whole pixels, and Ghostscript glyphs, besides that it fills each pixel which a
/// shape touches.
class tst_SamePicture : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QImageReader::setAllocationLimit(0); }
    void layouts_data();
    void layouts();
};

namespace {

constexpr int dpi = 300;
constexpr int finerOurs = 4; // there is no more than 1200
constexpr int tolerance = 8; // that nearly all samples keep
constexpr int most = 24;     // that all do

/// Pictures for the means of fields of so many pixels, row by row.
class Means
{
public:
    Means(const QSize &size, int side)
        : m_side(side)
        , m_image(size / side, QImage::Format_RGB32)
        , m_sums(size_t(m_image.width()) * 3)
    {}

    void add(const uchar *row)
    {
        for (size_t field = 0; field < m_sums.size(); field += 3) {
            for (int x = 0; x < m_side; ++x, row += 3) {
                for (size_t part = 0; part < 3; ++part)
                    m_sums[field + part] += row[part];
            }
        }
        if (++m_rows % m_side == 0)
            finishRow(m_rows / m_side - 1);
    }
    QImage image() const { return m_image; }

private:
    void finishRow(int y)
    {
        const int count = m_side * m_side;
        auto *line = reinterpret_cast<QRgb *>(m_image.scanLine(y));
        for (size_t x = 0; x < size_t(m_image.width()); ++x) {
            const auto mean = [&](size_t part) { return (m_sums[x * 3 + part] + count / 2) / count; };
            line[x] = qRgb(mean(0), mean(1), mean(2));
        }
        std::fill(m_sums.begin(), m_sums.end(), 0);
    }

    int m_side;
    QImage m_image;
    std::vector<int> m_sums;
    int m_rows = 0;
};

QImage ours(const QString &file)
{
    const QImage fine = QImage(file).convertToFormat(QImage::Format_RGB888);
    Means means(fine.size(), finerOurs);
    for (int y = 0; y < fine.height(); ++y)
        means.add(fine.constScanLine(y));
    return means.image();
}

/// The next bytes of the program, as many as asked for; fewer at its end.
QByteArray bytesOf(QProcess &process, qint64 count)
{
    while (process.bytesAvailable() < count && process.waitForReadyRead(600'000)) {}
    return process.read(count);
}

QByteArray lineOf(QProcess &process)
{
    QByteArray line;
    while (!line.endsWith('\n')) {
        const QByteArray next = bytesOf(process, 1);
        if (next.isEmpty())
            return {};
        line += next;
    }
    return line;
}

/// What a program that writes a PPM paints; row by row, since it may be gigabytes.
QImage painted(const QStringList &call, int finer)
{
    QProcess process;
    process.start(call.first(), call.mid(1));
    lineOf(process);
    QList<int> head; // width, height, most
    while (head.size() < 3) {
        const QByteArray line = lineOf(process);
        if (line.isEmpty())
            return {};
        for (const QByteArray &word : line.startsWith('#') ? QByteArrayList() : line.simplified().split(' '))
            head.append(word.toInt());
    }
    Means means({head[0], head[1]}, finer);
    for (int y = 0; y < head[1]; ++y) {
        const QByteArray row = bytesOf(process, qint64(head[0]) * 3);
        if (row.size() != qsizetype(head[0]) * 3)
            return {};
        means.add(reinterpret_cast<const uchar *>(row.constData()));
    }
    return process.waitForFinished() && process.exitCode() == 0 ? means.image() : QImage();
}

struct Program
{
    const char *name;
    int finer; // so that what it approximates does not count
    QStringList call;
};

QList<Program> programs()
{
    const auto resolution = [](int finer) { return QString::number(dpi * finer); };
    return {{"poppler", 8, {u"pdftoppm"_s, u"-r"_s, resolution(8)}},
            {"Ghostscript",
             24,
             {u"gs"_s, u"-q"_s, u"-dSAFER"_s, u"-dBATCH"_s, u"-dNOPAUSE"_s, u"-sDEVICE=ppmraw"_s,
              u"-r"_s + resolution(24), u"-sOutputFile=-"_s, u"-c"_s, u"0 0 .setfilladjust2"_s, u"-f"_s}}};
}

/// How many samples differ by how much.
std::array<qint64, 256> differences(const QImage &a, const QImage &b)
{
    std::array<qint64, 256> counts{};
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y);
            const QRgb other = b.pixel(x, y);
            for (const int difference :
                 {qRed(one) - qRed(other), qGreen(one) - qGreen(other), qBlue(one) - qBlue(other)})
                ++counts[size_t(std::abs(difference))];
        }
    }
    return counts;
}

/// Smooth, so that programs that scale in different ways agree; its edges are those of a photo.
void writeFoto(const QString &path)
{
    QImage image(900, 600, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * 200 / image.width(), y * 200 / image.height(), 90));
    QVERIFY(image.save(path));
}

} // namespace

void tst_SamePicture::layouts_data()
{
    const MvRows<QString, QString, bool> row; // layout, colors, hasFoto
    const bool isNightly = qEnvironmentVariableIsSet("MV_NIGHTLY");
    int number = 0;
    for (const MvCalendariumLayoutSchema &layout : MvCalendariumLayoutSchemaRegistry::instance().schemata()) {
        const QString id = layout.ID().toString();
        const bool isFew = id == u"MONTH_GRID_CLASSIC"_s || id == u"YEAR_GRID"_s;
        if (isNightly || isFew)
            row(id, id, (number % 2 ? u"NIGHT"_s : u"PAPER_WHITE"_s), (number % 3 == 0));
        ++number;
    }
}

void tst_SamePicture::layouts()
{
    const auto [layout, colors, hasFoto] = MvRows<QString, QString, bool>::current();
    const QTemporaryDir folder;
    MvCalendarDocument calendar = MvProjectFixture::document(layout, 1);
    calendar.setAppearance(MvProjectFixture::appearance(layout, colors));
    calendar.setFormat(MvPageFormat(QSizeF(1524, 1016))); // whole pixels; without bleed, which pictures do not show
    writeFoto(folder.filePath(u"foto.png"_s));
    if (hasFoto)
        MvProjectFixture::setFoto(calendar, 0,
                                  MvFotoFrame(folder.filePath(u"foto.png"_s), MvFotoFrame::Placement::Left));
    const QString pdf = folder.filePath(u"k.pdf"_s);
    const QString png = folder.filePath(u"k.png"_s);
    QVERIFY(MvPdfExporter::write(calendar.pageSource(), QFileInfo(pdf)).isOk());
    QVERIFY(MvPictureExporter::write(calendar.pageSource(), png, dpi * finerOurs).isOk());
    const QImage wanted = ours(png);
    for (const Program &program : programs()) {
        const QImage seen = painted(program.call + QStringList{pdf}, program.finer);
        QCOMPARE(seen.size(), wanted.size());
        const auto counts = differences(seen, wanted);
        const double samples = 3.0 * wanted.width() * wanted.height();
        const auto above = [&](int least) {
            return 100.0 * double(std::accumulate(counts.begin() + least + 1, counts.end(), qint64(0))) / samples;
        };
        int largest = 255;
        while (largest > 0 && counts[size_t(largest)] == 0)
            --largest;
        const QString figures = u"%1: %2 % above %3, at most %4"_s.arg(QLatin1String(program.name))
                                    .arg(above(tolerance), 0, 'f', 4)
                                    .arg(tolerance)
                                    .arg(largest);
        if (qEnvironmentVariableIsSet("MV_NIGHTLY"))
            qInfo().noquote() << figures;
        QVERIFY2(above(tolerance) <= 0.1 && largest <= most, qPrintable(figures));
    }
}

MV_TEST_MAIN(tst_SamePicture)
#include "tst_SamePicture.moc"
