// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFolderTest.h"
#include "MvRows.h"

#include "MvFoto/MvFotoPass.h"
#include "MvFoto/MvFotoService.h"
#include "MvFoto/MvFotoThumbnails.h"

#include <memory>

using Fit = MvFotoOrder::Fit;
using Urgency = MvFotoService::Urgency;

/// Photos of 64 x 32 pixels: red, with a green square of half the width in the middle.
constexpr int mostThreads = 3; // of a service

class tst_MvFotoService : public MvFolderTest
{
    Q_OBJECT

private:
    MvFotoOrder order(const QString &name, const QSize &size = {16, 16}, Fit fit = Fit::Within) const
    {
        return {path(name), size, fit, MvFotoStamp::of(path(name))};
    }
    void write(const QString &name, const QSize &size = {64, 32}) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        const int side = size.height();
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x)
                image.setPixelColor((size.width() - side) / 2 + x, y, Qt::green);
        QVERIFY(image.save(path(name)));
    }

private Q_SLOTS:
    void initTestCase();
    void mostUrgentFirst();
    void fits_data();
    void fits();
    void keepsWhatIsReadUntilTheFileChanges();
    void runsForThoseWhoStay();
    void pagesAreTold();
    void thumbnails();
};

void tst_MvFotoService::initTestCase()
{
    for (const QString &name : {u"a.png"_qs, u"b.png"_qs, u"c.png"_qs, u"d.png"_qs, u"e.png"_qs, u"f.png"_qs})
        write(name);
    put(u"broken.jpg"_qs, "no photo");
}

void tst_MvFotoService::mostUrgentFirst()
{
    MvFotoService service(1);
    QStringList arrived;
    connect(&service, &MvFotoService::arrived, this,
            [&arrived](const MvFotoOrder &order) { arrived.append(QFileInfo(order.path).baseName()); });
    QSemaphore gate;
    service.run(Urgency::Background, this, [&gate]() -> MvFotoService::Use {
        gate.acquire(); // meanwhile the others queue up
        return {};
    });
    QList<MvFotoRequest> requests;
    const auto ask = [&](const QString &name, Urgency urgency) {
        requests.append(service.request(order(name), urgency));
    };
    ask(u"a.png"_qs, Urgency::Background);
    ask(u"b.png"_qs, Urgency::Background);
    ask(u"c.png"_qs, Urgency::Background);
    ask(u"d.png"_qs, Urgency::Listed);
    ask(u"e.png"_qs, Urgency::Listed);
    ask(u"f.png"_qs, Urgency::Seen);
    ask(u"b.png"_qs, Urgency::Seen);       // now on the page in sight
    ask(u"f.png"_qs, Urgency::Background); // which does not make it less urgent
    service.run(Urgency::Awaited, this, [] { return [] {}; });
    requests.removeAt(2); // nobody wants c.png any more
    gate.release();
    QTRY_COMPARE(arrived.size(), 5);
    QTest::qWait(20);
    QCOMPARE(arrived, (QStringList{u"b"_qs, u"f"_qs, u"e"_qs, u"d"_qs, u"a"_qs}));
}

void tst_MvFotoService::fits_data()
{
    const MvRows<int, QSize, QSize, QColor> add; // fit, asked, given, corner
    const auto row = [&](const char *name, Fit fit, const QSize &asked, const QSize &given, Qt::GlobalColor corner) {
        add(name, int(fit), asked, given, QColor(corner));
    };
    row("within, smaller", Fit::Within, {16, 16}, {16, 8}, Qt::red);
    row("within, larger", Fit::Within, {128, 128}, {128, 64}, Qt::red);
    row("no larger than the file", Fit::WithinOwnSize, {128, 128}, {64, 32}, Qt::red);
    row("covering: the middle", Fit::Covering, {16, 16}, {16, 16}, Qt::green);
    row("covering, enlarged", Fit::Covering, {40, 40}, {40, 40}, Qt::green);
}

void tst_MvFotoService::fits()
{
    const auto [fit, asked, given, corner] = MvRows<int, QSize, QSize, QColor>::current();
    MvFotoService service;
    const MvFotoRequest request = service.request(order(u"a.png"_qs, asked, Fit(fit)), Urgency::Seen);
    QTRY_VERIFY(request.isDone());
    QCOMPARE(request.image().size(), given);
    QCOMPARE(request.image().pixelColor(2, request.image().height() / 2), corner);
}

void tst_MvFotoService::keepsWhatIsReadUntilTheFileChanges()
{
    MvFotoService service;
    write(u"new.png"_qs);
    MvFotoOrder anyState{path(u"new.png"_qs), {16, 16}, Fit::WithinOwnSize, {}};
    MvFotoRequest request = service.request(anyState, Urgency::Seen);
    QVERIFY(!request.isDone()); // nothing is read on this thread
    QTRY_VERIFY(request.isDone());
    QCOMPARE(request.fullSize(), QSize(64, 32));
    const qint64 key = request.image().cacheKey();
    request = {};
    QCOMPARE(service.request(order(u"new.png"_qs, {16, 16}, Fit::WithinOwnSize), Urgency::Seen).image().cacheKey(),
             key);

    write(u"new.png"_qs, {96, 16});
    request = service.request(anyState, Urgency::Seen);
    QTRY_VERIFY(request.isDone());
    QCOMPARE(request.fullSize(), QSize(96, 16));
    QVERIFY(request.stamp() == MvFotoStamp::of(path(u"new.png"_qs)));

    request = service.request(order(u"broken.jpg"_qs), Urgency::Seen);
    QTRY_VERIFY(request.isDone());
    request = {};
    QVERIFY(service.request(order(u"broken.jpg"_qs), Urgency::Seen).isDone()); // known to be unreadable
}

