// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvFotoField.h"

#include "MvCalendar/MvCalendarEvent.h"

#include "MvCore/MvDiskAccessRequest.h"
#include "MvFoto/MvFotoList.h"
#include "MvFoto/MvFotoLoader.h"
#include "MvFoto/MvMediaFormat.h"
#include "MvGUIWidgets/MvDropLabel.h"

#include <QGraphicsOpacityEffect>
#include <QGridLayout>
#include <QMimeData>
#include <QPointer>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int fadeDuration = 350; // ms; also the time after which a shown photo has settled
constexpr int labelIndent = 13;
constexpr int spaceAroundButton = 5;
constexpr int linesOfHint = 4;
constexpr int linesOfShortHint = 2;

} // namespace

MvFotoField::MvFotoField(QWidget *parent)
    : QWidget(parent)
{
    createLabel();
    createRemoveButton();
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setSpacing(0);
    grid->setRowMinimumHeight(0, spaceAroundButton);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(0, 2);
    grid->setColumnMinimumWidth(2, spaceAroundButton);
    grid->addWidget(m_label, 0, 0, 3, 3);
    grid->addWidget(m_removeButton, 1, 1);
    m_removeButton->raise();
    showHint();
    m_fade->stop(); // there is nothing to fade out yet
    m_removeButton->graphicsEffect()->setProperty("opacity", 0.0);
}

MvFotoField::~MvFotoField() = default;

void MvFotoField::createLabel()
{
    m_label = new MvDropLabel(this);
    m_label->setObjectName(u"fotoLabel"_s);
    m_label->setAccessibleName(tr("Foto auswählen"));
    m_label->setToolTip(tr("Klicken um ein Foto auszuwählen"));
    m_label->setWordWrap(true);
    m_label->setIndent(labelIndent);
    m_label->setAlignment(Qt::AlignCenter);
    m_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored); // a photo never widens the window
    m_label->setMinimumHeight(linesOfHint * m_label->fontMetrics().lineSpacing());
    m_label->setProperty("cssstyle", u"HintTextLabelCalStyle"_s);
    m_label->installEventFilter(this);
    connect(m_label, &MvDropLabel::pressed, this, &MvFotoField::chooseFoto);
}

void MvFotoField::createRemoveButton()
{
    m_removeButton = new QPushButton(tr("&Foto entfernen"), this);
    m_removeButton->setObjectName(u"removePhotoButton"_s);
    m_removeButton->setAutoDefault(false);
    m_removeButton->setAttribute(Qt::WA_Hover);
    m_removeButton->setProperty("cssstyle", u"2ndLevelPushButton"_s);
    m_removeButton->installEventFilter(this);
    connect(m_removeButton, &QPushButton::clicked, this, &MvFotoField::removeFoto);

    auto *effect = new QGraphicsOpacityEffect(m_removeButton);
    effect->setOpacity(0.0);
    m_removeButton->setGraphicsEffect(effect);
    m_fade = new QPropertyAnimation(effect, "opacity", this);
    m_fade->setDuration(fadeDuration);
    m_fade->setStartValue(0.0);
    m_fade->setEndValue(1.0);
}

void MvFotoField::setCompact()
{
    m_isCompact = true;
    m_removeButton->setText(tr("Foto entfernen")); // among others, whose keys it would take
    m_label->setMinimumHeight(linesOfShortHint * m_label->fontMetrics().lineSpacing() + 2 * spaceAroundButton);
    m_label->setIndent(spaceAroundButton);
    showHint();
}

QList<QWidget *> MvFotoField::focusWidgets() const
{
    return {m_label, m_removeButton};
}

// ---- the photo

void MvFotoField::setFoto(const MvFoto &foto)
{
    m_foto = foto;
    if (!foto.isValid()) {
        showHint();
        return;
    }
    m_pixmap = {};
    showText(tr("Das Foto wird geladen…"));
    MvFotoLoader::midRes(foto, MvCalendarEvent::fotoQuality, MvCalendarEvent::fotoCaching, this,
                         [this, foto](const QImage &image) { takeImage(foto, image); });
}

