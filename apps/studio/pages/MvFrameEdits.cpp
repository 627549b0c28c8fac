// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvFrameEdits.h"

#include "common/MvStudioMerge.h"
#include "pages/MvFrameGrips.h"
#include "pages/MvPageSelection.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvProject/MvProject.h"

#include <QLineF>
#include <QMenu>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double copyAway = 60.0; // page units from the original
constexpr int ownOfSimplePage = 2;
const QString smallMonthLayout = u"MONTH_SMALL"_s;

QString inMillimetres(double units)
{
    return MvApplicationLocale::instance().locale().toString(units / MvFrameEdits::millimetre, 'f', 1);
}

} // namespace

MvFrameEdits::MvFrameEdits(MvProject *project, MvPageSelection *selection, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_selection(selection)
{}

bool MvFrameEdits::isFree(const MvCalendarPage &page, int element)
{
    return element >= (page.isSimple() ? ownOfSimplePage : 0);
}

MvCalendarPage MvFrameEdits::page() const
{
    return m_project->document().pages().value(m_selection->page());
}

QList<MvPageElement> MvFrameEdits::elements() const
{
    return page().elementsOn(m_project->document().format());
}

QList<int> MvFrameEdits::freeElements() const
{
    QList<int> chosen = m_selection->elements();
    const MvCalendarPage shown = page();
    chosen.removeIf([&shown](int element) { return !isFree(shown, element); });
    return chosen;
}

bool MvFrameEdits::canFreeFrames() const
{
    return page().isValid() && page().isSimple();
}

QRectF MvFrameEdits::rect() const
{
    return m_selection->element() < 0 ? QRectF() : elements().value(m_selection->element()).rect();
}

QList<QRectF> MvFrameEdits::rects() const
{
    const QList<MvPageElement> present = elements();
    QList<QRectF> rects;
    for (const int number : freeElements())
        rects.append(present.at(number).rect());
    return rects;
}

void MvFrameEdits::change(const MvCalendarPage &after, const QString &text, int mergeId)
{
    m_project->changePage(m_selection->page(), after, text, mergeId);
}

// ------------------------------------------------------------------------------------------------- coming and going

/// Near the middle of the page, where it covers as little as can be.
QRectF MvFrameEdits::roomFor(int columns, int rows) const
{
    const MvPageFormat &format = m_project->document().format();
    const auto areaAt = [&](int column, int row) {
        return format.fieldArea(column, column + columns - 1, row, row + rows - 1);
    };
    const int middleColumn = (MvPageFormat::fieldColumns - columns) / 2 + 1;
    const int middleRow = (MvPageFormat::fieldRows - rows) / 2 + 1;
    const QPointF middle = areaAt(middleColumn, middleRow).center();
    const QList<MvPageElement> present = elements();
    const auto cost = [&](const QRectF &area) {
        double covered = 0.0; // photos are the best ground, what somebody has put there the worst
        for (const MvPageElement &other : present) {
            const QRectF both = other.rect() & area;
            const double weight = other.slot().isEmpty() ? 20.0 : other.foto() ? 0.5 : 2.0;
            covered += weight * both.width() * both.height();
        }
        return covered / (area.width() * area.height()) +
               QLineF(area.center(), middle).length() / format.fieldRect().height();
    };
    QRectF best = areaAt(middleColumn, middleRow);
    for (int column = 1; column + columns - 1 <= MvPageFormat::fieldColumns; ++column)
        for (int row = 1; row + rows - 1 <= MvPageFormat::fieldRows; ++row)
            if (const QRectF area = areaAt(column, row); cost(area) < cost(best))
                best = area;
    return best;
}

void MvFrameEdits::add(MvPageElement element, int columns, int rows, const QString &text)
{
    MvCalendarPage changed = page();
    if (!m_project->document().format().isValid() || !changed.isValid())
        return;
    const QRectF place = roomFor(columns, rows);
    const QList<MvPageElement> present = elements();
    element.setRect(place);
    const bool isOnFoto = std::any_of(present.begin(), present.end(), [&place](const MvPageElement &other) {
        return other.foto() && other.rect().intersects(place);
    });
    if (element.text()) {
        MvTextElement content = *element.text();
        content.setOnFoto(isOnFoto);
        element.setContent(content);
    } else if (element.calendarium()) {
        MvCalendariumElement content = *element.calendarium();
        content.setOnFoto(isOnFoto);
        element.setContent(content);
    }
    const int number = changed.addElement(element);
    change(changed, text);
    m_selection->selectElement(number);
}

void MvFrameEdits::addFoto()
{
    add({{}, MvFotoElement()}, 4, 8, tr("Fotorahmen einfügen"));
}

void MvFrameEdits::addText()
{
    MvTextElement text(tr("Ihr Text"));
    text.setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    text.setPoints(14.0);
    add({{}, text}, 4, 3, tr("Textrahmen einfügen"));
}

void MvFrameEdits::addSmallMonth()
{
    MvCalendariumElement month(smallMonthLayout);
    month.setMonthOffset(1);
    add({{}, month}, 3, 6, tr("Kleinen Monat einfügen"));
}

void MvFrameEdits::duplicate()
{
    const QList<int> chosen = freeElements();
    if (chosen.isEmpty())
        return;
    MvCalendarPage changed = page();
    const QList<MvPageElement> present = elements();
    QList<int> copies;
    for (const int number : chosen) {
        MvPageElement copy = present.at(number);
        copy.setSlot({}); // the place in the template is the original's
        copy.setRect(copy.rect().translated(copyAway, copyAway));
        copies.append(changed.addElement(copy));
    }
    change(changed, tr("Rahmen verdoppeln"));
    m_selection->selectElements(copies);
}

void MvFrameEdits::remove()
{
    const QList<int> chosen = freeElements();
    if (chosen.isEmpty())
        return;
    MvCalendarPage changed = page();
    for (auto number = chosen.rbegin(); number != chosen.rend(); ++number)
        changed.removeElement(*number);
    m_selection->selectNothing(); // numbers mean others now
    change(changed, tr("Rahmen löschen"));
}

/// Elements are painted in their order, those of a kind among their like.
void MvFrameEdits::reorder(bool isToFront, const QString &text)
{
    const QList<int> chosen = freeElements();
    if (chosen.isEmpty())
        return;
    MvCalendarPage changed = page();
    const int first = changed.isSimple() ? ownOfSimplePage : 0;
    const QList<MvPageElement> present = elements();
    QList<MvPageElement> moved;
    QList<MvPageElement> others;
    for (int number = first; number < present.size(); ++number)
        (chosen.contains(number) ? moved : others).append(present.at(number));
    for (int number = int(present.size()) - 1; number >= first; --number)
        changed.removeElement(number);
    for (const MvPageElement &element : isToFront ? others + moved : moved + others)
        changed.addElement(element);
    QList<int> numbers;
    for (int number = 0; number < moved.size(); ++number)
        numbers.append(first + number + (isToFront ? int(others.size()) : 0));
    m_selection->selectNothing();
    change(changed, text);
    m_selection->selectElements(numbers);
}

void MvFrameEdits::bringToFront()
{
    reorder(true, tr("Rahmen nach vorn holen"));
}

void MvFrameEdits::sendToBack()
{
    reorder(false, tr("Rahmen nach hinten stellen"));
}

void MvFrameEdits::freeFrames()
{
    MvCalendarPage changed = page();
    if (!canFreeFrames())
        return;
    changed.freeElements(m_project->document().format());
    change(changed, tr("Rahmen frei anordnen"));
    Q_EMIT message(tr("Foto und Kalender lassen sich jetzt einzeln verschieben; F7 geht von einem zum anderen."));
}

// ------------------------------------------------------------------------------------------------------------ places

bool MvFrameEdits::arrange(const Arrange &arrange, const QString &text, int mergeId)
{
    const QList<int> chosen = freeElements();
    if (chosen.isEmpty())
        return false;
    MvCalendarPage changed = page();
    const QList<MvPageElement> present = elements();
    QList<QRectF> rects;
    for (const int number : chosen)
        rects.append(present.at(number).rect());
    rects = arrange(rects);
    for (int index = 0; index < chosen.size(); ++index) {
        MvPageElement element = present.at(chosen.at(index));
        element.setRect(rects.at(index));
        changed.setElement(chosen.at(index), element);
    }
    change(changed, text, mergeId);
    return true;
}

void MvFrameEdits::align(MvFrameArrangement::Line line)
{
    const QRectF field = m_project->document().format().fieldRect();
    arrange(
        [&](const QList<QRectF> &rects) {
            return MvFrameArrangement::aligned(rects, line,
                                               rects.size() > 1 ? MvFrameArrangement::bounds(rects) : field);
        },
        tr("Rahmen ausrichten"));
}

void MvFrameEdits::distribute(Qt::Orientation orientation)
{
    if (freeElements().size() < 3) {
        Q_EMIT message(tr("Wählen Sie erst drei Rahmen oder mehr: den nächsten jeweils mit der Umschalttaste."));
        return;
    }
    arrange([orientation](const QList<QRectF> &rects) { return MvFrameArrangement::distributed(rects, orientation); },
            tr("Rahmen gleichmäßig verteilen"));
}

bool MvFrameEdits::moveBy(const QPointF &distance)
{
    const bool isMoved = arrange(
        [&distance](QList<QRectF> rects) {
            for (QRectF &rect : rects)
                rect.translate(distance);
            return rects;
        },
        tr("Rahmen verschieben"), MvStudioMerge::ElementMove);
    const QRectF at = rect();
    if (isMoved)
        Q_EMIT message(tr("%1 mm von links, %2 mm von oben").arg(inMillimetres(at.left()), inMillimetres(at.top())));
    return isMoved;
}

bool MvFrameEdits::growBy(const QPointF &distance)
{
    const bool isChanged = arrange(
        [&distance](QList<QRectF> rects) {
            for (QRectF &rect : rects)
                rect = MvFrameGrips::pulled(rect, Qt::RightEdge | Qt::BottomEdge, distance);
            return rects;
        },
        tr("Größe des Rahmens ändern"), MvStudioMerge::ElementMove);
    const QRectF at = rect();
    if (isChanged)
        Q_EMIT message(tr("%1 × %2 mm").arg(inMillimetres(at.width()), inMillimetres(at.height())));
    return isChanged;
}

void MvFrameEdits::changeRects(const std::function<QRectF(const QRectF &)> &change)
{
    arrange(
        [&change](QList<QRectF> rects) {
            std::transform(rects.cbegin(), rects.cend(), rects.begin(), change);
            return rects;
        },
        tr("Rahmen verschieben"), MvStudioMerge::ElementMove);
}

// -------------------------------------------------------------------------------------------------------------- menu

void MvFrameEdits::addActions(QMenu *parent, int element)
{
    QMenu *menu = parent->addMenu(tr("&Rahmen"));
    menu->setObjectName(u"menuFrames"_s);
    const auto add = [this](QMenu *to, const char *name, const QString &text, void (MvFrameEdits::*slot)()) {
        QAction *action = to->addAction(text);
        action->setObjectName(QLatin1StringView(name));
        connect(action, &QAction::triggered, this, slot);
    };
    const MvCalendarPage shown = page();
    if (isFree(shown, element) && element < elements().size()) {
        const auto choose = [this, element] {
            if (!m_selection->elements().contains(element))
                m_selection->selectElement(element);
        };
        QAction *choosing = menu->addAction(tr("Rahmen &wählen"));
        choosing->setObjectName(u"menuChooseFrame"_s);
        connect(choosing, &QAction::triggered, this, [this, element] { m_selection->selectElement(element); });
        for (const auto &[name, text, slot] :
             {std::tuple("menuDuplicateFrame", tr("Rahmen ver&doppeln"), &MvFrameEdits::duplicate),
              std::tuple("menuFrameToFront", tr("Ganz nach &vorn"), &MvFrameEdits::bringToFront),
              std::tuple("menuFrameToBack", tr("Ganz nach &hinten"), &MvFrameEdits::sendToBack),
              std::tuple("menuRemoveFrame", tr("Rahmen &löschen"), &MvFrameEdits::remove)}) {
            QAction *action = menu->addAction(text);
            action->setObjectName(QLatin1StringView(name));
            connect(action, &QAction::triggered, this, [this, choose, slot = slot] {
                choose();
                (this->*slot)();
            });
        }
    }
    menu->addSeparator();
    add(menu, "menuAddPhotoFrame", tr("&Fotorahmen einfügen"), &MvFrameEdits::addFoto);
    add(menu, "menuAddTextFrame", tr("&Textrahmen einfügen"), &MvFrameEdits::addText);
    add(menu, "menuAddSmallMonth", tr("Kleinen &Monat einfügen"), &MvFrameEdits::addSmallMonth);
    if (canFreeFrames())
        add(menu, "menuFreeFrames", tr("Rahmen frei &anordnen"), &MvFrameEdits::freeFrames);
}
