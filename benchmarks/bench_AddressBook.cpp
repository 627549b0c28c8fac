// SPDX-License-Identifier: LGPL-2.1-or-later
// A telephone's address book: 300 contacts with photos of 720 x 720, 100 of them with a birthday. What reading the
// cards costs beside reading the bytes of their file, and what the whole import costs beside decoding the 100 photos.

#include "MvCalendar/MvAddressBookImport.h"
#include "MvFoto/MvGuardedImageReader.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int contacts = 300;
constexpr int birthdays = 100;

/// With noise, as large as a camera's photo of that size.
QByteArray foto()
{
    QImage image(720, 720, QImage::Format_RGB32);
    QRandomGenerator random(1);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x / 3, y / 3, random.bounded(120)));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "jpeg", 85);
    return bytes;
}

class Book
{
public:
    Book()
        : m_foto(foto())
    {
        const QByteArray code = m_foto.toBase64();
        QFile cards(file().filePath());
        m_isWritten = cards.open(QIODevice::WriteOnly);
        for (int i = 0; i < contacts; ++i) {
            cards.write("BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Person " + QByteArray::number(i) + "\r\nPHOTO;ENCODING=b:");
            for (qsizetype at = 0; at < code.size(); at += 74)
                cards.write(code.mid(at, 74) + "\r\n ");
            cards.write(i % (contacts / birthdays) == 0 ? "\r\nBDAY:19900517\r\nEND:VCARD\r\n" : "\r\nEND:VCARD\r\n");
        }
        m_isWritten = m_isWritten && cards.error() == QFileDevice::NoError;
    }

    bool isWritten() const { return m_isWritten; }
    QFileInfo file() const { return QFileInfo(m_folder.filePath(u"contacts.vcf"_s)); }

    /// Seconds for the bytes of the file.
    double reading() const
    {
        QElapsedTimer clock;
        clock.start();
        QFile cards(file().filePath());
        if (cards.open(QIODevice::ReadOnly))
            while (!cards.atEnd())
                benchmark::DoNotOptimize(cards.read(65536));
        return double(clock.nsecsElapsed()) / 1e9;
    }

    /// Seconds for the photos of the birthdays.
    double decoding() const
    {
        QElapsedTimer clock;
        clock.start();
        for (int i = 0; i < birthdays; ++i)
            benchmark::DoNotOptimize(MvGuardedImageReader(m_foto).read({720, 720}));
        return double(clock.nsecsElapsed()) / 1e9;
    }

private:
    QTemporaryDir m_folder;
    QByteArray m_foto;
    bool m_isWritten = false;
};

void import(benchmark::State &state, bool withFotos)
{
    const Book book;
    if (!book.isWritten())
        return state.SkipWithError("no temporary file");
    double seconds = 0.0;
    double yardstick = 0.0;
    for (auto _ : state) {
        yardstick += withFotos ? book.decoding() : book.reading();
        QElapsedTimer clock;
        clock.start();
        MvAddressBookImport import({book.file()});
        import.readCards();
        if (withFotos)
            import.makeEntries({}, MvVCardDate::Order::Unknown);
        const double taken = double(clock.nsecsElapsed()) / 1e9;
        seconds += taken;
        state.SetIterationTime(taken);
    }
    state.counters["ratio"] = seconds / yardstick;
}

} // namespace

static void readCards(benchmark::State &state)
{
    import(state, false);
}
BENCHMARK(readCards)->UseManualTime()->Unit(benchmark::kMillisecond);

static void importBirthdays(benchmark::State &state)
{
    import(state, true);
}
BENCHMARK(importBirthdays)->UseManualTime()->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    const QTemporaryDir home; // the photo folder
    qputenv("MVCALENDAR_DATA", QFile::encodeName(home.path()));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
