// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvGraphicsItemCalendariumCellsManager.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventFotoIntake.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumCellAccessible.h"
#include "MvCalendar/MvCalendariumHolidayCache.h"
#include "MvCalendar/MvDayMenu.h"
#include "MvCalendar/MvEntryEdits.h"
#include "MvCalendar/MvGraphicsItemCalendariumCell.h"
#include "MvCalendar/MvUndoCommandCalendarEvent.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int menuDelay = 10; // ms: the click is over by then
constexpr QPoint menuOffset(2, 2);
constexpr double tolerance = 1e-12;
constexpr qreal aboveParent = 0.1;

bool isSame(double a, double b)
{
    if (a == 0 || b == 0)
        return std::abs(a - b) <= tolerance;
    return std::abs(a - b) <= tolerance * std::min(std::abs(a), std::abs(b));
}

bool isSame(const QRectF &a, const QRectF &b)
{
    return isSame(a.x(), b.x()) && isSame(a.y(), b.y()) && isSame(a.width(), b.width()) &&
           isSame(a.height(), b.height());
}

} // namespace

MvGraphicsItemCalendariumCellsManager::MvGraphicsItemCalendariumCellsManager(QGraphicsObject *parent,
                                                                             MvSession &session)
    : QObject(parent)
    , m_session(session)
    , m_parent(parent)
{
    MvCalendariumCellAccessible::install();
    m_menuTimer.setSingleShot(true);
    m_menuTimer.setInterval(menuDelay);
    connect(&m_menuTimer, &QTimer::timeout, this, &MvGraphicsItemCalendariumCellsManager::showEntryForDateInternal);
}

MvGraphicsItemCalendariumCellsManager::~MvGraphicsItemCalendariumCellsManager() = default;

// ---- cells

void MvGraphicsItemCalendariumCellsManager::setStartDate(const QDate &date)
{
    if (m_startDate == date)
        return;
    for (const auto &cell : std::as_const(m_cells))
        remove(cell);
    m_cells.clear();
    m_startDate = date;
}

void MvGraphicsItemCalendariumCellsManager::setEditable(bool editable)
{
    m_isEditable = editable;
    if (!editable)
        endHover(cell(m_hoveredDate));
    for (const auto &cell : std::as_const(m_cells)) {
        if (cell)
            cell->setVisible(editable);
    }
}

void MvGraphicsItemCalendariumCellsManager::resetRectsForMonth(const QDate &date, const QRectF &rect)
{
    if (date == m_startDate && isSame(rect, m_rect))
        return;
    setStartDate(date);
    m_rect = rect;
    removeKeys(date);
}

void MvGraphicsItemCalendariumCellsManager::resetRectsForTitleLine(bool thereIsATitleLine)
{
    if (m_hasTitleLine == thereIsATitleLine)
        return;
    m_hasTitleLine = thereIsATitleLine;
    removeKeys(m_startDate);
}

void MvGraphicsItemCalendariumCellsManager::removeKeys(const QDate &month)
{
    m_cells.removeIf([this, &month](const auto &entry) {
        const bool isInMonth = entry.key().year() == month.year() && entry.key().month() == month.month();
        if (isInMonth)
            remove(entry.value());
        return isInMonth;
    });
}

void MvGraphicsItemCalendariumCellsManager::remove(MvGraphicsItemCalendariumCell *cell)
{
    if (!cell)
        return;
    endHover(cell);
    cell->disconnect(this);
    if (cell->scene())
        cell->scene()->removeItem(cell);
    else
        cell->setParentItem(nullptr);
    cell->deleteLater();
}

/// Nobody tells a cell that goes or hides that the mouse has left it.
void MvGraphicsItemCalendariumCellsManager::endHover(MvGraphicsItemCalendariumCell *cell)
{
    if (cell && m_hoveredDate.isValid() && cell->date() == m_hoveredDate)
        cell->endHover();
}

