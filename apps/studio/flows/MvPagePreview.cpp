// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvPagePreview.h"

#include "pages/MvPageThumbnail.h"
#include "pages/MvScreenFotos.h"

#include "MvGUIWidgets/MvIconRegistry.h"
#include "MvProject/MvPrintCheck.h"

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

void MvPagePreview::setPages(const MvCalendarDocument &document, const QList<int> &pages)
{
    const int before = page();
    m_document = document;
    m_pages = pages;
    m_index = qMax(0, int(pages.indexOf(before)));
    makeSoon();
}

void MvPagePreview::setBleed(double bleed)
{
    MvPageFormat format = m_document.format();
    format.setBleed(bleed);
    m_document.setFormat(format);
    makeSoon();
}

void MvPagePreview::setTiles(const QList<QRectF> &tiles)
{
    m_tiles = tiles;
    update();
}

void MvPagePreview::showPage(int page)
{
    if (const auto index = m_pages.indexOf(page); index >= 0)
        m_index = int(index);
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
    m_index = qBound(0, m_index + by, qMax(0, int(m_pages.size()) - 1));
    makeSoon();
}

void MvPagePreview::makeSoon()
{
    const int count = int(m_pages.size());
    m_previous->setEnabled(m_index > 0);
    m_next->setEnabled(m_index + 1 < count);
    m_name->setText(count == 0 ? tr("Keine Seiten") : MvPrintCheck::pageName(m_document, page()));
    m_later.start(0);
}

QRect MvPagePreview::sheetRoom() const
{
    return rect().adjusted(air, air, -air, -air - m_bar->sizeHint().height());
}

void MvPagePreview::make()
{
    const QRectF media = m_document.format().mediaRect();
    const MvCalendarPage shown = m_document.pages().value(page());
    m_image = {};
    if (shown.isValid() && !media.isEmpty())
        m_image = MvPageThumbnail::make(shown, m_document.format(), m_document.context(),
                                        media.size().scaled(sheetRoom().size(), Qt::KeepAspectRatio).toSize(),
                                        devicePixelRatioF(), m_fotos, {}, MvPageThumbnail::Empty::Grey,
                                        MvPageThumbnail::Edge::Bleed);
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
    const QRectF media = m_document.format().mediaRect();
    QTransform toSheet;
    toSheet.translate(sheet.x(), sheet.y());
    toSheet.scale(sheet.width() / media.width(), sheet.height() / media.height());
    toSheet.translate(-media.x(), -media.y());
    if (m_document.format().bleed() > 0.0) {
        painter.setPen(QPen(trimColor, 1.0, Qt::DashLine));
        painter.drawRect(toSheet.mapRect(m_document.format().trimRect()));
    }
    for (const QRectF &tile : m_tiles) { // on any photo
        const QRectF part = toSheet.mapRect(tile);
        painter.setPen(QPen(QColor(255, 255, 255, 160), 3.0));
        painter.drawRect(part);
        painter.setPen(trimColor);
        painter.drawRect(part);
    }
    if (m_markedPage == page() && !m_mark.isEmpty()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(markColor, 2.5));
        const QRectF place = toSheet.mapRect(m_mark).adjusted(-markAway, -markAway, markAway, markAway);
        painter.drawRoundedRect(place & sheet.adjusted(-2, -2, 2, 2), markAway, markAway);
    }
}
