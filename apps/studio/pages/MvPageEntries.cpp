// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageEntries.h"

#include "pages/MvPageDropTarget.h"
#include "pages/MvPageItem.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryBubble.h"
#include "MvCalendar/MvEntryEdits.h"
#include "MvCalendar/MvEntryMove.h"
#include "MvCalendar/MvEntryQuestion.h"
#include "MvCalendar/MvGraphicsItemCalendariumCell.h"
#include "MvCalendar/MvGraphicsItemCalendariumCellsManager.h"
#include "MvCalendar/MvOpenCalendar.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvProject.h"

#include <QGraphicsView>
#include <QGuiApplication>
#include <QStyleHints>

using namespace Qt::StringLiterals;

namespace {

constexpr double reach = 8.0; // tenths of a millimetre around a text
constexpr qsizetype longestName = 40;

/// Without what breaking into lines adds and takes away.
QString squeezed(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        if (c.isLetterOrNumber() || c.isSurrogate())
            result += c.toCaseFolded();
    }
    return result;
}

} // namespace

MvPageEntries::MvPageEntries(MvProject *project, MvPageItem *item, QGraphicsView *view)
    : QObject(view)
    , m_project(project)
    , m_item(item)
    , m_view(view)
    , m_target(new MvPageDropTarget(item))
{
    item->cells()->setDayOpener([this](const QDate &date, const QPoint &source) { openDay(date, source); });
}

MvPageEntries::~MvPageEntries() = default;

QPointF MvPageEntries::onPage(const QPoint &position) const
{
    return m_item->mapFromScene(m_view->mapToScene(position));
}

QRect MvPageEntries::screenRect(const QDate &date) const
{
    const MvGraphicsItemCalendariumCell *cell = m_item->cells()->cell(date);
    const QWidget *port = m_view->viewport();
    const QRect seen(port->mapToGlobal(QPoint()), port->size());
    const QRect rect = cell ? cell->screenRect() : QRect();
    return (rect & seen).isEmpty() ? rect : rect & seen;
}

MvCalendarEventList MvPageEntries::entriesOn(const QDate &date) const
{
    return m_project->session().entries().events(m_item->shownPage().contentConfig().moveToDay(date));
}

MvCalendarEvent MvPageEntries::entryAt(const QPointF &onPage) const
{
    const QDate date = m_item->dateAt(onPage);
    const MvCalendarEventList events = date.isValid() ? entriesOn(date) : MvCalendarEventList();
    if (events.isEmpty())
        return {};
    const MvCalendarEventRegistry &registry = m_project->session().entries();
    const MvCalendariumContentConfig day = m_item->shownPage().contentConfig().moveToDay(date);
    const QList<MvEventText> texts = registry.texts(MvCalendariumContentKey(day, registry.activeModelId()));
    for (const MvPaintRecording::Item &item : m_item->recording().items(MvPaintRecording::Item::Text)) {
        const QString written = squeezed(item.text);
        if (written.isEmpty() || !item.bounds.adjusted(-reach, -reach, reach, reach).contains(onPage))
            continue;
        for (qsizetype i = 0; i < events.size(); ++i) {
            if (squeezed(texts.value(i).text).contains(written) ||
                written.contains(squeezed(events.at(i).description())))
                return events.at(i);
        }
    }
    return {};
}

// ---- the bubble

MvEntryBubble *MvPageEntries::bubble() const
{
    return m_bubble && !m_bubble->isHidden() ? m_bubble.data() : nullptr;
}

/// With the entry that was clicked, the only one of the day, or a new one.
void MvPageEntries::openDay(const QDate &date, const QPoint &source)
{
    if (m_pressed.isValid()) { // the button is still down: it may become a drag
        m_waiting = date;
        m_waitingAt = source;
        return;
    }
    const MvCalendarEventList events = entriesOn(date);
    MvCalendarEvent chosen = entryAt(onPage(m_view->viewport()->mapFromGlobal(source)));
    if (!chosen.isValid() || !events.contains(chosen))
        chosen = events.value(0);
    m_bubble = new MvEntryBubble(m_project->session(), m_item, m_view);
    connect(m_bubble, &MvEntryBubble::message, this, &MvPageEntries::message);
    m_bubble->openFor(date, events, chosen, screenRect(date));
}

// ---- dragging

