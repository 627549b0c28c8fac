// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvTestFiles.h"
#include "MvWidgetTest.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvGUIWidgets/MvIconRegistry.h"

using namespace Qt::StringLiterals;

/// The icons take the palette's colours, at every size, and can be replaced.
class tst_MvIconRegistry : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyIconDraws_data();
    void everyIconDraws();
    void colourFollowsPalette();
    void overrideFolder_data();
    void overrideFolder();
    void unknownNames();

private:
    static QSet<QRgb> inks(const QPixmap &pixmap);
};

/// The colours of the opaque pixels.
QSet<QRgb> tst_MvIconRegistry::inks(const QPixmap &pixmap)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    QSet<QRgb> result;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) == 255)
                result.insert(image.pixel(x, y));
    return result;
}

void tst_MvIconRegistry::everyIconDraws_data()
{
    const MvRows<QString> row; // name
    const QStringList names = MvIconRegistry::instance().names();
    QVERIFY(names.size() >= 30);
    for (const QString &name : names)
        row(name, name);
}

void tst_MvIconRegistry::everyIconDraws()
{
    const auto [name] = MvRows<QString>::current();
    const QImage image = MvIconRegistry::instance().icon(name).pixmap(QSize(24, 24), 4.0).toImage();
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 0)
                ink |= QRect(x, y, 1, 1);
    QVERIFY(!ink.isEmpty());
    // two units of air all round, so that icons in a row look alike and nothing is cut
    QVERIFY2(QRect(8, 8, 80, 80).contains(ink),
             qPrintable(u"%1,%2 %3x%4"_s.arg(ink.x()).arg(ink.y()).arg(ink.width()).arg(ink.height())));
}

void tst_MvIconRegistry::colourFollowsPalette()
{
    const QPalette before = QApplication::palette();
    const QIcon icon = MvIconRegistry::instance().icon(u"ico_studio_export_pdf"_s);
    const QSize size(64, 64);
    for (const QColor &colour : {QColor(Qt::black), QColor(0x40, 0x80, 0xf0)}) {
        QPalette palette = before;
        palette.setColor(QPalette::Active, QPalette::ButtonText, colour);
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x80, 0x81, 0x82));
        palette.setColor(QPalette::Active, QPalette::HighlightedText, QColor(0xf0, 0xf1, 0xf2));
        QApplication::setPalette(palette);
        QCOMPARE(inks(icon.pixmap(size)), QSet<QRgb>{colour.rgb()});
        QCOMPARE(inks(icon.pixmap(size, QIcon::Disabled)), QSet<QRgb>{qRgb(0x80, 0x81, 0x82)});
        QCOMPARE(inks(icon.pixmap(size, QIcon::Selected)), QSet<QRgb>{qRgb(0xf0, 0xf1, 0xf2)});
    }
    QApplication::setPalette(before);
}

void tst_MvIconRegistry::overrideFolder_data()
{
    const MvRows<QByteArray, bool> row; // svg, isTaken
    row("square",
        QByteArray(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24">)"
                   R"(<rect x="2" y="2" width="20" height="20" fill="currentColor"/></svg>)"),
        true);
    row("cut off", QByteArray(R"(<svg xmlns="http://www.w3.org/2000/svg"><rect x="2")"), false);
    row("another file", QByteArray("<html><body/></html>"), false);
    row("empty", QByteArray(), false);
}

void tst_MvIconRegistry::overrideFolder()
{
    const auto [svg, isTaken] = MvRows<QByteArray, bool>::current();
    const QString name = u"ico_studio_remove"_s; // a bar: its corners are empty
    const QDir folder = MvDirectoryConfig::instance().programDataSubDir(u"icons"_s);
    const QString file = folder.filePath(name + u".svg"_s);
    QVERIFY(MvTestFiles::write(file, svg));
    const auto cleanUp = qScopeGuard([&file] { QFile::remove(file); });

    const MvIconRegistry registry;
    const QImage image = registry.icon(name).pixmap(QSize(24, 24)).toImage();
    QCOMPARE(qAlpha(image.pixel(12, 12)) > 0, true);
    QCOMPARE(qAlpha(image.pixel(4, 4)) > 0, isTaken);
}

void tst_MvIconRegistry::unknownNames()
{
    const MvIconRegistry &registry = MvIconRegistry::instance();
    QVERIFY(registry.icon(u"ico_no_such_thing"_s).isNull());
    QVERIFY(registry.icon(u"../../etc/passwd"_s).isNull());
    QVERIFY(registry.icon(QString()).isNull());
    QVERIFY(registry.applicationIcon().availableSizes().contains(QSize(256, 256)));
}

MV_WIDGET_TEST_MAIN(tst_MvIconRegistry)
#include "tst_MvIconRegistry.moc"
