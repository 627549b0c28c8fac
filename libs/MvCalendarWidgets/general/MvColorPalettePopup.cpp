// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvColorPalettePopup.h"

#include "MvGUIWidgets/MvColorSwatch.h"

#include <QApplication>
#include <QColorDialog>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostUsedColors = 2 * MvColorPalettePopup::columns;

/// One colour of the palette.
class Swatch : public QAbstractButton
{
public:
    Swatch(const QColor &color, bool isCurrent, QWidget *parent)
        : QAbstractButton(parent)
        , m_color(color)
    {
        setFocusPolicy(Qt::StrongFocus);
        setCheckable(true);
        setChecked(isCurrent);
        setToolTip(MvColorSwatch::name(color));
        setAccessibleName(MvColorSwatch::name(color));
    }

    QColor color() const { return m_color; }

    QSize sizeHint() const override
    {
        const int side = qRound(fontMetrics().height() * 1.5);
        return {side, side};
    }

    void nextCheckState() override {} // the mark stays at the present colour

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        MvColorSwatch::paint(painter, rect().adjusted(2, 2, -2, -2), m_color, palette());
        if (hasFocus() || underMouse()) {
            painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
            painter.drawRect(rect().adjusted(1, 1, -1, -1));
        }
        if (isChecked())
            paintMark(painter);
    }

private:
    void paintMark(QPainter &painter) const
    {
        const double side = width() / 4.0;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(MvColorSwatch::inkOn(m_color));
        painter.drawEllipse(QRectF(rect()).center(), side / 2, side / 2);
    }

    QColor m_color;
};

QList<QColor> greys()
{
    QList<QColor> colors;
    for (const double lightness : {1.0, 0.96, 0.9, 0.78, 0.55, 0.38, 0.2, 0.0})
        colors.append(QColor::fromRgb(QColor::fromHslF(0.0F, 0.0F, static_cast<float>(lightness)).rgb()));
    return colors;
}

} // namespace

MvColorPalettePopup::MvColorPalettePopup(QWidget *parent, const QColor &current, const QList<QColor> &usedColors,
                                         bool alphaAllowed)
    : QFrame(parent, Qt::Popup)
    , m_current(current)
    , m_alphaAllowed(alphaAllowed)
{
    setObjectName(u"colorPalette"_s);
    setAccessibleName(tr("Farbpalette"));
    setFrameShape(QFrame::StyledPanel);
    auto *layout = new QVBoxLayout(this);
    addUsedColors(layout, usedColors);
    auto *grid = new QGridLayout;
    addSwatches(grid, tints());
    layout->addLayout(grid);
    addOtherChoices(layout);
}

void MvColorPalettePopup::addUsedColors(QVBoxLayout *layout, const QList<QColor> &colors)
{
    QList<QColor> different;
    for (const QColor &color : colors) {
        if (color.isValid() && color.alpha() > 0 && !different.contains(color) && different.size() < mostUsedColors)
            different.append(color);
    }
    if (different.isEmpty())
        return;
    layout->addWidget(new QLabel(tr("Verwendete Farben"), this));
    auto *grid = new QGridLayout;
    addSwatches(grid, different);
    layout->addLayout(grid);
    layout->addWidget(new QLabel(tr("Farbtöne"), this));
}

void MvColorPalettePopup::addSwatches(QGridLayout *grid, const QList<QColor> &colors)
{
    grid->setSpacing(0);
    grid->setColumnStretch(columns, 1);
    for (int i = 0; i < colors.size(); ++i) {
        const QColor color = colors[i];
        auto *swatch = new Swatch(color, color == m_current, this);
        grid->addWidget(swatch, i / columns, i % columns);
        connect(swatch, &QAbstractButton::clicked, this, [this, color] { choose(color); });
        swatch->installEventFilter(this);
        m_choices.append(swatch);
    }
}

void MvColorPalettePopup::addOtherChoices(QVBoxLayout *layout)
{
    if (m_alphaAllowed) {
        auto *none = new QPushButton(MvColorSwatch::name(Qt::transparent), this);
        none->setObjectName(u"transparentButton"_s);
        connect(none, &QPushButton::clicked, this, [this] { choose(Qt::transparent); });
        layout->addWidget(none);
        m_choices.append(none);
    }
    auto *other = new QPushButton(tr("Andere Farbe…"), this);
    other->setObjectName(u"otherColorButton"_s);
    connect(other, &QPushButton::clicked, this, &MvColorPalettePopup::openDialog);
    layout->addWidget(other);
    m_choices.append(other);
    for (QAbstractButton *choice : std::as_const(m_choices))
        choice->installEventFilter(this);
}

