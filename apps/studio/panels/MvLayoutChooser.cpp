// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvLayoutChooser.h"

#include "pages/MvPageThumbnail.h"

#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCalendar/MvRenderingSources.h"
#include "MvFoto/MvFotoPass.h"
#include "common/MvIdleImages.h"

#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int idRole = Qt::UserRole;
constexpr double frameWidth = 3.0; // of the chosen picture

/// Layouts that are only a part of a page, such as the line with the month, are not offered.
bool isWholePage(const MvCalendariumLayoutSchema &schema)
{
    return schema.calendariumType().traits().hasDayCells;
}

} // namespace

MvLayoutChooser::MvLayoutChooser(QWidget *parent, const QSize &pictureSize)
    : QWidget(parent)
    , m_list(new QListWidget(this))
    , m_description(new QLabel(this))
    , m_images(new MvIdleImages([this](int number) { return makePicture(number); }, this))
    , m_entryFotos(new MvFotoPages(MvFotoService::Urgency::Background, this))
    , m_pictureSize(pictureSize)
{
    m_list->setObjectName(u"layoutList"_s);
    m_list->setAccessibleName(tr("Layouts"));
    m_list->setViewMode(QListView::IconMode);
    m_list->setMovement(QListView::Static);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setIconSize(pictureSize);
    m_list->setSpacing(4);
    m_list->setWordWrap(true);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    const int textHeight = 2 * m_list->fontMetrics().height() + 10;
    m_list->setGridSize({pictureSize.width() + 20, pictureSize.height() + textHeight + 8});
    for (const MvCalendariumLayoutSchema &schema : MvCalendariumLayoutSchemaRegistry::instance().schemata()) {
        if (!isWholePage(schema))
            continue;
        auto *item = new QListWidgetItem(schema.name(), m_list);
        item->setData(idRole, schema.ID().toString());
        item->setToolTip(schema.description());
        item->setData(Qt::AccessibleDescriptionRole, schema.description());
        item->setTextAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }
    m_description->setWordWrap(true);
    m_description->setObjectName(u"layoutDescription"_s);
    m_description->setMinimumHeight(2 * m_description->fontMetrics().lineSpacing());
    m_description->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(m_list, 1);
    column->addWidget(m_description);

    connect(m_entryFotos, &MvFotoPages::arrived, this, [this](int number) { m_images->invalidate(number); });
    connect(m_images, &MvIdleImages::imageReady, this, &MvLayoutChooser::showPicture);
    connect(m_list, &QListWidget::currentRowChanged, this, [this] {
        describeCurrent();
        Q_EMIT layoutIdChanged();
    });
    connect(m_list, &QListWidget::itemActivated, this, &MvLayoutChooser::activated);
    setFocusProxy(m_list);
}

MvLayoutChooser::~MvLayoutChooser() = default;

void MvLayoutChooser::setDocument(const MvCalendarDocument &document)
{
    m_document = MvCalendarDocument();
    m_document.setAppearance(document.appearance());
    m_document.setHolidayConfig(document.holidayConfig());
    m_document.setFormat(document.format());
    const QDate start = document.range().start();
    m_document.setRange({start, start.addMonths(12).addDays(-1)});
    QPixmap blank = QPixmap::fromImage(emptyPicture());
    QPainter painter(&blank);
    painter.fillRect(sheetRect(), palette().alternateBase());
    painter.end();
    for (int row = 0; row < m_list->count(); ++row)
        if (m_list->item(row)->icon().isNull())
            m_list->item(row)->setIcon(QIcon(blank));
    m_images->reset(m_list->count());
    if (!layoutId().isValid())
        setLayoutId(document.appearance().layoutSchema().ID());
}

MvCalendariumLayoutSchemaID MvLayoutChooser::layoutId() const
{
    const QListWidgetItem *item = m_list->currentItem();
    return item ? MvCalendariumLayoutSchemaID(item->data(idRole).toString()) : MvCalendariumLayoutSchemaID();
}

