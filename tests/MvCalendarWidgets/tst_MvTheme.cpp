// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvContrast.h"
#include "MvRows.h"
#include "MvTestFiles.h"
#include "MvWidgetTest.h"

#include "MvGUIWidgets/MvTheme.h"

using namespace Qt::StringLiterals;

/// Both palettes can be read, and the style sheet knows the widgets of the libraries and follows the palette.
class tst_MvTheme : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void contrast_data();
    void contrast();
    void outlines();
    void everyCssStyleIsDefined();
    void switchesColours();
};

void tst_MvTheme::contrast_data()
{
    const MvRows<QPalette, int, double> row; // palette, group, minimum
    for (const bool dark : {false, true}) {
        const QPalette palette = dark ? MvTheme::darkPalette() : MvTheme::lightPalette();
        const QByteArray name = dark ? "dark" : "light";
        row(name + " active", palette, int(QPalette::Active), 4.5);
        row(name + " inactive", palette, int(QPalette::Inactive), 4.5);
        row(name + " disabled", palette, int(QPalette::Disabled), 2.4);
    }
}

void tst_MvTheme::contrast()
{
    const auto [palette, group, minimum] = MvRows<QPalette, int, double>::current();
    using Role = QPalette::ColorRole;
    const std::pair<Role, QList<Role>> pairs[] = {
        {QPalette::WindowText, {QPalette::Window, QPalette::AlternateBase, QPalette::Midlight}},
        {QPalette::Text, {QPalette::Base, QPalette::AlternateBase}},
        {QPalette::PlaceholderText, {QPalette::Base, QPalette::AlternateBase, QPalette::Window}},
        {QPalette::ButtonText, {QPalette::Button, QPalette::Window, QPalette::Midlight}},
        {QPalette::HighlightedText, {QPalette::Highlight}},
        {QPalette::BrightText, {QPalette::Highlight}},
        {QPalette::Link, {QPalette::Base, QPalette::Window}},
        {QPalette::LinkVisited, {QPalette::Base, QPalette::Window}},
        {QPalette::ToolTipText, {QPalette::ToolTipBase}},
    };
    const auto colorGroup = QPalette::ColorGroup(group);
    for (const auto &[text, grounds] : pairs)
        for (const Role ground : grounds) {
            const double ratio = MvContrast::ratio(palette.color(colorGroup, text), palette.color(colorGroup, ground));
            QVERIFY2(ratio >= minimum, qPrintable(u"text role %1 on %2: %3"_s.arg(text).arg(ground).arg(ratio)));
        }
    if (colorGroup != QPalette::Disabled) // outlines of controls, and of what has the focus
        for (const Role outline : {QPalette::Mid, QPalette::Highlight})
            for (const Role ground : {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button}) {
                const double ratio =
                    MvContrast::ratio(palette.color(colorGroup, outline), palette.color(colorGroup, ground));
                QVERIFY2(ratio >= 3.0, qPrintable(u"outline role %1 on %2: %3"_s.arg(outline).arg(ground).arg(ratio)));
            }
}

/// The left edge of each control, in the middle of its height, is drawn in a colour that stands out from the window.
void tst_MvTheme::outlines()
{
    QComboBox editable;
    editable.setEditable(true);
    QCheckBox checkBox;
    QRadioButton radioButton;
    QLineEdit lineEdit;
    QSpinBox spinBox;
    QComboBox comboBox;
    QPushButton button(u"M"_s);
    QWidget *const controls[] = {&checkBox, &radioButton, &lineEdit, &spinBox, &comboBox, &editable, &button};
    for (const MvTheme::Scheme scheme : {MvTheme::Scheme::Light, MvTheme::Scheme::Dark}) {
        MvTheme::apply(scheme);
        for (QWidget *widget : controls) {
            QWidget window;
            widget->setParent(&window);
            widget->move(10, 10);
            widget->resize(widget->sizeHint());
            window.resize(widget->size() + QSize(20, 20));
            const QImage image = window.grab().toImage();
            const QColor ground = QApplication::palette().color(QPalette::Window);
            double best = 1.0;
            for (int x = 9; x < 13; ++x)
                best = std::max(best, MvContrast::ratio(image.pixelColor(x, 10 + widget->height() / 2), ground));
            widget->setParent(nullptr);
            QVERIFY2(best >= 3.0, widget->metaObject()->className());
        }
    }
}

/// A style named in the sources but missing in the sheet would go unnoticed.
void tst_MvTheme::everyCssStyleIsDefined()
{
    const QString styles = QString::fromUtf8(MvTestFiles::contentOf(u":/mvcalendar/styles/studio.qss"_s));
    const QRegularExpression use(uR"re("cssstyle"\s*,\s*(?:QVariant\()?(?:QStringLiteral\()?u?"([^"]+)")re"_s);
    for (const QString &folder : {u"libs"_s, u"apps"_s}) {
        QDirIterator files(QStringLiteral(MV_SOURCE_ROOT "/") + folder, {u"*.cpp"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile source(files.next());
            QVERIFY(source.open(QIODevice::ReadOnly));
            for (const auto &match : use.globalMatch(QString::fromUtf8(source.readAll())))
                QVERIFY2(styles.contains(u"[cssstyle=\"%1\"]"_s.arg(match.captured(1))),
                         qPrintable(source.fileName() + u": "_s + match.captured(1)));
        }
    }
}

void tst_MvTheme::switchesColours()
{
    QWidget window;
    QPushButton link(u"MMMM"_s, &window);
    link.setProperty("cssstyle", u"hyperlinkStyle"_s);
    const auto has = [&window](const QColor &colour) {
        const QImage image = window.grab().toImage();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) == colour)
                    return true;
        return false;
    };
    for (const MvTheme::Scheme scheme : {MvTheme::Scheme::Dark, MvTheme::Scheme::Light, MvTheme::Scheme::Dark}) {
        const bool isDark = scheme == MvTheme::Scheme::Dark;
        MvTheme::apply(scheme);
        QCOMPARE(MvTheme::isDark(QApplication::palette()), isDark);
        const QPalette expected = isDark ? MvTheme::darkPalette() : MvTheme::lightPalette();
        QVERIFY(has(expected.color(QPalette::Link)));
        QVERIFY(has(expected.color(QPalette::Window)));
    }
    MvTheme::apply(MvTheme::Scheme::System); // the test's desktop is light, whatever was set since
    QVERIFY(!MvTheme::isDark(QApplication::palette()));
}

MV_WIDGET_TEST_MAIN(tst_MvTheme)
#include "tst_MvTheme.moc"
