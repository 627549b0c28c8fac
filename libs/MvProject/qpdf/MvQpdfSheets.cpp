// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvQpdfSheets.h"

#include "MvCore/MvLocale.h"
#include "MvModelBase/MvFontCreator.h"
#include "MvPaint/MvTextOutline.h"
#include "MvProject/MvPdfContent.h"
#include "MvProject/MvPdfPipeline.h"
#include "MvProject/MvPdfSheetTags.h"
#include "MvProject/MvPdfSyntax.h"
#include "MvProject/MvSheetPlan.h"

#include <QFile>
#include <QPainterPath>
#include <QPen>

#include <exception>
#include <map>
#include <utility>
#include <vector>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

using namespace Qt::StringLiterals;

namespace {

constexpr double pointsPerTenth = 72.0 / 254.0; // of a millimetre
constexpr double unitsPerPoint = 100.0;
constexpr double lineWidth = 0.9; // tenths of a millimetre: a quarter of a point
constexpr double typeSize = 25.0; // seven points
constexpr int typePixels = 96;    // in which it is shaped

QPainterPath pathOf(const QList<QLineF> &lines)
{
    QPainterPath path;
    for (const QLineF &line : lines) {
        path.moveTo(line.p1());
        path.lineTo(line.p2());
    }
    return path;
}

/// Lines of type, each of their glyphs once in the file.
class Letters
{
public:
    explicit Letters(QPDF &pdf)
        : m_pdf(pdf)
    {}

    /// Commands that write the text from a place, in points; empty when it is longer than that. The glyphs that they
    /// name are added to the objects.
    QByteArray line(const QString &text, const QPointF &place, double length, QByteArray &objects)
    {
        const MvTextOutline outline(MvFontCreator::createMarkFont(typePixels), text);
        const double scale = typeSize / typePixels * pointsPerTenth; // points of a pixel
        QByteArray commands;
        if (outline.advance() * scale > length)
            return commands;
        for (const MvTextOutline::Glyph &glyph : outline.glyphs()) {
            if (glyph.path.isEmpty())
                continue;
            const Known &known = form(glyph);
            if (!objects.contains(known.name + ' '))
                objects += known.name + ' ' + MvPdfSyntax::reference(known.object);
            const QByteArray factor = MvPdfSyntax::number(scale / detail, 6);
            commands += "q " + factor + " 0 0 " + factor + ' ';
            MvPdfSyntax::append(commands, place + QPointF(glyph.origin.x(), -glyph.origin.y()) * scale, 3);
            commands += "cm " + known.name + " Do Q\n";
        }
        return commands;
    }

private:
    struct Known
    {
        QByteArray name;
        int object = 0;
    };

    const Known &form(const MvTextOutline::Glyph &glyph)
    {
        Known &known = m_known[{glyph.face, glyph.index}];
        if (known.object == 0) {
            const QPainterPath path = QTransform::fromScale(detail, -detail).map(glyph.path);
            MvPdfContent content;
            content.addPath(path, MvPdfContent::Subpaths::AsTheyAre);
            content.finishPath("f");
            const QRectF bounds = path.boundingRect().adjusted(-1.0, -1.0, 1.0, 1.0);
            QByteArray box;
            MvPdfSyntax::append(box, bounds.topLeft());
            MvPdfSyntax::append(box, bounds.bottomRight());
            QPDFObjectHandle stream = QPDFObjectHandle::newStream(&m_pdf, content.bytes().toStdString());
            stream.replaceDict(QPDFObjectHandle::parse(
                ("<</Type/XObject/Subtype/Form/BBox[" + box + "]/Resources<<>>>>").toStdString()));
            known = {"/G" + QByteArray::number(m_known.size()), stream.getObjectID()};
        }
        return known;
    }

    static constexpr double detail = 10.0; // units of a glyph's drawing to a pixel
    QPDF &m_pdf;
    std::map<std::pair<int, quint32>, Known> m_known; // by face and index
};

/// The sheets that take the place of the pages.
class Sheets
{
public:
    Sheets(QPDF &pdf, const MvSheetPlan &plan, const QStringList &names, const MvLocale &language)
        : m_pdf(pdf)
        , m_pages(pdf)
        , m_plan(plan)
        , m_names(names)
        , m_language(language)
        , m_old(m_pages.getAllPages())
    {}

