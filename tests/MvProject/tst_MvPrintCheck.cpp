// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFolderTest.h"
#include "MvRows.h"

#include "MvProject/MvPrintCheck.h"
#include "MvProjectFixture.h"

using Kind = MvPrintFinding::Kind;
using Severity = MvPrintFinding::Severity;

class tst_MvPrintCheck : public MvFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void plainCalendarsPrintWell();
};

void tst_MvPrintCheck::finds_data()
{
    const MvRows<MvPageElement, QString, int> add; // element; kind: empty: prints well; severity
    const auto row = [&](const char *name, const MvPageElement &element, const QString &kind,
                         Severity severity = Severity::Hint) { add(name, element, kind, int(severity)); };
    const QString fine = path(u"600x400.png"_qs);
    QVERIFY(MvProjectFixture::writeFoto(fine, {600, 400}));
    put(u"broken.jpg"_qs, "no photo");
    const MvFotoElement foto(fine);
    MvFotoElement zoomed = foto;
    zoomed.setZoom(2.0);
    // 600 pixels on 254 tenths of a millimetre are 600 to the inch
    row("fine photo", {{300, 300, 508, 338}, foto}, {});
    row("150 to the inch", {{300, 300, 1016, 677}, foto}, {});
    row("a little less", {{300, 300, 1026, 684}, foto}, u"coarse-photo"_qs);
    row("very coarse by zooming", {{300, 300, 1016, 677}, zoomed}, u"coarse-photo"_qs, Severity::Strong);
    row("missing", {{300, 300, 100, 100}, MvFotoElement(path(u"weg.jpg"_qs))}, u"missing-photo"_qs, Severity::Strong);
    row("unreadable", {{300, 300, 100, 100}, MvFotoElement(path(u"broken.jpg"_qs))}, u"unreadable-photo"_qs,
        Severity::Strong);
    row("empty frame", {{300, 300, 100, 100}, MvFotoElement()}, u"empty-frame"_qs);
    row("text", {{300, 300, 600, 100}, MvTextElement(u"Sommer"_qs)}, {});
    row("text without room", {{300, 300, 60, 20}, MvTextElement(u"Donaudampfschifffahrt und mehr"_qs)}, u"cut-text"_qs,
        Severity::Strong);
    row("text of no font", {{300, 300, 600, 100}, MvTextElement(QString::fromUcs4(U"\U000F0000"))},
        u"missing-glyphs"_qs, Severity::Strong);
    row("text at the edge", {{300, 1390, 600, 80}, MvTextElement(u"Sommer"_qs)}, u"outside-safe-margin"_qs);
    row("text under the spiral", {{300, 50, 600, 100}, MvTextElement(u"Sommer"_qs)}, u"in-binding"_qs,
        Severity::Strong);
    row("photo into the binding", {{300, 50, 300, 200}, foto}, u"in-binding"_qs);
    row("photo that bleeds there", {{-30, -30, 600, 400}, foto}, {});
}

void tst_MvPrintCheck::finds()
{
    const auto [element, kind, severity] = MvRows<MvPageElement, QString, int>::current();
    MvCalendarDocument document = MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_qs, 2);
    MvPageFormat format = document.format();
    format.setBinding(MvPageFormat::Binding::Top);
    document.setFormat(format);
    MvCalendarPage page = document.pages()[1];
    page.setElements({MvPageElement({300, 900, 1500, 450}, MvCalendariumElement()), element});
    document.setPage(1, page);
    const QList<MvPrintFinding> found = MvPrintCheck::ofDocument(document);
    if (kind.isEmpty()) {
        QVERIFY2(found.isEmpty(), qPrintable(found.isEmpty() ? QString() : found[0].toString()));
        return;
    }
    QCOMPARE(found.size(), 1);
    QCOMPARE(found[0].kindName(), kind);
    QCOMPARE(int(found[0].severity), severity);
    QCOMPARE(found[0].page, 1);
    QCOMPARE(found[0].element, 1);
    QVERIFY2(found[0].toString().startsWith(u"Februar 2027: "_qs), qPrintable(found[0].toString()));
}

/// Calendars without templates have margins that suit every printer, and pages may go without a photo.
void tst_MvPrintCheck::plainCalendarsPrintWell()
{
    for (const QString &paper : MvPageFormat::names()) {
        MvCalendarDocument document = MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_qs, 1);
        document.setFormat(MvPageFormat::fromName(paper));
        for (const MvPrintFinding &finding : MvPrintCheck::ofDocument(document))
            QVERIFY2(finding.kind == Kind::CutText, qPrintable(paper + u' ' + finding.toString()));
    }
}

MV_TEST_MAIN(tst_MvPrintCheck)
#include "tst_MvPrintCheck.moc"
