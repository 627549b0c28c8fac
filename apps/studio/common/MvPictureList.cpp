// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/MvPictureList.h"

#include "common/MvIdleImages.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

constexpr int idRole = Qt::UserRole;
constexpr double markWidth = 3.0; // of the chosen picture

} // namespace

MvPictureList::MvPictureList(const QSize &pictureSize, Make make, QWidget *parent)
    : QListWidget(parent)
    , m_make(std::move(make))
    , m_images(new MvIdleImages([this](int row) { return makePicture(row); }, this))
    , m_pictureSize(pictureSize)
{
    setViewMode(IconMode);
    setMovement(Static);
    setResizeMode(Adjust);
    setIconSize(pictureSize);
    setSpacing(4);
    setWordWrap(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int textHeight = 2 * fontMetrics().height() + 10;
    setGridSize({pictureSize.width() + 20, pictureSize.height() + textHeight + 8});
    m_images->setPaused(true); // until somebody sees the list
    connect(m_images, &MvIdleImages::imageReady, this, &MvPictureList::showPicture);
}

MvPictureList::~MvPictureList() = default;

void MvPictureList::addPicture(const QString &id, const QString &name, const QString &description)
{
    auto *item = new QListWidgetItem(name, this);
    item->setData(idRole, id);
    item->setToolTip(description);
    item->setData(Qt::AccessibleDescriptionRole, description);
    item->setTextAlignment(Qt::AlignHCenter | Qt::AlignTop);
    shareWidth();
}

QString MvPictureList::idOf(int row) const
{
    const QListWidgetItem *found = item(row);
    return found ? found->data(idRole).toString() : QString();
}

QString MvPictureList::currentId() const
{
    return idOf(currentRow());
}

void MvPictureList::setCurrentId(const QString &id)
{
    for (int row = 0; row < count(); ++row) {
        if (idOf(row) != id)
            continue;
        setCurrentRow(row);
        scrollToItem(item(row));
        return;
    }
    setCurrentRow(-1);
}

void MvPictureList::setPaper(const QSizeF &size)
{
    if (size.isEmpty() || size == m_paper)
        return;
    m_paper = size;
    for (int row = 0; row < count(); ++row)
        item(row)->setIcon({});
}

void MvPictureList::renew()
{
    QPixmap blank = QPixmap::fromImage(emptyPicture());
    QPainter painter(&blank);
    painter.fillRect(sheetRect(), palette().alternateBase());
    painter.end();
    for (int row = 0; row < count(); ++row)
        if (item(row)->icon().isNull())
            item(row)->setIcon(QIcon(blank));
    m_images->reset(count());
}

void MvPictureList::renew(int row)
{
    m_images->invalidate(row);
}

void MvPictureList::setWholeHeight(bool whole)
{
    m_isWhole = whole;
    setVerticalScrollBarPolicy(whole ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    shareWidth();
}

QSize MvPictureList::sizeHint() const
{
    return {QListWidget::sizeHint().width(), m_isWhole ? height() : QListWidget::sizeHint().height()};
}

/// The pictures share the width evenly.
void MvPictureList::shareWidth()
{
    constexpr int air = 24;
    const int bar = m_isWhole ? 0 : style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int room = width() - 2 * frameWidth() - bar - 1;
    const int columns = qMax(1, room / (m_pictureSize.width() + air));
    const QSize grid(room / columns, gridSize().height());
    if (room > 0 && grid != gridSize())
        setGridSize(grid);
    if (m_isWhole)
        setFixedHeight(qMax(1, (count() + columns - 1) / columns) * grid.height() + 2 * frameWidth());
}

void MvPictureList::resizeEvent(QResizeEvent *event)
{
    QListWidget::resizeEvent(event);
    shareWidth();
    scrollToCurrentSoon();
}

void MvPictureList::showEvent(QShowEvent *event)
{
    QListWidget::showEvent(event);
    m_images->setPaused(false);
    scrollToCurrentSoon();
}

/// Coming to the list chooses nothing: the toolkit would take the first picture where none is chosen.
void MvPictureList::focusInEvent(QFocusEvent *event)
{
    const bool isChosen = currentIndex().isValid();
    const QSignalBlocker quiet(this);
    QListWidget::focusInEvent(event);
    if (!isChosen)
        setCurrentRow(-1);
}

void MvPictureList::hideEvent(QHideEvent *event)
{
    QListWidget::hideEvent(event);
    m_images->setPaused(true);
}

/// When the list has laid out its items anew.
void MvPictureList::scrollToCurrentSoon()
{
    if (m_isWhole)
        return;
    const auto scroll = [this] {
        doItemsLayout();
        if (QListWidgetItem *current = currentItem())
            scrollToItem(current);
    };
    QMetaObject::invokeMethod(this, scroll, Qt::QueuedConnection);
}

QImage MvPictureList::emptyPicture() const
{
    QImage image(m_pictureSize * devicePixelRatioF(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatioF());
    image.fill(Qt::transparent);
    return image;
}

/// The page, as large as it can be within the picture.
QRectF MvPictureList::sheetRect() const
{
    const QSizeF room = QSizeF(m_pictureSize) - QSizeF(2 * markWidth, 2 * markWidth);
    const QSizeF sheet = m_paper.scaled(room, Qt::KeepAspectRatio);
    return {QPointF((m_pictureSize.width() - sheet.width()) / 2.0, (m_pictureSize.height() - sheet.height()) / 2.0),
            sheet};
}

QImage MvPictureList::makePicture(int row) const
{
    QImage image = emptyPicture();
    const QRectF sheet = sheetRect();
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    const QImage page = m_make(row, sheet.size().toSize(), devicePixelRatioF());
    if (page.isNull())
        painter.fillRect(sheet, palette().alternateBase());
    else
        painter.drawImage(sheet, page);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(sheet);
    return image;
}

void MvPictureList::showPicture(int row)
{
    QListWidgetItem *shown = item(row);
    if (!shown)
        return;
    QIcon icon;
    QPixmap picture = QPixmap::fromImage(m_images->image(row));
    icon.addPixmap(picture);
    QPainter painter(&picture); // a page keeps its colours when it is chosen, and gets a frame
    painter.setPen(QPen(palette().color(QPalette::Highlight), markWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(sheetRect());
    painter.end();
    icon.addPixmap(picture, QIcon::Selected);
    shown->setIcon(icon);
}
