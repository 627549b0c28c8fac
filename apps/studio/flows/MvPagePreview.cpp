// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvPagePreview.h"

#include "flows/MvBleedPreview.h"
#include "pages/MvPageThumbnail.h"
#include "pages/MvScreenFotos.h"

#include "MvGUIWidgets/MvIconRegistry.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

const QColor trimColor(0xc0, 0x1c, 0x8c); // as on the page
const QColor markColor(0xb3, 0x1b, 0x1b);
constexpr int air = 4;
constexpr double markAway = 3.0; // pixels around the place

} // namespace

MvPagePreview::MvPagePreview(QWidget *parent)
    : QWidget(parent)
    , m_fotos(new MvScreenFotos(MvFotoService::Urgency::Background, this))
    , m_bar(new QWidget(this))
    , m_previous(new QToolButton(m_bar))
    , m_next(new QToolButton(m_bar))
    , m_name(new QLabel(m_bar))
{
    setObjectName(u"pagePreview"_s);
    setAccessibleName(tr("Vorschau der Seite"));
    m_name->setObjectName(u"previewName"_s);
    m_name->setAlignment(Qt::AlignCenter);
    m_name->setTextFormat(Qt::PlainText);
    m_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    const auto set = [this](QToolButton *button, const char *name, const QString &icon, const QString &text, int by) {
        button->setObjectName(QLatin1StringView(name));
        button->setIcon(MvIconRegistry::instance().icon(icon));
        button->setToolTip(text);
        button->setAccessibleName(text);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this, [this, by] { leaf(by); });
    };
    set(m_previous, "previewPrevious", u"ico_studio_page_previous"_s, tr("Vorige Seite"), -1);
    set(m_next, "previewNext", u"ico_studio_page_next"_s, tr("Nächste Seite"), 1);
    auto *row = new QHBoxLayout(m_bar);
    row->setContentsMargins({});
    row->addWidget(m_previous);
    row->addWidget(m_name, 1);
    row->addWidget(m_next);
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, &MvPagePreview::make);
    connect(m_fotos, &MvScreenFotos::loaded, this, &MvPagePreview::makeSoon);
}

MvPagePreview::~MvPagePreview() = default;

QSize MvPagePreview::sizeHint() const
{
    const int letters = fontMetrics().averageCharWidth();
    return {letters * 46, letters * 36};
}

QSize MvPagePreview::minimumSizeHint() const
{
    const int letters = fontMetrics().averageCharWidth();
    return {letters * 26, letters * 18 + m_bar->sizeHint().height()};
}

void MvPagePreview::setExport(const MvCalendarDocument &document, const MvExportOptions &options)
{
    const int before = page();
    m_document = document;
    MvPageFormat format = m_document.format();
    format.setBleed(options.bleed);
    m_document.setFormat(format);
    m_sheets = MvPreviewSheets(m_document, options);
    m_index = qMax(0, m_sheets.indexOf(before));
    makeSoon();
}

void MvPagePreview::showPage(int page)
{
    if (const int index = m_sheets.indexOf(page); index >= 0)
        m_index = index;
    makeSoon();
}

void MvPagePreview::mark(int page, const QRectF &rect)
{
    m_markedPage = page;
    m_mark = rect;
    showPage(page);
}

void MvPagePreview::leaf(int by)
{
    m_index = qBound(0, m_index + by, qMax(0, m_sheets.count() - 1));
    makeSoon();
}

void MvPagePreview::makeSoon()
{
    const int count = m_sheets.count();
    m_previous->setEnabled(m_index > 0);
    m_next->setEnabled(m_index + 1 < count);
    m_name->setText(count == 0 ? tr("Keine Seiten") : m_sheets.at(m_index).name);
    m_later.start(0);
}

QRect MvPagePreview::sheetRoom() const
{
    return rect().adjusted(air, air, -air, -air - m_bar->sizeHint().height());
}

/// The picture of a page, or of its part, on the sheet.
QImage MvPagePreview::pageImage(const MvSheetPlan::Part &part, double scale)
{
    const auto edge =
        part.part == m_document.format().trimRect() ? MvPageThumbnail::Edge::Trim : MvPageThumbnail::Edge::Bleed;
    return MvPageThumbnail::make(m_document.pages().value(part.page), m_document.format(), m_document.context(),
                                 (part.place.size() * scale).toSize(), devicePixelRatioF(), m_fotos, {},
                                 MvPageThumbnail::Empty::Grey, edge);
}