void MvFotoField::takeImage(const MvFoto &foto, const QImage &image)
{
    if (!(foto == m_foto))
        return; // another one was set meanwhile
    m_pixmap = QPixmap::fromImage(image);
    if (m_pixmap.isNull())
        showText(tr("Das Foto „%1“ kann nicht gelesen werden.").arg(foto.localFileInfo().fileName()));
    else
        showImage();
    QTimer::singleShot(fadeDuration, this, &MvFotoField::animateInRemoveButton);
}

void MvFotoField::showText(const QString &text)
{
    m_label->clear();
    m_label->setText(text);
    m_label->setAccessibleName(tr("Anderes Foto auswählen"));
    m_removeButton->setEnabled(true);
}

void MvFotoField::showImage()
{
    const qreal ratio = m_label->devicePixelRatioF();
    QPixmap scaled = m_pixmap.scaled(m_label->size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    m_label->clear();
    m_label->setPixmap(scaled);
}

void MvFotoField::removeFoto()
{
    setFoto(MvFoto());
}

void MvFotoField::showHint()
{
    m_pixmap = {};
    m_label->clear();
    m_label->setAccessibleName(tr("Foto auswählen"));
    m_label->setText(m_isCompact
                         ? tr("Foto hinzufügen")
                         : tr("Ziehen Sie ein Foto auf diese Fläche um es als Symbol für den Termin zu verwenden."));
    if (m_removeButton->hasFocus())
        m_label->setFocus();
    m_removeButton->setEnabled(false); // invisible from now on, and so out of the keyboard's way
    animateRemoveButton(false);
}

void MvFotoField::chooseFoto()
{
    const QString filter = tr("Fotos (%1)").arg(MvMediaFormat::namePatterns());
    const auto take = [self = QPointer(this)](const QString &fileName) { // its window may outlive it
        if (fileName.isEmpty() || !self)
            return;
        const MvFoto foto{QFileInfo(fileName)};
        if (foto.mediaFormat().isValid())
            self->setFoto(foto);
        else
            MvDiskAccessRequest::instance().readFotoFailed(fileName, self->window());
    };
    MvDiskAccessRequest::instance().requestOpenFile(MvDiskAccessRequest::FotoFile, tr("Foto auswählen"), filter,
                                                    window(), take);
}

bool MvFotoField::hasImage() const
{
    return !m_label->pixmap(Qt::ReturnByValue).isNull();
}

// ---- the button

bool MvFotoField::canRemove() const
{
    return hasImage() || m_foto.isValid();
}

void MvFotoField::animateRemoveButton(bool in)
{
    const auto direction = in ? QAbstractAnimation::Forward : QAbstractAnimation::Backward;
    if (!m_fade->targetObject() || m_fade->direction() == direction)
        return;
    m_fade->setDirection(direction);
    m_fade->start();
}

void MvFotoField::animateInRemoveButton()
{
    if (canRemove())
        animateRemoveButton(true);
}

/// Shown while the mouse or the keyboard is at the photo.
void MvFotoField::updateRemoveButton()
{
    const bool isAtFoto = m_hoversLabel || m_label->hasFocus() || m_removeButton->hasFocus();
    if (canRemove() && !m_hoversRemoveButton)
        animateRemoveButton(isAtFoto);
    else
        animateRemoveButton(canRemove());
}

bool MvFotoField::eventFilter(QObject *watched, QEvent *event)
{
    bool &hovers = watched == m_removeButton ? m_hoversRemoveButton : m_hoversLabel;
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
        hovers = event->type() == QEvent::HoverEnter;
        updateRemoveButton();
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut: // the new focus is known only after this event
        QTimer::singleShot(0, this, &MvFotoField::updateRemoveButton);
        break;
    case QEvent::Resize:
        if (watched == m_label && hasImage())
            showImage();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

// ---- dropping

bool MvFotoField::offerDrop(const QMimeData *dragged)
{
    m_label->setDropOffered(dragged->hasUrls());
    return dragged->hasUrls();
}

void MvFotoField::endDrop()
{
    m_label->setDropOffered(false);
}

bool MvFotoField::takeDrop(const QMimeData *dragged)
{
    endDrop();
    const MvFotoList fotos(dragged);
    if (!fotos.isEmpty()) {
        setFoto(fotos.first());
        return true;
    }
    const QString file = dragged->urls().value(0).toLocalFile();
    if (!file.isEmpty())
        MvDiskAccessRequest::instance().readFotoFailed(file, window());
    return false;
}