void tst_MvFotoService::runsForThoseWhoStay()
{
    MvFotoService service(1);
    QStringList called;
    auto *early = new QObject;
    auto *late = new QObject;
    QSemaphore begun;
    QSemaphore gate;
    service.run(Urgency::Seen, late, [&]() -> MvFotoService::Use {
        begun.release();
        gate.acquire();
        return [&called] { called.append(u"late"_qs); };
    });
    service.run(Urgency::Seen, early, [&called] { return [&called] { called.append(u"early"_qs); }; });
    service.run(Urgency::Background, this, [&called] { return [&called] { called.append(u"stays"_qs); }; });
    begun.acquire();
    delete early;
    delete late;
    gate.release();
    QTRY_COMPARE(called, QStringList{u"stays"_qs});
}

void tst_MvFotoService::pagesAreTold()
{
    const auto scaled = [this](MvFotoPass &pass, const QString &name, int width) {
        return pass.scaled(QFileInfo(path(name)), {width, width}).size();
    };
    const auto gate = std::make_shared<QSemaphore>();
    const auto holdAllThreads = [this, gate] {
        for (int thread = 0; thread < mostThreads; ++thread)
            MvFotoService::instance().run(Urgency::Awaited, this, [gate]() -> MvFotoService::Use {
                gate->acquire();
                return {};
            });
    };
    MvFotoPages pages(Urgency::Background);
    QSignalSpy arrived(&pages, &MvFotoPages::arrived);
    holdAllThreads();
    {
        MvFotoPass first(pages, 1);
        QVERIFY(first.isComplete());
        for (const QString &name : {u"a.png"_qs, u"b.png"_qs, u"broken.jpg"_qs})
            QCOMPARE(scaled(first, name, 16), QSize(0, 0));
        QVERIFY(!first.isComplete());
        MvFotoPass second(pages, 2);
        QCOMPARE(scaled(second, u"a.png"_qs, 16), QSize(0, 0));
        MvFotoPass given(pages, 3);
        QCOMPARE(scaled(given, u"b.png"_qs, 16), QSize(0, 0));
    }
    pages.letGo(3);
    gate->release(mostThreads);
    QTRY_COMPARE(arrived.count(), 2);
    QCOMPARE((QSet<int>{arrived.at(0).at(0).toInt(), arrived.at(1).at(0).toInt()}), (QSet<int>{1, 2}));
    holdAllThreads();
    {
        MvFotoPass again(pages, 1);
        QCOMPARE(scaled(again, u"a.png"_qs, 16), QSize(16, 8));
        QCOMPARE(scaled(again, u"broken.jpg"_qs, 16), QSize(0, 0)); // known now: not to be waited for once more
        QCOMPARE(scaled(again, u"missing.png"_qs, 16), QSize(0, 0));
        QVERIFY(again.isComplete());
        QCOMPARE(scaled(again, u"a.png"_qs, 32), QSize(16, 8)); // the best there is
        QVERIFY(!again.isComplete());
    }
    gate->release(mostThreads);
    QTRY_COMPARE(arrived.count(), 3);
    MvFotoPass last(pages, 1);
    QCOMPARE(scaled(last, u"a.png"_qs, 32), QSize(32, 16));
    QVERIFY(last.isComplete());
}

void tst_MvFotoService::thumbnails()
{
    MvFotoThumbnails thumbnails;
    QSignalSpy ready(&thumbnails, &MvFotoThumbnails::ready);
    const MvFoto foto(QFileInfo(path(u"a.png"_qs)));
    QVERIFY(thumbnails.cropped(foto, {10, 10}, 2).isNull()); // not decoded here
    QTRY_COMPARE(ready.count(), 1);
    const QPixmap pixmap = thumbnails.cropped(foto, {10, 10}, 2);
    QCOMPARE(pixmap.size(), QSize(20, 20));
    QCOMPARE(pixmap.devicePixelRatio(), 2.0);
    QCOMPARE(pixmap.toImage().pixelColor(1, 1), QColor(Qt::green));
    QVERIFY(thumbnails.cropped(MvFoto(), {10, 10}, 1).isNull());
    QVERIFY(thumbnails.cropped(MvFoto(QFileInfo(path(u"broken.jpg"_qs))), {10, 10}, 1).isNull());
    QTRY_COMPARE(ready.count(), 2);
    thumbnails.cropped(MvFoto(QFileInfo(path(u"broken.jpg"_qs))), {10, 10}, 1);
    QTest::qWait(20);
    QCOMPARE(ready.count(), 2); // not again and again
}

MV_TEST_MAIN(tst_MvFotoService)
#include "tst_MvFotoService.moc"
