// SPDX-License-Identifier: LGPL-2.1-or-later
#include "start/MvStartDropZone.h"

#include "MvGUIWidgets/MvFlowLayout.h"
#include "MvGUIWidgets/MvIconRegistry.h"
#include "common/MvDraggedFotos.h"

#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double corner = 10.0; // logical pixels
constexpr double outlineWidth = 2.0;
constexpr int iconSide = 48;

} // namespace

MvStartDropZone::MvStartDropZone(QWidget *parent)
    : QFrame(parent)
    , m_hint(new QLabel(this))
{
    setObjectName(u"startDropZone"_s);
    setAcceptDrops(true);
    auto *picture = new QLabel(this);
    picture->setPixmap(MvIconRegistry::instance().icon(u"ico_common_photo"_s).pixmap(iconSide));
    auto *title = new QLabel(tr("Fotos oder einen Ordner hierher ziehen"), this);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    title->setFont(large);
    title->setWordWrap(true);
    m_hint->setWordWrap(true);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    auto *folder = new QPushButton(tr("O&rdner wählen …"), this);
    folder->setObjectName(u"startFolder"_s);
    auto *files = new QPushButton(tr("Fotos &wählen …"), this);
    files->setObjectName(u"startFiles"_s);
    for (QPushButton *button : {files, folder})
        button->setAutoDefault(false);
    connect(files, &QPushButton::clicked, this, &MvStartDropZone::filesRequested);
    connect(folder, &QPushButton::clicked, this, &MvStartDropZone::folderRequested);

    auto *buttons = new MvFlowLayout;
    buttons->addWidget(folder);
    buttons->addWidget(files);
    auto *column = new QVBoxLayout;
    column->addWidget(title);
    column->addWidget(m_hint);
    column->addLayout(buttons);
    auto *row = new QHBoxLayout(this);
    const int margin = fontMetrics().height();
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(margin);
    row->addWidget(picture, 0, Qt::AlignVCenter);
    row->addLayout(column, 1);
}

void MvStartDropZone::setHint(const QString &text)
{
    m_hint->setText(text);
}

void MvStartDropZone::setOffered(bool offered)
{
    if (std::exchange(m_isOffered, offered) != offered)
        update();
}

void MvStartDropZone::dragEnterEvent(QDragEnterEvent *event)
{
    if (!MvDraggedFotos::areIn(event->mimeData()))
        return;
    setOffered(true);
    event->acceptProposedAction();
}

void MvStartDropZone::dragLeaveEvent(QDragLeaveEvent * /*event*/)
{
    setOffered(false);
}

void MvStartDropZone::dropEvent(QDropEvent *event)
{
    setOffered(false);
    event->acceptProposedAction();
    Q_EMIT dropped(MvDraggedFotos::paths(event->mimeData()));
}

void MvStartDropZone::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor mark = palette().color(QPalette::Highlight);
    QColor ground = m_isOffered ? mark : palette().color(QPalette::Base);
    if (m_isOffered)
        ground.setAlphaF(0.15F);
    painter.setBrush(ground);
    painter.setPen(QPen(m_isOffered ? mark : palette().color(QPalette::Mid), outlineWidth,
                        m_isOffered ? Qt::SolidLine : Qt::DashLine));
    const double inset = outlineWidth / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), corner, corner);
}
