// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvFramePanel.h"

#include "pages/MvFrameEdits.h"
#include "pages/MvFrameGrips.h"
#include "pages/MvPageSelection.h"
#include "panels/MvCommonNumberBox.h"
#include "panels/MvCommonValue.h"
#include "panels/MvPageEdits.h"

#include "MvGUIWidgets/MvFlowLayout.h"
#include "MvGUIWidgets/MvFormFields.h"
#include "MvGUIWidgets/MvIconRegistry.h"

#include <QFormLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double farthest = 3000.0; // millimetres

} // namespace

MvFramePanel::MvFramePanel(MvPageEdits *edits, MvFrameEdits *frames, MvPageSelection *selection, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_frames(frames)
    , m_selection(selection)
    , m_hint(new QLabel(tr("Foto und Kalender teilen sich diese Seite. Wer sie einzeln verschieben möchte, ordnet sie "
                           "frei an."),
                        this))
    , m_controls(new QWidget(this))
{
    setObjectName(u"framePanel"_s);
    m_hint->setWordWrap(true);
    m_free = createButton("frameFree", u"ico_studio_layout"_s, tr("Rahmen frei anordnen"));
    m_free->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(m_free, &QToolButton::clicked, frames, &MvFrameEdits::freeFrames);
    auto *form = new QFormLayout(m_controls);
    form->setContentsMargins({});
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addNumbers(form);
    addLines(form);
    addOrder(form);
    QVBoxLayout *column = addScrollingColumn();
    column->addWidget(m_hint);
    column->addWidget(m_free, 0, Qt::AlignLeft);
    column->addWidget(m_controls);
    column->addStretch(1);
    connect(selection, &MvPageSelection::changed, this, &MvPagePanel::renew);
}

void MvFramePanel::createLength(const char *objectName, const QString &name, double (*get)(const QRectF &),
                                void (*set)(QRectF &, double))
{
    auto *box = new MvCommonNumberBox(m_controls);
    box->setObjectName(QLatin1StringView(objectName));
    box->setAccessibleName(name);
    box->setDecimals(1);
    box->setSuffix(tr(" mm"));
    MvFormFields::keepWheelOut({box});
    const Length length{box, get, set};
    connect(box, &MvCommonNumberBox::entered, this, [this, length](double value) { apply(length, value); });
    m_lengths.append(length);
}

QToolButton *MvFramePanel::createButton(const char *objectName, const QString &icon, const QString &text)
{
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1StringView(objectName));
    button->setIcon(MvIconRegistry::instance().icon(icon));
    button->setText(text);
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

void MvFramePanel::addNumbers(QFormLayout *form)
{
    createLength(
        "frameLeft", tr("Abstand von links"), [](const QRectF &rect) { return rect.left(); },
        [](QRectF &rect, double left) { rect.moveLeft(left); });
    createLength(
        "frameTop", tr("Abstand von oben"), [](const QRectF &rect) { return rect.top(); },
        [](QRectF &rect, double top) { rect.moveTop(top); });
    createLength(
        "frameWidth", tr("Breite des Rahmens"), [](const QRectF &rect) { return rect.width(); },
        [](QRectF &rect, double width) { rect.setWidth(width); });
    createLength(
        "frameHeight", tr("Höhe des Rahmens"), [](const QRectF &rect) { return rect.height(); },
        [](QRectF &rect, double height) { rect.setHeight(height); });
    const QStringList labels{tr("Links:"), tr("Oben:"), tr("Breite:"), tr("Höhe:")};
    constexpr double smallest = MvFrameGrips::smallestSide / MvFrameEdits::millimetre;
    for (int number = 0; number < m_lengths.size(); ++number) {
        m_lengths.at(number).box->setLimits(number < 2 ? -farthest : smallest, farthest);
        form->addRow(labels.at(number), m_lengths.at(number).box);
    }
}

void MvFramePanel::addLines(QFormLayout *form)
{
    using Line = MvFrameArrangement::Line;
    auto *row = new MvFlowLayout;
    const auto add = [&](Line line, const char *name, const QString &icon, const QString &text) {
        QToolButton *button = createButton(name, icon, text);
        row->addWidget(button);
        connect(button, &QToolButton::clicked, m_frames, [this, line] { m_frames->align(line); });
    };
    add(Line::Left, "frameAlignLeft", u"ico_studio_align_left"_s, tr("Links bündig"));
    add(Line::Centre, "frameAlignCentre", u"ico_studio_align_centre"_s, tr("Waagerecht mittig"));
    add(Line::Right, "frameAlignRight", u"ico_studio_align_right"_s, tr("Rechts bündig"));
    add(Line::Top, "frameAlignTop", u"ico_studio_align_top"_s, tr("Oben bündig"));
    add(Line::Middle, "frameAlignMiddle", u"ico_studio_align_middle"_s, tr("Senkrecht mittig"));
    add(Line::Bottom, "frameAlignBottom", u"ico_studio_align_bottom"_s, tr("Unten bündig"));
    const auto distribute = [&](Qt::Orientation orientation, const char *name, const QString &icon,
                                const QString &text) {
        QToolButton *button = createButton(name, icon, text);
        row->addWidget(button);
        m_distributing.append(button);
        connect(button, &QToolButton::clicked, m_frames, [this, orientation] { m_frames->distribute(orientation); });
    };
    distribute(Qt::Horizontal, "frameDistributeAcross", u"ico_studio_distribute_across"_s,
               tr("Nebeneinander gleichmäßig verteilen"));
    distribute(Qt::Vertical, "frameDistributeDown", u"ico_studio_distribute_down"_s,
               tr("Untereinander gleichmäßig verteilen"));
    form->addRow(tr("Ausrichten:"), row);
}

void MvFramePanel::addOrder(QFormLayout *form)
{
    auto *row = new MvFlowLayout;
    const auto add = [&](const char *name, const QString &icon, const QString &text, void (MvFrameEdits::*slot)()) {
        QToolButton *button = createButton(name, icon, text);
        row->addWidget(button);
        connect(button, &QToolButton::clicked, m_frames, slot);
    };
    add("frameToFront", u"ico_studio_to_front"_s, tr("Ganz nach vorn"), &MvFrameEdits::bringToFront);
    add("frameToBack", u"ico_studio_to_back"_s, tr("Ganz nach hinten"), &MvFrameEdits::sendToBack);
    add("frameDuplicate", u"ico_studio_duplicate"_s, tr("Rahmen verdoppeln"), &MvFrameEdits::duplicate);
    add("frameRemove", u"ico_studio_remove"_s, tr("Rahmen löschen"), &MvFrameEdits::remove);
    form->addRow(tr("Rahmen:"), row);
}

void MvFramePanel::showPage()
{
    if (m_selection->element() < 0)
        return;
    const bool isFree = !m_frames->freeElements().isEmpty();
    m_hint->setVisible(!isFree);
    m_free->setVisible(!isFree);
    m_controls->setEnabled(isFree);
    const QRectF last = m_frames->rect();
    const QList<QRectF> rects = isFree ? m_frames->rects() : QList<QRectF>{last};
    for (const Length &length : std::as_const(m_lengths)) {
        const auto shown = [&length](const QRectF &rect) {
            return std::round(length.get(rect)) / MvFrameEdits::millimetre;
        };
        length.box->show(MvCommonValue::of(rects, shown), shown(last));
    }
    for (QToolButton *button : std::as_const(m_distributing))
        button->setEnabled(m_frames->freeElements().size() > 2);
}

/// A number that a frame has already, but for what the box rounds away, is left as it is.
void MvFramePanel::apply(const Length &length, double millimetres)
{
    if (isShowing())
        return;
    const double wanted = std::round(millimetres * MvFrameEdits::millimetre);
    m_frames->changeRects([&length, wanted](QRectF rect) {
        if (qAbs(length.get(rect) - wanted) >= 0.5)
            length.set(rect, wanted);
        return rect;
    });
}
