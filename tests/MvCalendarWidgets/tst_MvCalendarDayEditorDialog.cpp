// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvRequestScript.h"
#include "MvRows.h"
#include "MvWidgetDriver.h"
#include "MvWidgetTest.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvUndoCommandCalendarEvent.h"
#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvUndoController.h"
#include "MvFoto/MvFotoService.h"

using MvEntries::entry;

class tst_MvCalendarDayEditorDialog : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void namesThatCount_data();
    void namesThatCount();
    void stepsAreChanges();
    void keysAlone();
    void typedDates_data();
    void typedDates();
    void whatIsNoDate();
    void sectionsOfTheDate();
    void birthdaysWithoutAYear();
    void drops();
    void choosesByKeyboard();
    void largeFotosArriveLater();
    void unreadableFotosAreKept();
    void removeButtonFades();
    void belongsToItsWindowAndDocument();
    void oneEditorPerEntry();
    void followsItsEntry_data();
    void followsItsEntry();
    void entriesThatAreGone();
    void nothingIsCut();

private:
    static MvCalendarEventList events() { return MvCalendarEventRegistry::instance().activeEventList(); }
    template <class Widget>
    static Widget *part(const QWidget &dialog, const QString &name)
    {
        return dialog.findChild<Widget *>(name);
    }
    static QPushButton *ok(const QWidget &dialog) { return part<QPushButton>(dialog, u"okButton"_qs); }
    static QLineEdit *description(const QWidget &dialog) { return part<QLineEdit>(dialog, u"descriptionEdit"_qs); }
    QString path(const QString &file) const { return m_folder.filePath(file); }

    QTemporaryDir m_folder;
};

void tst_MvCalendarDayEditorDialog::initTestCase()
{
    QVERIFY(MvWidgetDriver::writeFoto(path(u"rot.png"_qs), Qt::red));
    QVERIFY(MvWidgetDriver::writeFoto(path(u"blau.png"_qs), Qt::blue));
    QVERIFY(MvWidgetDriver::writeFoto(path(u"groß.jpg"_qs), Qt::green, {4000, 3000}));
    QVERIFY(MvWidgetDriver::write(path(u"text.png"_qs), "kein Foto"));
}

void tst_MvCalendarDayEditorDialog::init()
{
    failOnWarnings();
    MvUndoController::instance().clear();
    MvCalendarEventRegistry::instance().setEvents({});
}

void tst_MvCalendarDayEditorDialog::namesThatCount_data()
{
    const MvRows<QString, bool> row; // name, enabled
    row("none", QString(), false);
    row("blanks", u" \t "_qs, false);
    row("nothing to be seen", u"\u0007\u200b"_qs, false);
    row("a name", u" Zoë "_qs, true);
}

void tst_MvCalendarDayEditorDialog::namesThatCount()
{
    const auto [name, enabled] = MvRows<QString, bool>::current();
    MvCalendarDayEditorDialog dialog(nullptr);
    dialog.openDayEditorSeries(entry(u"vorher"_qs, QDate(2027, 6, 5)));
    description(dialog)->setText(name);
    QCOMPARE(ok(dialog)->isEnabled(), enabled);
    QCOMPARE(part<QPushButton>(dialog, u"okAndContinueButton"_qs)->isEnabled(), enabled);
    dialog.openDayEditorSingle(entry(name, QDate(2027, 6, 5))); // with the name from the start
    QCOMPARE(ok(dialog)->isEnabled(), enabled);
}