    void lay()
    {
        for (int number = 0; number < m_plan.sheetCount(); ++number)
            m_pages.addPage(sheet(number), false);
        m_tags.finish();
        moveBookmarks();
        for (const QPDFPageObjectHelper &page : m_old)
            m_pages.removePage(page);
        tellPrinters();
    }

private:
    QPDFObjectHandle sheet(int number)
    {
        const QSizeF size = m_plan.sheet() * pointsPerTenth;
        QPDFObjectHandle sheet =
            m_pdf.makeIndirectObject(parsed("<</Type/Page/MediaBox[0 0 " + MvPdfSyntax::number(size.width()) + ' ' +
                                            MvPdfSyntax::number(size.height()) + "]>>"));
        QStringList names;
        QByteArray commands; // since the last page
        QPDFObjectHandle contents = QPDFObjectHandle::newArray();
        QPDFObjectHandle resources = QPDFObjectHandle::newDictionary();
        for (const MvSheetPlan::Part &part : m_plan.parts(number)) {
            if (const QString name = m_names.value(part.page); !name.isEmpty())
                names.append(name);
            lay(part, sheet, commands, contents);
            resources.mergeResources(m_old[size_t(part.page)].getObjectHandle().getKey("/Resources"));
        }
        QByteArray letters;
        commands += besidePages(number, names, letters);
        contents.appendItem(stream(commands));
        resources.mergeResources(parsed("<</XObject<<" + letters + ">>>>"));
        sheet.replaceKey("/Contents", contents);
        sheet.replaceKey("/Resources", resources);
        return sheet;
    }

    /// The page's content is that of all sheets that show a part of it: read on the first of them, decoration on the
    /// others.
    void lay(const MvSheetPlan::Part &part, QPDFObjectHandle sheet, QByteArray &commands, QPDFObjectHandle contents)
    {
        QPDFObjectHandle page = m_old[size_t(part.page)].getObjectHandle();
        QPDFObjectHandle content = page.getKey("/Contents");
        const bool isRead = m_firstSheets.try_emplace(page.getObjGen(), sheet).second;
        if (const int raise = isRead ? m_tags.move(part.page, sheet, toSheet(part)) : 0; raise > 0)
            content = MvPdfSheetTags::raised(m_pdf, content, raise);
        commands += (isRead ? "q " : "/Artifact BMC\nq ") + clip(part.place) + matrix(part);
        contents.appendItem(stream(commands));
        contents.appendItem(content);
        commands = isRead ? "Q\n" : "Q\nEMC\n";
        if (page.hasKey("/Group"))
            sheet.replaceKey("/Group", page.getKey("/Group"));
    }

    QPDFObjectHandle stream(const QByteArray &commands)
    {
        return QPDFObjectHandle::newStream(&m_pdf, commands.toStdString());
    }

    QPDFObjectHandle parsed(const QByteArray &value) { return QPDFObjectHandle::parse(&m_pdf, value.toStdString()); }

    /// Marks and lettering.
    QByteArray besidePages(int number, const QStringList &names, QByteArray &objects)
    {
        const QByteArray unit = MvPdfSyntax::number(1.0 / unitsPerPoint);
        return "/Artifact BMC\nq " + unit + " 0 0 " + unit + " 0 0 cm\n" + marks(number) + "Q\n" +
               lettering(number, names, objects) + "EMC\n";
    }

    QByteArray clip(const QRectF &place) const
    {
        QByteArray numbers;
        MvPdfSyntax::append(numbers, QPointF(place.left(), m_plan.sheet().height() - place.bottom()) * pointsPerTenth,
                            4);
        MvPdfSyntax::append(numbers, QPointF(place.width(), place.height()) * pointsPerTenth, 4);
        return numbers + "re W n ";
    }

    /// From the system of the page to that of the sheet.
    QTransform toSheet(const MvSheetPlan::Part &part)
    {
        QPDFObjectHandle trim = m_old[size_t(part.page)].getTrimBox();
        const QPDFObjectHandle::Rectangle box = trim.getArrayAsRectangle();
        const double scale = part.place.width() / part.part.width();
        const double left = part.place.left() * pointsPerTenth - scale * (box.llx + part.part.left() * pointsPerTenth);
        const double above = (m_plan.sheet().height() - part.place.top()) * pointsPerTenth;
        return {scale, 0.0, 0.0, scale, left, above - scale * (box.ury - part.part.top() * pointsPerTenth)};
    }

    QByteArray matrix(const MvSheetPlan::Part &part)
    {
        const QTransform placed = toSheet(part);
        const QByteArray factor = MvPdfSyntax::number(placed.m11(), 6);
        QByteArray numbers = factor + " 0 0 " + factor + ' ';
        MvPdfSyntax::append(numbers, {placed.dx(), placed.dy()}, 4);
        return numbers + "cm ";
    }

