// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFotoDelegate.h"

#include "MvCalendar/MvCalendarEventFotoDelegateEditorWidget.h"
#include "MvCalendar/MvCalendarEventModel.h"
#include "MvCalendar/MvCalendarEventStep.h"
#include "MvCalendar/MvEntryEdits.h"

#include "MvFoto/MvFotoThumbnails.h"
#include "MvGUIWidgets/MvIconRegistry.h"
#include "MvGUIWidgets/MvTableView.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;

namespace {

constexpr int smallestHeight = 52;
constexpr int margin = 4; // around the photo
constexpr qreal cornerRadius = 4;
constexpr int placeholderAlpha = 18; // of 255
constexpr qreal placeholderIconOpacity = 0.35;
constexpr int placeholderIconSize = 20;

MvCalendarEvent eventOf(const QModelIndex &index)
{
    return index.data(Qt::UserRole).value<MvCalendarEvent>();
}

void change(MvSession &session, const MvCalendarEvent &before, const MvCalendarEvent &after)
{
    MvEntryEdits(session).push(new MvCalendarEventStep(before, after, session), after);
}

} // namespace

MvCalendarEventFotoDelegate::MvCalendarEventFotoDelegate(MvTableView *view)
    : QStyledItemDelegate(view)
    , m_view(view)
    , m_thumbnails(new MvFotoThumbnails(this))
{
    connect(m_thumbnails, &MvFotoThumbnails::ready, view->viewport(), qOverload<>(&QWidget::update));
}

MvCalendarEventFotoDelegate::~MvCalendarEventFotoDelegate() = default;

// ---- editing

QWidget *MvCalendarEventFotoDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                                   const QModelIndex &index) const
{
    auto *editor =
        new MvCalendarEventFotoDelegateEditorWidget(eventOf(index), parent, MvCalendarEventModel::sessionOf(index));
    connect(editor, &MvCalendarEventFotoDelegateEditorWidget::calendarEventChanged, this,
            [this, editor] { Q_EMIT const_cast<MvCalendarEventFotoDelegate *>(this)->commitData(editor); });
    return editor;
}

void MvCalendarEventFotoDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *widget = qobject_cast<MvCalendarEventFotoDelegateEditorWidget *>(editor))
        widget->setCalendarEvent(eventOf(index));
}

void MvCalendarEventFotoDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                               const QModelIndex &index) const
{
    const auto *widget = qobject_cast<MvCalendarEventFotoDelegateEditorWidget *>(editor);
    if (!widget || widget->calendarEvent().foto() == eventOf(index).foto())
        return;
    model->setData(index.siblingAtColumn(MvCalendarEventModel::FotoColumn),
                   widget->calendarEvent().foto().localFilePath());
}

bool MvCalendarEventFotoDelegate::editorEvent(QEvent *event, QAbstractItemModel *, const QStyleOptionViewItem &,
                                              const QModelIndex &index)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const MvCalendarEvent before = eventOf(index);
    MvSession &session = MvCalendarEventModel::sessionOf(index);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_F2:
        MvCalendarEventFotoDelegateEditorWidget::requestFoto(
            before, m_view,
            [&session](const MvCalendarEvent &from, const MvCalendarEvent &to) { change(session, from, to); }, session);
        return true;
    case Qt::Key_Delete: {
        MvCalendarEvent after = before;
        after.setFoto(MvFoto());
        change(session, before, after);
        return true;
    }
    default:
        return false;
    }
}

// ---- painting

/// Called for every row of the list, so the photo itself is not loaded.
QSize MvCalendarEventFotoDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    const int height = std::max(smallestHeight, 3 * option.fontMetrics.height());
    return {height, height};
}

void MvCalendarEventFotoDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    const QRect rect = option.rect.adjusted(margin, margin, -margin, -margin - 1);
    const QPixmap pixmap =
        m_thumbnails->cropped(eventOf(index).foto(), rect.size(), painter->device()->devicePixelRatio());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (pixmap.isNull()) {
        paintPlaceholder(painter, rect, option.palette);
    } else {
        QBrush brush(pixmap);
        painter->setBrushOrigin(rect.topLeft());
        painter->setPen(Qt::NoPen);
        painter->setBrush(brush);
        painter->drawRoundedRect(rect, cornerRadius, cornerRadius);
    }
    if (option.state & QStyle::State_HasFocus) {
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(option.palette.color(QPalette::Active, QPalette::Highlight), 2));
        painter->drawRoundedRect(rect, cornerRadius, cornerRadius);
    }
    painter->restore();
}

void MvCalendarEventFotoDelegate::paintPlaceholder(QPainter *painter, const QRect &rect, const QPalette &palette)
{
    QColor fill = palette.color(QPalette::Active, QPalette::Text);
    fill.setAlpha(placeholderAlpha);
    painter->setPen(Qt::NoPen);
    painter->setBrush(fill);
    painter->drawRoundedRect(rect, cornerRadius, cornerRadius);
    QRect iconRect(0, 0, placeholderIconSize, placeholderIconSize);
    iconRect.moveCenter(rect.center());
    painter->setOpacity(placeholderIconOpacity);
    MvIconRegistry::instance().icon(u"ico_common_photo"_s).paint(painter, iconRect);
    painter->setOpacity(1);
}