void tst_MvCalendarDayEditorDialog::stepsAreChanges()
{
    MvCalendarDayEditorDialog dialog(nullptr);
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    dialog.openDayEditorSingle(entry({}, QDate(2027, 6, 5)));
    QCOMPARE(part<QLabel>(dialog, u"dateLabel"_qs)->text(), u"Samstag, 5. Juni 2027"_qs);
    QTest::keyClicks(description(dialog), u"Oma"_qs);
    ok(dialog)->click();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(events().size(), 1);
    const QUuid uuid = events().first().uuid();

    dialog.openDayEditorSingle(events().first());
    part<QDateTimeEdit>(dialog, u"dateEdit"_qs)->setDate({1604, 2, 29}); // a birthday without a year
    ok(dialog)->click();
    QCOMPARE(events().first().dateTime().date(), QDate(1604, 2, 29));
    QCOMPARE(events().first().uuid(), uuid);
    QVERIFY(!events().first().hasYear());

    dialog.openDayEditorSingle(events().first());
    ok(dialog)->click(); // nothing changed
    QCOMPARE(MvUndoController::instance().stack()->count(), 2);

    dialog.openDayEditorSingle(entry({}, QDate(2027, 6, 5)));
    description(dialog)->setText(u"doch nicht"_qs);
    part<QPushButton>(dialog, u"deleteButton"_qs)->click(); // what is only to come
    dialog.openDayEditorSingle(events().first());
    description(dialog)->setText(u"doch nicht"_qs);
    part<QPushButton>(dialog, u"cancelButton"_qs)->click();
    QCOMPARE(MvUndoController::instance().stack()->count(), 2);
    QCOMPARE(events().size(), 1);
    QCOMPARE(accepted.count(), 4);
}