void MvLayoutChooser::setLayoutId(const MvCalendariumLayoutSchemaID &id)
{
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->data(idRole).toString() != id.toString())
            continue;
        m_list->setCurrentRow(row);
        m_list->scrollToItem(m_list->item(row));
        return;
    }
    m_list->setCurrentRow(-1); // one that is not offered is none of these
}

MvCalendariumAppearance MvLayoutChooser::withLayout(const MvCalendariumAppearance &appearance,
                                                    const MvCalendariumLayoutSchemaID &id)
{
    MvCalendariumAppearance changed = appearance;
    changed.setLayoutSchemaByID(id);
    changed.adoptLayoutSuggestions();
    changed.adaptGridToLayout();
    return changed;
}

/// The pictures share the width evenly.
void MvLayoutChooser::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    constexpr int air = 24;
    const int room = width() - 2 * m_list->frameWidth() - m_list->style()->pixelMetric(QStyle::PM_ScrollBarExtent) - 1;
    const int columns = qMax(1, room / (m_pictureSize.width() + air));
    const QSize grid(room / columns, m_list->gridSize().height());
    if (room > 0 && grid != m_list->gridSize())
        m_list->setGridSize(grid);
    scrollToCurrentSoon();
}

void MvLayoutChooser::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    scrollToCurrentSoon();
}

/// When the list has laid out its items anew.
void MvLayoutChooser::scrollToCurrentSoon()
{
    const auto scroll = [this] {
        m_list->doItemsLayout();
        if (QListWidgetItem *item = m_list->currentItem())
            m_list->scrollToItem(item);
    };
    QMetaObject::invokeMethod(this, scroll, Qt::QueuedConnection);
}

QImage MvLayoutChooser::emptyPicture() const
{
    QImage image(m_pictureSize * devicePixelRatioF(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatioF());
    image.fill(Qt::transparent);
    return image;
}

/// The page, as large as it can be within the picture.
QRectF MvLayoutChooser::sheetRect() const
{
    const QSizeF room = QSizeF(m_pictureSize) - QSizeF(2 * frameWidth, 2 * frameWidth);
    const QSizeF sheet = m_document.format().trimSize().scaled(room, Qt::KeepAspectRatio);
    return {QPointF((m_pictureSize.width() - sheet.width()) / 2.0, (m_pictureSize.height() - sheet.height()) / 2.0),
            sheet};
}

QImage MvLayoutChooser::makePicture(int number) const
{
    const QListWidgetItem *item = m_list->item(number);
    if (!item)
        return {};
    MvCalendarDocument document = m_document;
    document.setAppearance(
        withLayout(document.appearance(), MvCalendariumLayoutSchemaID(item->data(idRole).toString())));
    QImage image = emptyPicture();
    const QRectF sheet = sheetRect();
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    if (!document.pages().isEmpty()) {
        MvFotoPass fotos(*m_entryFotos, number);
        MvRenderingSources sources;
        sources.fotos = &fotos;
        painter.drawImage(sheet,
                          MvPageThumbnail::make(document.pages().constFirst(), document.format(), document.range(),
                                                sheet.size().toSize(), devicePixelRatioF(), nullptr, sources));
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(sheet);
    return image;
}

void MvLayoutChooser::showPicture(int number)
{
    if (QListWidgetItem *item = m_list->item(number)) {
        QIcon icon;
        QPixmap picture = QPixmap::fromImage(m_images->image(number));
        icon.addPixmap(picture);
        QPainter painter(&picture); // a page keeps its colours when it is chosen, and gets a frame
        painter.setPen(
            QPen(palette().color(QPalette::Highlight), frameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(sheetRect());
        painter.end();
        icon.addPixmap(picture, QIcon::Selected);
        item->setIcon(icon);
    }
}

void MvLayoutChooser::describeCurrent()
{
    const QListWidgetItem *item = m_list->currentItem();
    m_description->setText(item ? item->toolTip() : QString());
}
