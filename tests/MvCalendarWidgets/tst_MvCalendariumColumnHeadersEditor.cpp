// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvWidgetTest.h"

#include "MvCalendar/MvCalendariumColumnHeadersEditor.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList three{u"Anna"_s, u"Bernd"_s, u"Familie"_s};

} // namespace

class tst_MvCalendariumColumnHeadersEditor : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void longAndEmptyLists();
    void typing();
    void otherHeadersWhileAnEditorIsToOpen();
};

void tst_MvCalendariumColumnHeadersEditor::longAndEmptyLists()
{
    MvCalendariumColumnHeadersEditor editor;
    const QStringList many(25, u"Spalte"_s); // more than a user may ask for
    editor.setHeaders(many);
    QCOMPARE(editor.headers(), many);
    editor.setHeaders({});
    QCOMPARE(editor.headers().join(u"$$"_s), QString());
    QCOMPARE(editor.findChild<QListView *>()->model()->rowCount(), 1); // something to type into
    QCOMPARE(editor.findChild<QSpinBox *>()->maximum(), 20);
}

void tst_MvCalendariumColumnHeadersEditor::typing()
{
    MvCalendariumColumnHeadersEditor editor;
    editor.setHeaders(three);
    editor.show();
    QSignalSpy changed(&editor, &MvCalendariumColumnHeadersEditor::headersChanged);
    auto *list = editor.findChild<QListView *>(u"columnHeadersList"_s);
    list->setCurrentIndex(list->model()->index(1, 0)); // opens the field by itself
    auto *field = list->findChild<QLineEdit *>();
    QVERIFY(field);
    QTest::keyClicks(field, u"Bruno und Co"_s);
    QTest::mouseDClick(field, Qt::LeftButton); // all of it, not one word
    QTest::keyClicks(field, u"Bruno"_s);
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_COMPARE(changed.size(), 1);
    QCOMPARE(editor.headers(), (QStringList{u"Anna"_s, u"Bruno"_s, u"Familie"_s}));
}

/// A click on the selected row opens its editor a moment later; the row may be another one, or gone, by then.
void tst_MvCalendariumColumnHeadersEditor::otherHeadersWhileAnEditorIsToOpen()
{
    MvCalendariumColumnHeadersEditor editor;
    editor.setHeaders(three);
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    auto *list = editor.findChild<QListView *>();
    for (const QStringList &headers : {QStringList{u"x"_s, u"y"_s, u"z"_s}, QStringList{u"Anna"_s}}) {
        const QModelIndex last = list->model()->index(list->model()->rowCount() - 1, 0);
        list->setCurrentIndex(last);
        if (auto *line = list->viewport()->findChild<QLineEdit *>()) // it opens at once where one comes to
            QTest::keyClick(line, Qt::Key_Escape);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(last).center());
        editor.setHeaders(headers);
        QVERIFY(list->currentIndex().isValid());
        QTest::qWait(QApplication::doubleClickInterval() + 50);
        QCOMPARE(QStringList(editor.headers()), headers);
    }
}

MV_WIDGET_TEST_MAIN(tst_MvCalendariumColumnHeadersEditor)
#include "tst_MvCalendariumColumnHeadersEditor.moc"