void tst_MvCalendarDayEditorDialog::keysAlone()
{
    MvCalendarDayEditorDialog dialog(nullptr);
    dialog.openDayEditorSeries(entry(u"Anna"_qs, QDate(2027, 6, 5)));
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QStringList order;
    for (int i = 0; i < 9; ++i) {
        order.append(dialog.focusWidget()->objectName());
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    // out of the way are the button for removing a photo, without one, and that for deleting what is only to come
    QCOMPARE(order,
             (QStringList{u"descriptionEdit"_qs, u"repetitionCombo"_qs, u"groupCombo"_qs, u"endBox"_qs, u"fotoLabel"_qs,
                          u"cancelButton"_qs, u"okAndContinueButton"_qs, u"okButton"_qs, u"dateEdit"_qs}));
    QTest::keyClick(description(dialog), Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(!dialog.isVisible());
}

void tst_MvCalendarDayEditorDialog::typedDates_data()
{
    const MvRows<QString, QDate, QStringList> row; // locale, date, texts
    row("de_DE", u"de_DE"_qs, QDate(1950, 12, 24),
        u"24.12.1950|24.12.50|24. 12. 1950|24,12,1950|1950-12-24|1950.12.24|24/12/1950|24-12-50|"
        "24 12 50|24121950|241250|24. Dezember 1950|24.Dez.1950|December 24, 1950|"
        "Sonntag, 24. Dezember 1950|So 24.12.1950|  24.12.1950 "_qs.split(u'|'));
    row("de_DE, short", u"de_DE"_qs, QDate(2026, 3, 5), u"5.3.|05.03|5/3|5. März|5 Mrz|0503|5.3.26"_qs.split(u'|'));
    row("en_US", u"en_US"_qs, QDate(1962, 5, 3), u"05/03/1962|5/3/62|3.5.1962|May 3, 1962|05031962"_qs.split(u'|'));
}

void tst_MvCalendarDayEditorDialog::typedDates()
{
    const auto [locale, date, texts] = MvRows<QString, QDate, QStringList>::current();
    MvApplicationLocale::instance().setLocale(QLocale(locale));
    const auto restored = qScopeGuard([] { MvApplicationLocale::instance().setLocale(QLocale(u"de_DE"_qs)); });
    MvCalendarDayEditorDialog dialog(nullptr);
    auto *edit = part<QDateTimeEdit>(dialog, u"dateEdit"_qs);
    auto *line = edit->findChild<QLineEdit *>();
    dialog.openDayEditorSingle(entry(u"Anna"_qs, {2026, 11, 21}));
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const QStringList ways = u"opened|Tab|Shift+Tab|click 1|click 4|click 8|Ctrl+A|pasted|composed"_qs.split(
        u'|'); // the number is a letter's
    for (const QString &way : ways) {
        for (const QString &text : texts) {
            if (text.size() == 4 && (way == u"Shift+Tab"_qs || way == u"click 8"_qs))
                continue; // a year for the year
            dialog.setDate({2026, 11, 21});
            if (way == u"Shift+Tab"_qs) {
                part<QCheckBox>(dialog, u"yearUnknownBox"_qs)->setFocus();
                QTest::keyClick(dialog.focusWidget(), Qt::Key_Backtab);
            } else if (way == u"Tab"_qs) {
                ok(dialog)->setFocus();
                QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            } else if (way.startsWith(u"click"_qs)) {
                const QString before = line->text().left(way.right(1).toInt());
                const int x = line->fontMetrics().horizontalAdvance(before) + 3;
                QTest::mouseClick(line, Qt::LeftButton, {}, {x, line->height() / 2});
            } else {
                edit->setFocus(Qt::OtherFocusReason);
            }
            if (way == u"Ctrl+A"_qs)
                QTest::keyClick(dialog.focusWidget(), Qt::Key_A, Qt::ControlModifier);
            QCOMPARE(dialog.focusWidget(), edit);
            if (way == u"pasted"_qs) {
                QGuiApplication::clipboard()->setText(text + u"\n"_qs);
                QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
            } else if (way == u"composed"_qs) {
                QInputMethodEvent composed;
                composed.setCommitString(text);
                QApplication::sendEvent(edit, &composed);
            } else {
                for (const QChar letter : text)
                    QTest::sendKeyEvent(QTest::Click, edit, Qt::Key(letter.toUpper().unicode()), letter, {});
            }
            description(dialog)->setFocus();
            const QString found = edit->date().toString(Qt::ISODate);
            QVERIFY2(found == date.toString(Qt::ISODate), qPrintable(way + u": "_qs + text + u" gives "_qs + found));
        }
    }
}

void tst_MvCalendarDayEditorDialog::whatIsNoDate()
{
    MvCalendarDayEditorDialog dialog(nullptr);
    dialog.openDayEditorSeries(entry(u"Anna"_qs, {2026, 11, 21}));
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *edit = part<QDateTimeEdit>(dialog, u"dateEdit"_qs);
    const auto *hint = part<QLabel>(dialog, u"dateHint"_qs);
    QCOMPARE(hint->text(), u"Samstag, 21. November 2026"_qs);
    const int place = description(dialog)->mapTo(&dialog, QPoint()).y();
    for (const QString &text : {u"morgen"_qs, u"31.04.1950"_qs, u"24.11.1219"_qs, u"24.12.2950"_qs, u" "_qs}) {
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(edit, text);
        QVERIFY(hint->text().isEmpty()); // not yet
        description(dialog)->setFocus();
        const QString error = hint->text();
        QVERIFY2(error.contains(text.trimmed()) && error.contains(u"24.12.1950"_qs), qPrintable(error));
        QVERIFY(hint->isVisible() && hint->height() >= hint->heightForWidth(hint->width()));
        QCOMPARE(QAccessible::queryAccessibleInterface(edit)->text(QAccessible::Description), error);
        for (auto *button : {ok(dialog), part<QPushButton>(dialog, u"okAndContinueButton"_qs)}) {
            button->click();
            QVERIFY(dialog.isVisible() && events().isEmpty());
            QCOMPARE(dialog.focusWidget(), edit);
            QCOMPARE(edit->text(), text);
        }
        QCOMPARE(description(dialog)->mapTo(&dialog, QPoint()).y(), place);
    }
    QTest::keyClicks(edit, u"1.2.1950"_qs);
    QCOMPARE(hint->text(), u"Mittwoch, 1. Februar 1950"_qs);
    ok(dialog)->click();
    QCOMPARE(events().first().dateTime().date(), QDate(1950, 2, 1));
}

void tst_MvCalendarDayEditorDialog::sectionsOfTheDate()
{
    MvCalendarDayEditorDialog dialog(nullptr);
    dialog.openDayEditorSingle(entry(u"Anna"_qs, {2026, 11, 21}));
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto *edit = part<QDateTimeEdit>(dialog, u"dateEdit"_qs);
    ok(dialog)->setFocus();
    const auto keys = [&dialog](std::initializer_list<Qt::Key> sequence) {
        for (const Qt::Key key : sequence)
            QTest::keyClick(dialog.focusWidget(), key);
    };
    keys({Qt::Key_Tab, Qt::Key_3, Qt::Key_1, Qt::Key_Tab}); // no 31 November, but on the way to December
    QCOMPARE(edit->text(), u"31.11.2026"_qs);
    keys({Qt::Key_1, Qt::Key_2, Qt::Key_Tab, Qt::Key_5, Qt::Key_0});
    QCOMPARE(edit->text(), u"31.12.50"_qs);
    keys({Qt::Key_Up}); // takes it
    QCOMPARE(edit->text(), u"31.12.1951"_qs);
    keys({Qt::Key_Backtab, Qt::Key_Down, Qt::Key_PageDown});
    QCOMPARE(edit->text(), u"31.01.1951"_qs);
    QTest::keyClick(edit, Qt::Key_Left, Qt::ControlModifier);
    QWheelEvent wheel({9, 9}, edit->mapToGlobal(QPointF(9, 9)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(edit, &wheel);
    QCOMPARE(edit->text(), u"30.01.1951"_qs);
    keys({Qt::Key_End, Qt::Key_Backspace, Qt::Key_7}); // one letter
    QCOMPARE(edit->text(), u"30.01.1957"_qs);
    keys({Qt::Key_Tab});
    QVERIFY(dialog.focusWidget() != edit);
    QCOMPARE(edit->date(), QDate(1957, 1, 30));

    const MvCalendarEvent old = entry(u" Karl  d. Gr.\n"_qs, {800, 12, 25}); // a file's form stays
    dialog.openDayEditorSingle(old);
    QCOMPARE(dialog.applyEventChange(), old);
}

void tst_MvCalendarDayEditorDialog::birthdaysWithoutAYear()
{
    MvCalendarDayEditorDialog dialog(nullptr);
    auto *date = part<QDateTimeEdit>(dialog, u"dateEdit"_qs);
    auto *unknown = part<QCheckBox>(dialog, u"yearUnknownBox"_qs);
    dialog.openDayEditorSeries(entry(u"Opa"_qs, {1604, 2, 28}));
    QCOMPARE(date->text(), u"28.02."_qs);
    QCOMPARE(part<QLabel>(dialog, u"dateLabel"_qs)->text(), u"28. Februar"_qs);
    QVERIFY(unknown->isChecked() && !date->calendarPopup()); // its sheet would have a year
    date->setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClick(date, Qt::Key_Up);
    part<QPushButton>(dialog, u"okAndContinueButton"_qs)->click();
    QCOMPARE(events().first().dateTime().date(), QDate(1604, 2, 29));
    QCOMPARE(date->text(), u"01.03."_qs);

    dialog.openDayEditorSeries(entry(u"Oma"_qs, {1604, 12, 31}));
    part<QPushButton>(dialog, u"okAndContinueButton"_qs)->click();
    QCOMPARE(date->text(), u"01.01."_qs);

    dialog.openDayEditorSingle(entry(u"Uropa"_qs, {1604, 2, 28}));
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    date->setFocus();
    QTest::keyClicks(date, u"29.2."_qs);
    QVERIFY(!dialog.applyEventChange().hasYear());
    unknown->click(); // there is one after all
    QCOMPARE(date->text().left(6), u"29.02."_qs);
    QVERIFY(date->date().year() > 2000 && date->calendarPopup());
    QTest::keyClicks(date, u"1932"_qs);
    QCOMPARE(dialog.applyEventChange().dateTime().date(), QDate(1932, 2, 29));
    unknown->click();
    QVERIFY(!dialog.applyEventChange().hasYear());
    QTest::keyClicks(date, u"29.2.1932"_qs); // whoever types a year knows it
    QCOMPARE(dialog.applyEventChange().dateTime().date(), QDate(1932, 2, 29));
    QVERIFY(!unknown->isChecked());
}

void tst_MvCalendarDayEditorDialog::drops()
{
    MvCalendarDayEditorDialog dialog(nullptr);
    dialog.openDayEditorSingle(entry(u"Foto"_qs, QDate(2027, 6, 5)));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"text.png“ ist kein Foto"_qs)); // said in words
    MvWidgetDriver::Drag text(&dialog, {path(u"text.png"_qs)});
    text.isTaken({9, 9}); // the dialog begins to read when the files come in
    QVERIFY(!text.drop({9, 9}));
    QVERIFY(!dialog.hasPhoto());
    MvWidgetDriver::Drag foto(&dialog, {path(u"text.png"_qs), path(u"fehlt.jpg"_qs), path(u"blau.png"_qs)});
    foto.isTaken({9, 9});
    QVERIFY(foto.drop({9, 9}));
    ok(dialog)->click();
    const QFileInfo stored = events().first().imagePath();
    QCOMPARE(stored.dir(), MvCalendarEvent::imageDirectory());
    QCOMPARE(QImage(stored.filePath()).pixelColor(5, 5), QColor(Qt::blue));
}

void tst_MvCalendarDayEditorDialog::choosesByKeyboard()
{
    auto *script = new MvRequestScript;
    script->file = path(u"text.png"_qs);
    MvRequestHandler::install(std::unique_ptr<MvRequestHandler>(script));
    MvCalendarDayEditorDialog dialog(nullptr);
    dialog.openDayEditorSingle(entry(u"Foto"_qs, QDate(2027, 6, 5)));
    auto *label = part<QLabel>(dialog, u"fotoLabel"_qs);
    QTest::keyClick(label, Qt::Key_Space);
    QCOMPARE(script->reports.size(), 1); // names the file that is no photo
    QVERIFY(script->reports.first().contains(u"text.png"_qs));
    QVERIFY(!dialog.hasPhoto());
    script->file = path(u"rot.png"_qs);
    QTest::keyClick(label, Qt::Key_Return);
    QVERIFY(dialog.hasPhoto());
    QVERIFY(dialog.isVisible()); // Enter went to the photo, not to OK
    script->file.clear();
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(label);
    QCOMPARE(accessible->role(), QAccessible::Button);
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(dialog.hasPhoto()); // none chosen: as before
    MvRequestHandler::install(nullptr);
}

void tst_MvCalendarDayEditorDialog::largeFotosArriveLater()
{
    MvCalendarDayEditorDialog dialog(nullptr);
    dialog.openDayEditorSingle(entry(u"Foto"_qs, QDate(2027, 6, 5)));
    const auto setLarge = [&dialog, this] { dialog.setFoto(MvFoto(QFileInfo(path(u"groß.jpg"_qs)))); };
    setLarge();
    QVERIFY(!dialog.hasPhoto());
    QTRY_VERIFY(dialog.hasPhoto());

    setLarge();
    dialog.removePhoto(); // before it arrives
    MvFotoService::instance().stop();
    QTest::qWait(20);
    QVERIFY(!dialog.hasPhoto());
    setLarge();
    ok(dialog)->click(); // does not lose it either
    QCOMPARE(events().first().imageSize(), QSize(2048, 1536));
}

void tst_MvCalendarDayEditorDialog::unreadableFotosAreKept()
{
    const QString file = MvCalendarEvent::imageDirectory().filePath(u"kaputt.png"_qs);
    QVERIFY(QFile::copy(path(u"text.png"_qs), file));
    MvCalendarDayEditorDialog dialog(nullptr);
    dialog.openDayEditorSingle(entry(u"Foto"_qs, QDate(2027, 6, 5), MvFoto(QFileInfo(file))));
    QVERIFY(part<QLabel>(dialog, u"fotoLabel"_qs)->text().contains(u"kaputt.png"_qs));
    description(dialog)->setText(u"\tganz \u0007 anders"_qs);
    auto *script = new MvRequestScript;
    MvRequestHandler::install(std::unique_ptr<MvRequestHandler>(script));
    dialog.setFoto(MvFoto(QFileInfo(path(u"text.png"_qs)))); // not instead of the other one
    ok(dialog)->click();
    QVERIFY(script->reports.size() == 1 && script->reports.first().contains(u"text.png"_qs));
    MvRequestHandler::install(nullptr);
    QCOMPARE(events().first().foto().localFilePath(), file);
    QCOMPARE(events().first().description(), u"ganz anders"_qs);
}

void tst_MvCalendarDayEditorDialog::removeButtonFades()
{
    MvCalendarDayEditorDialog dialog(nullptr);
    dialog.openDayEditorSingle(entry(u"Foto"_qs, QDate(2027, 6, 5), MvFoto(QFileInfo(path(u"rot.png"_qs)))));
    auto *label = part<QLabel>(dialog, u"fotoLabel"_qs);
    auto *button = part<QPushButton>(dialog, u"removePhotoButton"_qs);
    const auto *effect = qobject_cast<QGraphicsOpacityEffect *>(button->graphicsEffect());
    const auto hover = [](QWidget *widget, bool enter) {
        QHoverEvent event(enter ? QEvent::HoverEnter : QEvent::HoverLeave, {1, 1}, {1, 1}, QPointF(0, 0));
        QApplication::sendEvent(widget, &event);
    };
    QTRY_COMPARE(effect->opacity(), 1.0); // some time after the photo appeared
    hover(label, true);
    hover(label, false);
    QTRY_COMPARE(effect->opacity(), 0.0);
    hover(label, true);
    hover(label, false);
    hover(button, true); // lies over the photo
    QTRY_COMPARE(effect->opacity(), 1.0);
    hover(button, false);
    QTRY_COMPARE(effect->opacity(), 0.0);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    button->setFocus(Qt::TabFocusReason); // the keyboard sees it, too
    QTRY_COMPARE(effect->opacity(), 1.0);
}

void tst_MvCalendarDayEditorDialog::belongsToItsWindowAndDocument()
{
    auto window = std::make_unique<QWidget>();
    window->setGeometry(100, 100, 600, 500);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    MvCalendarDayEditorDialog dialog(nullptr);
    dialog.openDayEditorSingle(entry(u"x"_qs, QDate(2027, 6, 5)));
    QVERIFY((dialog.geometry().center() - window->geometry().center()).manhattanLength() < 60);
    QVERIFY(!dialog.testAttribute(Qt::WA_QuitOnClose));
    QCOMPARE(dialog.windowHandle()->transientParent(), window->windowHandle());
    window.reset();
    QVERIFY(!dialog.isVisible());

    auto &registry = MvCalendarEventRegistry::instance();
    dialog.openDayEditorSingle(entry(u"x"_qs, QDate(2027, 6, 5)));
    registry.setEvents({entry(u"y"_qs, QDate(2027, 6, 6))});
    QVERIFY(dialog.isVisible());
    registry.setActiveModelId(MvProjectIdentifier(u"anderes Dokument"_qs, false), false);
    QVERIFY(!dialog.isVisible());
    registry.setActiveModelId(DEFAULT_PROJECT_ID, true);
}

void tst_MvCalendarDayEditorDialog::oneEditorPerEntry()
{
    MvCalendarDayEditorDialog series(nullptr);
    series.openDayEditorSeries(entry({}, QDate(2027, 12, 31), MvFoto(QFileInfo(path(u"rot.png"_qs)))));
    for (const QString &name : {u"Anna"_qs, u"Bernd"_qs}) {
        description(series)->setText(name);
        part<QPushButton>(series, u"okAndContinueButton"_qs)->click();
        QVERIFY(series.isVisible() && !series.hasPhoto() && !ok(series)->isEnabled());
    }
    QCOMPARE(events().last().dateTime().date(), QDate(2028, 1, 1));
    QVERIFY(events().first().foto().isValid() && !events().last().foto().isValid());
    QCOMPARE(events().first().uuid(), events().last().uuid());
    MvCalendarDayEditorDialog anna(nullptr);
    anna.openDayEditorSingle(events().first());
    MvCalendarDayEditorDialog bernd(nullptr);
    bernd.openDayEditorSingle(events().last());
    const QPointer<MvCalendarDayEditorDialog> second = MvCalendarDayEditorDialog::createSelfDeleting(nullptr);
    second->openDayEditorSingle(events().last());
    QTRY_VERIFY(!second); // the one that is open comes to the front
    QVERIFY(anna.isVisible() && bernd.isVisible() && series.isVisible());
    description(anna)->setText(u"Anne"_qs);
    ok(anna)->click();
    part<QPushButton>(bernd, u"deleteButton"_qs)->click();
    QCOMPARE(events().size(), 1);
    QCOMPARE(events().first().description(), u"Anne"_qs);
}

void tst_MvCalendarDayEditorDialog::followsItsEntry_data()
{
    const MvRows<QString, bool, QString> row; // name: typed in the editor; empty: none; deletes; result
    row("untouched", QString(), false, u"Anni 2027-05-07 rot"_qs);
    row("a typed name stays", u"Anne"_qs, false, u"Anne 2027-05-07 rot"_qs);
    row("deleted", QString(), true, QString());
}

void tst_MvCalendarDayEditorDialog::followsItsEntry()
{
    const auto [name, deletes, result] = MvRows<QString, bool, QString>::current();
    const MvCalendarEvent anna = entry(u"Anna"_qs, QDate(2027, 5, 6));
    const MvCalendarEvent sister = {u"Berta"_qs, QDate(2027, 5, 8).startOfDay(), true, {}, anna.uuid(), {}};
    MvCalendarEventRegistry::instance().setEvents({anna, sister});
    MvCalendarDayEditorDialog dialog(nullptr);
    dialog.openDayEditorSingle(anna);
    if (!name.isEmpty())
        description(dialog)->setText(name);
    MvCalendarEvent changed = anna; // by others, one field after the other
    const auto change = [&changed](const std::function<void(MvCalendarEvent &)> &set) {
        const MvCalendarEvent before = changed;
        set(changed);
        MvUndoController::instance().push(new MvUndoCommandCalendarEvent(before, changed, nullptr));
    };
    change([this](MvCalendarEvent &event) { QVERIFY(event.takeFoto(MvFoto(QFileInfo(path(u"rot.png"_qs)))).isOk()); });
    change([](MvCalendarEvent &event) { event.setDateTime(QDate(2027, 5, 7).startOfDay()); });
    change([](MvCalendarEvent &event) { event.setEventName(u"Anni"_qs); });
    QVERIFY(dialog.isVisible() && dialog.hasPhoto());
    part<QPushButton>(dialog, deletes ? u"deleteButton"_qs : u"okButton"_qs)->click();
    QStringList found;
    for (const MvCalendarEvent &event : events()) {
        if (event.description() == sister.description())
            continue;
        const bool isRed = QImage(event.imagePath().filePath()).pixelColor(5, 5) == Qt::red;
        const QString date = event.dateTime().date().toString(Qt::ISODate);
        found.append(event.description() + u' ' + date + (isRed ? u" rot"_qs : QString()));
    }
    QCOMPARE(found.join(u'|'), result);
    QCOMPARE(events().size(), deletes ? 1 : 2);
}

void tst_MvCalendarDayEditorDialog::entriesThatAreGone()
{
    auto *script = new MvRequestScript;
    MvRequestHandler::install(std::unique_ptr<MvRequestHandler>(script));
    const auto restored = qScopeGuard([] { MvRequestHandler::install(nullptr); });
    const MvCalendarEvent anna = entry(u"Anna"_qs, QDate(2027, 5, 6));
    MvCalendarEventRegistry::instance().setEvents({anna});
    MvCalendarDayEditorDialog untouched(nullptr);
    untouched.openDayEditorSingle(anna);
    MvCalendarEventRegistry::instance().setEvents({});
    QVERIFY(!untouched.isVisible());
    QVERIFY(script->reports.size() == 1 && script->reports.first().contains(u"„Anna“"_qs));

    MvCalendarEventRegistry::instance().setEvents({anna});
    MvCalendarDayEditorDialog touched(nullptr);
    touched.openDayEditorSingle(anna);
    touched.setFoto(MvFoto(QFileInfo(path(u"rot.png"_qs))));
    MvCalendarEventRegistry::instance().setEvents({});
    const auto *notice = part<QLabel>(touched, u"noticeLabel"_qs);
    QVERIFY(touched.isVisible() && notice->isVisible() && notice->text().contains(u"„Anna“"_qs));
    QCOMPARE(script->reports.size(), 1);
    ok(touched)->click();
    QCOMPARE(events().size(), 1);
    QCOMPARE(events().first().description(), u"Anna"_qs);
    QVERIFY(events().first().uuid() != anna.uuid()); // the old one may come back by undo
    QVERIFY(events().first().foto().isValid());
}

void tst_MvCalendarDayEditorDialog::nothingIsCut()
{
    const QFont normal = QApplication::font();
    QFont large = normal;
    large.setPointSizeF(normal.pointSizeF() * 2);
    for (const QFont &font : {normal, large}) {
        QApplication::setFont(font);
        MvCalendarDayEditorDialog dialog(nullptr);
        dialog.setSize(500, 400);
        if (font == normal)
            QCOMPARE(dialog.size(), QSize(500, 400));
        dialog.openDayEditorSeries(entry({}, QDate(2027, 6, 5)));
        const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
        for (const QPushButton *button : buttons)
            QVERIFY2(button->isHidden() || button->width() >= button->minimumSizeHint().width(),
                     qPrintable(button->text()));
        const auto *label = part<QLabel>(dialog, u"fotoLabel"_qs);
        QVERIFY(label->height() >= label->heightForWidth(label->width()));

        const MvCalendarEvent anna = entry(u"Anna"_qs, QDate(2027, 6, 5)); // with all lines there may be
        MvCalendarEventRegistry::instance().setEvents({anna});
        dialog.openDayEditorSeries(anna);
        description(dialog)->setText(u"Anne"_qs);
        MvCalendarEventRegistry::instance().setEvents({});
        QTest::keyClicks(part<QDateTimeEdit>(dialog, u"dateEdit"_qs), u"Sonntag, 24. Dezember 2950"_qs);
        ok(dialog)->click();
        for (const QString &name : {u"noticeLabel"_qs, u"dateHint"_qs, u"fotoLabel"_qs}) {
            const auto *line = part<QLabel>(dialog, name);
            QVERIFY2(line->isVisible() && line->height() >= line->heightForWidth(line->width()), qPrintable(name));
        }
        QVERIFY(dialog.height() >= dialog.layout()->totalMinimumHeightForWidth(dialog.width()));
    }
    QApplication::setFont(normal);
}

MV_WIDGET_TEST_MAIN(tst_MvCalendarDayEditorDialog)
#include "tst_MvCalendarDayEditorDialog.moc"