/// What a print shop gets beyond the page, or beside photos on it.
void MvPagePreview::paintBleed(QPainter &painter, const MvSheetPlan::Part &part, const QImage &page) const
{
    const QRectF trim = m_document.format().trimRect();
    if (const double bleed = m_sheets.madeUpBleed(); bleed > 0.0)
        MvBleedPreview(page, trim, bleed, m_sheets.bleedKind()).paint(painter);
    if (!m_sheets.fillsBleedOfPictures())
        return;
    const QRectF media = m_document.format().mediaRect();
    QTransform toPixels = QTransform::fromTranslate(-media.x(), -media.y());
    toPixels *= QTransform::fromScale(page.width() / media.width(), page.height() / media.height());
    const QImage trimmed = page.copy(toPixels.mapRect(trim).toRect());
    for (const QRectF &beside : MvBleedPreview::besideFotos(m_document.pages().value(part.page), m_document.format())) {
        painter.save();
        painter.setClipRect(beside);
        MvBleedPreview(trimmed, trim, m_document.format().bleed(), m_sheets.bleedKind()).paint(painter);
        painter.restore();
    }
}

void MvPagePreview::make()
{
    const MvPreviewSheets::Sheet sheet = m_sheets.at(m_index);
    m_image = {};
    if (!sheet.paper.isEmpty()) {
        const QSize size = sheet.paper.size().scaled(sheetRoom().size(), Qt::KeepAspectRatio).toSize();
        const double scale = size.width() / sheet.paper.width();
        m_image = QImage(size * devicePixelRatioF(), QImage::Format_ARGB32_Premultiplied);
        m_image.fill(Qt::white);
        m_image.setDevicePixelRatio(devicePixelRatioF());
        QPainter painter(&m_image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.scale(scale, size.height() / sheet.paper.height());
        painter.translate(-sheet.paper.topLeft());
        for (const MvSheetPlan::Part &part : sheet.parts) {
            const QImage page = pageImage(part, scale);
            painter.drawImage(part.place, page);
            paintBleed(painter, part, page);
        }
        QPen pen(Qt::black, 1.0 / scale);
        painter.strokePath(sheet.marks, pen);
        pen.setStyle(Qt::DashLine);
        painter.setPen(pen);
        painter.drawLines(sheet.foldMarks);
    }
    update();
}

void MvPagePreview::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_bar->setGeometry(0, height() - m_bar->sizeHint().height(), width(), m_bar->sizeHint().height());
    makeSoon();
}

void MvPagePreview::paintEvent(QPaintEvent * /*event*/)
{
    if (m_image.isNull())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QRectF sheet(QPointF(), m_image.deviceIndependentSize());
    sheet.moveCenter(QRectF(sheetRoom()).center());
    painter.drawImage(sheet, m_image);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(sheet.adjusted(-0.5, -0.5, 0.5, 0.5));
    const MvPreviewSheets::Sheet shown = m_sheets.at(m_index);
    QTransform toSheet;
    toSheet.translate(sheet.x(), sheet.y());
    toSheet.scale(sheet.width() / shown.paper.width(), sheet.height() / shown.paper.height());
    toSheet.translate(-shown.paper.x(), -shown.paper.y());
    if (const QRectF trim = m_document.format().trimRect(); !m_sheets.hasSeveral() && shown.paper != trim) {
        painter.setPen(QPen(trimColor, 1.0, Qt::DashLine));
        painter.drawRect(toSheet.mapRect(trim));
    }
    for (const QRectF &tile : m_sheets.tiles()) { // on any photo
        const QRectF part = toSheet.mapRect(tile);
        painter.setPen(QPen(QColor(255, 255, 255, 160), 3.0));
        painter.drawRect(part);
        painter.setPen(trimColor);
        painter.drawRect(part);
    }
    paintMark(painter, toSheet);
}

void MvPagePreview::paintMark(QPainter &painter, const QTransform &toSheet) const
{
    for (const MvSheetPlan::Part &part : m_sheets.at(m_index).parts) {
        if (part.page != m_markedPage || m_mark.isEmpty())
            continue;
        QTransform onSheet = QTransform::fromTranslate(-part.part.x(), -part.part.y());
        onSheet *=
            QTransform::fromScale(part.place.width() / part.part.width(), part.place.height() / part.part.height());
        onSheet *= QTransform::fromTranslate(part.place.x(), part.place.y());
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(markColor, 2.5));
        const QRectF place = (onSheet * toSheet).mapRect(m_mark).adjusted(-markAway, -markAway, markAway, markAway);
        painter.drawRoundedRect(place & toSheet.mapRect(part.place).adjusted(-2, -2, 2, 2), markAway, markAway);
    }
}
