// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvWidgetTest.h"
#include "common/MvStudioMessage.h"

using namespace Qt::StringLiterals;

/// What messages make of names that may hold anything.
class tst_MvStudioMessage : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsMarkupAsItStands();
    void longNamesKeepTheWindowSmall();
};

void tst_MvStudioMessage::showsMarkupAsItStands()
{
    const QString name = u"<img src='x.png'><h1>Eva"_s;
    const std::unique_ptr<QMessageBox> box(MvStudioMessage::information(nullptr, name, name));
    const QList<QLabel *> labels = box->findChildren<QLabel *>();
    int shown = 0;
    for (const QLabel *label : labels) {
        shown += label->text() == name ? 1 : 0;
        QVERIFY(label->text() != name || label->textFormat() == Qt::PlainText);
    }
    QCOMPARE(shown, 2);
}

void tst_MvStudioMessage::longNamesKeepTheWindowSmall()
{
    const QString text = MvStudioMessage::shortened({QString(100'000, u'x'), u"Eva"_s, u"Max"_s}, 2);
    const QStringList lines = text.split(u'\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines.at(0).size() < 300 && lines.at(0).endsWith(u"x…"_s));
    QCOMPARE(lines.at(1), u"Eva"_s);
}

MV_WIDGET_TEST_MAIN(tst_MvStudioMessage)
#include "tst_MvStudioMessage.moc"