QList<QColor> MvColorPalettePopup::tints()
{
    struct Row
    {
        float saturation;
        float lightness;
    };
    QList<QColor> colors = greys();
    for (const Row &row : {Row{0.55F, 0.94F}, Row{0.55F, 0.85F}, Row{0.5F, 0.55F}, Row{0.6F, 0.33F}}) {
        for (const int hue : {4, 26, 46, 95, 165, 203, 255, 325})
            colors.append(QColor::fromRgb(
                QColor::fromHslF(static_cast<float>(hue) / 360.0F, row.saturation, row.lightness).rgb()));
    }
    return colors;
}

void MvColorPalettePopup::openAt(const QRect &parentRect)
{
    adjustSize();
    const QRect anchor(parentWidget()->mapToGlobal(parentRect.topLeft()), parentRect.size());
    QPoint place(anchor.left(), anchor.bottom() + 1);
    if (const QScreen *screen = parentWidget()->screen()) {
        const QRect available = screen->availableGeometry();
        if (place.y() + height() > available.bottom())
            place.setY(anchor.top() - height());
        place.setX(std::clamp(place.x(), available.left(), qMax(available.left(), available.right() - width())));
        place.setY(qMax(place.y(), available.top()));
    }
    move(place);
    show();
    m_sinceOpened.start();
    const auto isCurrent = [](const QAbstractButton *choice) { return choice->isChecked(); };
    const auto current = std::find_if(m_choices.cbegin(), m_choices.cend(), isCurrent);
    (current != m_choices.cend() ? *current : m_choices.constFirst())->setFocus(Qt::PopupFocusReason);
}

void MvColorPalettePopup::choose(const QColor &color)
{
    hide();
    Q_EMIT colorChosen(color);
}

void MvColorPalettePopup::openDialog()
{
    m_dialogIsOpen = true;
    hide();
    auto *dialog = new QColorDialog(m_current, parentWidget());
    dialog->setObjectName(u"colorDialog"_s);
    dialog->setWindowTitle(tr("Farbe wählen"));
    dialog->setOption(QColorDialog::ShowAlphaChannel, m_alphaAllowed);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (m_alphaAllowed && m_current.alpha() == 0) // a colour chosen there is meant to be seen
        dialog->setCurrentColor(Qt::white);
    connect(dialog, &QColorDialog::colorSelected, this, &MvColorPalettePopup::colorChosen);
    connect(dialog, &QDialog::finished, this, &QObject::deleteLater);
    dialog->open();
}

void MvColorPalettePopup::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    if (!m_dialogIsOpen)
        deleteLater();
}

void MvColorPalettePopup::mousePressEvent(QMouseEvent *event)
{
    if (rect().contains(event->position().toPoint()) || m_sinceOpened.hasExpired(QApplication::doubleClickInterval()))
        QFrame::mousePressEvent(event); // which closes it for a press beside it
}

bool MvColorPalettePopup::eventFilter(QObject *watched, QEvent *event)
{
    auto *button = qobject_cast<QAbstractButton *>(watched);
    if (!button || event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        button->click();
        return true;
    }
    return moveFocus(key);
}

/// To the nearest choice in the direction of an arrow key; false for other keys.
bool MvColorPalettePopup::moveFocus(int key)
{
    static const QHash<int, QPoint> directions{
        {Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};
    const auto direction = directions.constFind(key);
    const QWidget *from = focusWidget();
    if (direction == directions.cend() || !from)
        return false;
    QAbstractButton *nearest = nullptr;
    int shortest = 0;
    for (QAbstractButton *choice : std::as_const(m_choices)) {
        // along a row only its own swatches count; across rows the edge does, so that a wide button is near to all
        const QRect to = choice->geometry();
        const QPoint centre = from->geometry().center();
        const bool isAcross = direction->x() == 0;
        const int ahead = QPoint::dotProduct(to.center() - centre, *direction);
        const int aside = isAcross ? qMax(0, qMax(to.left() - centre.x(), centre.x() - to.right()))
                                   : std::abs(to.center().y() - centre.y());
        if (choice == from || ahead <= 0 || (!isAcross && aside > from->height() / 2))
            continue;
        if (const int distance = ahead + aside; !nearest || distance < shortest) {
            nearest = choice;
            shortest = distance;
        }
    }
    if (nearest)
        nearest->setFocus(Qt::OtherFocusReason);
    return true;
}