    /// Which sheet it is, and of which pages where there is room for it.
    QByteArray lettering(int number, const QStringList &names, QByteArray &objects)
    {
        const QString name = m_plan.name(number, m_language);
        const QRectF room = m_plan.nameRoom();
        if (name.isEmpty() || room.isEmpty())
            return {};
        const QPointF place = QPointF(room.left(), m_plan.sheet().height() - room.top() - typeSize) * pointsPerTenth;
        const double length = room.width() * pointsPerTenth;
        const QByteArray whole = m_letters.line((QStringList(name) + names).join(u"  ·  "_s), place, length, objects);
        return whole.isEmpty() ? m_letters.line(name, place, length, objects) : whole;
    }

    QByteArray marks(int number) const
    {
        constexpr double scale = pointsPerTenth * unitsPerPoint;
        const QTransform toUnits(scale, 0.0, 0.0, -scale, 0.0, m_plan.sheet().height() * scale);
        MvPdfContent content;
        const auto stroke = [&](const QList<QLineF> &lines, const QList<qreal> &dashes) {
            if (lines.isEmpty())
                return;
            QPen pen(Qt::black, lineWidth, Qt::SolidLine, Qt::FlatCap);
            if (!dashes.isEmpty())
                pen.setDashPattern(dashes);
            content.setPen(pen, scale);
            content.addPath(toUnits.map(pathOf(lines)), MvPdfContent::Subpaths::Closed);
            content.finishPath("S");
        };
        stroke(m_plan.cutMarks(number), {});
        stroke(m_plan.joinMarks(number), {6.0, 4.0}); // in widths
        return content.bytes();
    }

    /// Each to the sheet that shows its page first.
    void moveBookmarks()
    {
        QPDFObjectHandle item = m_pdf.getRoot().getKey("/Outlines");
        for (item = item.isDictionary() ? item.getKey("/First") : item; item.isDictionary();
             item = item.getKey("/Next")) {
            QPDFObjectHandle place = item.getKey("/Dest");
            if (!place.isArray() || place.getArrayNItems() == 0)
                continue;
            const auto sheet = m_firstSheets.find(place.getArrayItem(0).getObjGen());
            if (sheet != m_firstSheets.end())
                place.setArrayItem(0, sheet->second);
        }
    }

    /// How the sheets are to be printed: on one side unless they were made for two.
    void tellPrinters()
    {
        QPDFObjectHandle preferences = m_pdf.getRoot().getKey("/ViewerPreferences");
        if (!preferences.isDictionary())
            return;
        const char *turned = m_plan.isTurnedAboutLongEdge() ? "/DuplexFlipLongEdge" : "/DuplexFlipShortEdge";
        preferences.replaceKey("/Duplex", QPDFObjectHandle::newName(m_plan.isTwoSided() ? turned : "/Simplex"));
    }

    QPDF &m_pdf;
    QPDFPageDocumentHelper m_pages;
    const MvSheetPlan &m_plan;
    const QStringList m_names;
    const MvLocale m_language;
    MvPdfSheetTags m_tags{m_pdf};
    Letters m_letters{m_pdf};
    std::vector<QPDFPageObjectHelper> m_old;
    std::map<QPDFObjGen, QPDFObjectHandle> m_firstSheets; // by page
};

} // namespace

MvOutcome MvQpdfSheets::write(QFile &from, QFile &to, const MvSheetPlan &plan, const QStringList &names,
                              const MvLocale &language)
{
    const uchar *content = from.map(0, from.size());
    if (!content)
        return {from.errorString(), {}};
    MvPdfPipeline pipeline(to);
    try {
        QPDF pdf;
        pdf.setSuppressWarnings(true);
        pdf.processMemoryFile("pages", reinterpret_cast<const char *>(content), size_t(from.size()));
        Sheets(pdf, plan, names, language).lay();
        QPDFWriter writer(pdf);
        writer.setOutputPipeline(&pipeline);
        writer.setObjectStreamMode(qpdf_o_generate);
        writer.setDeterministicID(true);
        writer.write();
    } catch (const std::exception &exception) {
        return {QString::fromUtf8(exception.what()), {}};
    }
    return {pipeline.error(), {}};
}

extern "C" Q_DECL_EXPORT void mvLayPdfOnSheets(QFile &from, QFile &to, const MvSheetPlan &plan,
                                               const QStringList &names, const MvLocale &language, MvOutcome &outcome)
{
    outcome = MvQpdfSheets::write(from, to, plan, names, language);
}