void MvGraphicsItemCalendariumCellsManager::addRectForDate(const QDate &date, const QRectF &rect)
{
    MvGraphicsItemCalendariumCell *cell = findCell(date);
    if (rect.width() < m_smallestWidth) {
        m_smallestWidth = rect.width();
        Q_EMIT smallestWidthChanged();
    }
    cell->setPos(rect.topLeft());
    cell->setBoundingRect(QRectF(QPointF(), rect.size()));
}

MvGraphicsItemCalendariumCell *MvGraphicsItemCalendariumCellsManager::findCell(const QDate &date)
{
    auto &cell = m_cells[date];
    if (!cell)
        cell = createCell(date);
    return cell;
}

MvGraphicsItemCalendariumCell *MvGraphicsItemCalendariumCellsManager::cell(const QDate &date) const
{
    return m_cells.value(date);
}

MvGraphicsItemCalendariumCell *MvGraphicsItemCalendariumCellsManager::createCell(const QDate &date)
{
    using Cell = MvGraphicsItemCalendariumCell;
    using Manager = MvGraphicsItemCalendariumCellsManager;
    auto *cell = new Cell(date, m_parent);
    cell->setVisible(m_isEditable);
    cell->setZValue(m_parent->zValue() + aboveParent);
    cell->setDescriber([this](const QDate &day) { return describe(day); });
    connect(cell, &Cell::dateClicked, this, &Manager::showEntryForDate);
    connect(cell, &Cell::hoveredDate, this, &Manager::updateLastHoveredDate);
    connect(cell, &Cell::fotoDropped, this, &Manager::takeFotoForDate);
    connect(cell, &Cell::focusRequested, this, &Manager::focusDate);
    return cell;
}

void MvGraphicsItemCalendariumCellsManager::updateLastHoveredDate(const QDate &date)
{
    m_hoveredDate = date;
}

bool MvGraphicsItemCalendariumCellsManager::focusDate(const QDate &date)
{
    MvGraphicsItemCalendariumCell *found = cell(date);
    if (!found || !found->isVisible() || !found->scene())
        return false;
    const QList<QGraphicsView *> views = found->scene()->views();
    for (QGraphicsView *view : views)
        view->ensureVisible(found, 10, 10);
    if (!views.isEmpty() && !views.first()->hasFocus())
        views.first()->setFocus();
    if (found->hasFocus() && !found->hasKeyboardFocus())
        found->clearFocus(); // it came by the mouse; now it is the keyboard's
    found->setFocus(Qt::TabFocusReason);
    return true;
}

/// Holidays and entries, as the page shows them.
QString MvGraphicsItemCalendariumCellsManager::describe(const QDate &date) const
{
    const MvCalendariumContentConfig config = configOf(date);
    const MvCalendariumContentKey key(config, m_session.entries().activeModelId());
    QStringList texts;
    if (config.hasFeatures(MvCalendariumFeatures(FEATURE_HOLIDAYS)))
        texts = MvCalendariumHolidayCache::instance().descriptions(key);
    texts += m_session.entries().descriptions(key);
    return texts.join(u", "_s);
}

// ---- menu and editor

void MvGraphicsItemCalendariumCellsManager::showEntryForDate(const QDate &theDate, const QPoint &theSource)
{
    m_menuDate = theDate;
    m_menuPos = theSource;
    if (m_isEditable)
        m_menuTimer.start();
}

void MvGraphicsItemCalendariumCellsManager::showEntryForDateInternal()
{
    if (!m_isEditable)
        return;
    if (m_openDay) {
        m_openDay(m_menuDate, m_menuPos);
        return;
    }
    MvDayMenu *menu = createMenu(m_menuDate, m_holidayConfig);
    const QList<QAction *> choices = menu->choices();
    if (choices.size() == 1 && !m_hasMenuForOneEntry) {
        choices.first()->trigger();
        delete menu;
        return;
    }
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(m_menuPos + menuOffset);
    menu->setActiveAction(choices.value(0)); // the next return key takes it
}