void MvPageEntries::press(const QPoint &position)
{
    end();
    m_pressed = entryAt(onPage(position));
    m_pressedAt = position;
    m_from = m_item->dateAt(onPage(position));
}

bool MvPageEntries::move(const QPoint &position, Qt::KeyboardModifiers modifiers)
{
    if (!m_pressed.isValid())
        return false;
    if (!m_isDragging) {
        if ((position - m_pressedAt).manhattanLength() < QGuiApplication::styleHints()->startDragDistance())
            return false;
        begin();
    }
    m_to = m_item->dateAt(onPage(position));
    m_isCopy = modifiers.testFlag(Qt::ControlModifier);
    show();
    return true;
}

void MvPageEntries::begin()
{
    m_isDragging = true;
    m_waiting = {};
    if (MvGraphicsItemCalendariumCell *cell = m_item->cells()->cell(m_from))
        cell->cancelClick();
}

void MvPageEntries::setModifiers(Qt::KeyboardModifiers modifiers)
{
    if (!m_isDragging)
        return;
    m_isCopy = modifiers.testFlag(Qt::ControlModifier);
    show();
}

/// Says what letting go would do.
void MvPageEntries::show()
{
    const QString name = MvPrintableText::inShort(m_pressed.description(), longestName);
    if (!m_to.isValid() || m_to == m_from) {
        m_target->hide();
        m_view->viewport()->setCursor(m_to.isValid() ? Qt::ClosedHandCursor : Qt::ForbiddenCursor);
        Q_EMIT message(tr("„%1“ auf einen anderen Tag ziehen; Esc bricht ab.").arg(name));
        return;
    }
    const QString day = MvEntryQuestion::dayText(MvEntryMove(m_pressed, m_from, m_to).newStart());
    m_view->viewport()->setCursor(m_isCopy ? Qt::DragCopyCursor : Qt::ClosedHandCursor);
    m_target->showAt(m_item->dateRect(m_to), m_isCopy ? tr("„%1“ kopieren").arg(name) : name);
    Q_EMIT message(m_isCopy ? tr("Loslassen kopiert „%1“ auf %2.").arg(name, day)
                            : tr("Loslassen verschiebt „%1“ auf %2; mit Strg wird es eine Kopie.").arg(name, day));
}

void MvPageEntries::end()
{
    if (m_isDragging)
        m_view->viewport()->unsetCursor();
    m_isDragging = false;
    m_pressed = {};
    m_to = {};
    m_waiting = {};
    m_target->hide();
}

bool MvPageEntries::release(const QPoint &position, Qt::KeyboardModifiers modifiers)
{
    const bool wasDragging = move(position, modifiers) && m_isDragging;
    const MvCalendarEvent entry = m_pressed;
    const QDate from = m_from;
    const QDate to = m_to;
    const bool isCopy = m_isCopy;
    const QDate waiting = m_waiting;
    end();
    if (!wasDragging) {
        if (waiting.isValid())
            openDay(waiting, m_waitingAt);
        return false;
    }
    Q_EMIT message({});
    const MvCalendarEvent present = m_project->session().entries().presentEvent(entry);
    if (to.isValid() && to != from && present.isValid())
        drop(MvEntryMove(present, from, to), isCopy);
    return true;
}

void MvPageEntries::drop(const MvEntryMove &move, bool isCopy)
{
    const auto take = [this](const QString &step, const QString &told) {
        return [this, step, told, calendar = MvOpenCalendar(m_project->session())](const auto &changes) {
            if (changes.isEmpty() || !calendar.isStillOpenOrTell(this))
                return;
            MvEntryEdits(m_project->session()).change(step, step, changes);
            Q_EMIT message(told);
        };
    };
    const QString name = MvPrintableText::inShort(move.event().description(), longestName);
    const QString day = MvEntryQuestion::dayText(move.newStart());
    if (isCopy)
        take(tr("Eintrag kopieren"), tr("„%1“ ist auf %2 kopiert.").arg(name, day))(move.copy());
    else
        MvEntryQuestion::askForMove(move, move.event(), m_view,
                                    take(tr("Eintrag verschieben"), tr("„%1“ ist auf %2 verschoben.").arg(name, day)));
}

bool MvPageEntries::cancel()
{
    if (!m_isDragging)
        return false;
    end();
    Q_EMIT message({});
    return true;
}