QMenu *MvGraphicsItemCalendariumCellsManager::customEntryMenuForHoveredDate(const QDate &date)
{
    return m_isEditable ? createCustomEntryMenu(date, m_holidayConfig) : nullptr;
}

QMenu *MvGraphicsItemCalendariumCellsManager::createCustomEntryMenu(const QDate &date,
                                                                    const MvCalendariumHolidayConfig &config)
{
    return createMenu(date, config);
}

MvDayMenu *MvGraphicsItemCalendariumCellsManager::createMenu(const QDate &date,
                                                             const MvCalendariumHolidayConfig &config)
{
    auto *menu = new MvDayMenu(date, config, m_session, view());
    connect(menu, &MvDayMenu::entryChosen, this,
            &MvGraphicsItemCalendariumCellsManager::createAndStartCalendarDayEditorDialog);
    return menu;
}

QWidget *MvGraphicsItemCalendariumCellsManager::view() const
{
    return m_parent->scene() ? m_parent->scene()->views().value(0) : nullptr;
}

MvCalendarDayEditorDialog *
MvGraphicsItemCalendariumCellsManager::createAndStartCalendarDayEditorDialog(const MvCalendarEvent &event)
{
    Q_EMIT showEvent(event);
    auto *dialog = MvCalendarDayEditorDialog::createSelfDeleting(m_parent, m_session);
    connect(dialog, &QDialog::accepted, this, &MvGraphicsItemCalendariumCellsManager::eventChanged);
    dialog->openDayEditorSingle(event);
    return dialog;
}

void MvGraphicsItemCalendariumCellsManager::takeFotoForDate(const QDate &date, const MvFoto &foto)
{
    if (!m_isEditable)
        return;
    // also those that the page does not show
    const MvCalendariumContentConfig config = configOf(date).withFeature(FEATURE_ENTRIES, true);
    const MvCalendarEventList events = m_session.entries().events(config);
    if (events.size() == 1) {
        const auto use = [this](const MvCalendarEvent &before, const MvCalendarEvent &after) {
            MvEntryEdits(m_session).push(new MvUndoCommandCalendarEvent(before, after, m_parent, m_session), after);
            Q_EMIT eventChanged();
        };
        MvCalendarEventFotoIntake::take(events.first(), foto, this, use, m_session);
    } else {
        createAndStartCalendarDayEditorDialog(MvDayMenu::newEntryAt(date))->setFoto(foto);
    }
}

// ---- artwork

QTransform MvGraphicsItemCalendariumCellsManager::createSvg2SceneMatrix(const QRectF &viewBox, Qt::AspectRatioMode mode,
                                                                        const QRectF &rect)
{
    if (viewBox.isEmpty())
        return {};
    QRectF target(QPointF(), viewBox.size().scaled(rect.size(), mode));
    target.moveCenter(rect.center());
    QTransform transform;
    transform.translate(target.x(), target.y());
    transform.scale(target.width() / viewBox.width(), target.height() / viewBox.height());
    transform.translate(-viewBox.x(), -viewBox.y());
    return transform;
}

void MvGraphicsItemCalendariumCellsManager::detectCellBoundingBoxes(const MvDateRange &range, QSvgRenderer *renderer,
                                                                    Qt::AspectRatioMode mode, const QRectF &rect)
{
    if (!renderer || !range.isValid())
        return;
    const QTransform toScene = createSvg2SceneMatrix(renderer->viewBoxF(), mode, rect);
    resetRectsForMonth(range.start(), rect);
    for (int i = range.firstIndex(); i <= range.lastIndexEvenIfUnvalid(); ++i) {
        const QDate date = range.dayAt(i);
        const QString id = u"child_Day_"_s + date.toString(Qt::ISODate);
        if (!renderer->elementExists(id))
            continue;
        const QRectF bounds = renderer->transformForElement(id).mapRect(renderer->boundsOnElement(id));
        addRectForDate(date, toScene.mapRect(bounds));
    }
}
